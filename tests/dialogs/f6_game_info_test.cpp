// The game info: words and pictures for each kind of game, and what the ways out take over.
#include "../main_window_fixture.h"

namespace tests {
namespace {

struct GameInfoTest : MainWindowTest {
  dialogs::F6& F6 = window.F6;

  /// The numbers of the four status pictures, "-" for none.
  std::string Pictures() const {
    std::string numbers;
    for (int i = 0; i < 4; ++i) {
      const platform::Picture picture = F6.picGameStatus(i).Image;
      numbers += picture.Empty() ? "-" : picture.Name.substr(picture.Name.find('/') + 2, 1);
    }
    return numbers;
  }
};

TEST_F(GameInfoTest, SummaryAndPicturesAreThoseOfTheGameAtEachOpening) {
  const std::string base = "Basisspiel\r\n", expansion = "\"Burgen und Wächter\" Erweiterung\r\n",
                    second = "\"Flottillen\" Erweiterung\r\n", scenario = "Dies ist ein Szenario\r\n",
                    points = "Siegbedingung: 13 Siegpunkte";
  struct Case {
    std::int16_t GameType, Players, Flottillen, Scenario;
    const char* Pictures;
    std::string Summary;
  };
  const Case cases[] = {{3, 6, 1, 1, "2354", expansion + "6 Spieler\r\n" + second + scenario + points},
                        {2, 4, 0, 0, "1---", base + "4 Spieler\r\n" + points},
                        {2, 5, 1, 0, "13-4", base + "5 Spieler\r\n" + second + points},
                        {3, 2, 0, 1, "2-5-", expansion + "2 Spieler\r\n" + scenario + points},
                        {9, 4, 2, -1, "235-", expansion + "4 Spieler\r\n" + second + scenario + points}};
  game.WinPoints = 13;
  for (const Case& c : cases) {
    game.GameType = c.GameType;
    game.NumPlayers = c.Players;
    game.OptFlottillen = core::CheckValue(c.Flottillen);
    game.OptScenario = core::CheckValue(c.Scenario);
    Press('I', {.Control = true});
    ASSERT_TRUE(Locking(F6));
    EXPECT_EQ(F6.lblGameInfo.Caption.Get(), c.Summary);
    EXPECT_EQ(Pictures(), c.Pictures);
    Click(F6.cmdOK);
  }
}

TEST_F(GameInfoTest, EveryWayOutTakesBothTextsOverAsTheyStand) {
  const std::tuple<const char*, const char*, Act> rows[] = {{"Abend bei Zoë", "", [&] { Click(F6.cmdOK); }},
                                                            {"", "Runde 2", [&] { F6.PressCloseBox(); }},
                                                            {" a\"b,c ", "x", [&] { Key(F6, platform::kKeyEnter); }}};
  std::string before = game.GameTitle + "|" + game.GameInfo;
  for (const auto& [title, info, leave] : rows) {
    window.F1.ClickTool(window.F1.tbrMenu, 4);
    EXPECT_EQ(F6.Caption.Get(), "Spiel-Info");
    EXPECT_EQ(F6.Focus(), &F6.txtSpieltitel) << "wherever it was when the dialog was left";
    EXPECT_EQ(F6.txtSpieltitel.Text.Get() + "|" + F6.txtSpielinfo.Text.Get(), before);
    F6.Type(F6.txtSpieltitel, title);
    F6.Type(F6.txtSpielinfo, info);
    EXPECT_EQ(game.GameTitle + "|" + game.GameInfo, before);
    Key(F6, platform::kKeyEscape);
    leave();
    EXPECT_TRUE(Closed(F6));
    before = std::string(title) + "|" + info;
    EXPECT_EQ(game.GameTitle + "|" + game.GameInfo, before);
  }
}

}  // namespace
}  // namespace tests
