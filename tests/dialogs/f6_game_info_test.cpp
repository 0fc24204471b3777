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
  const std::string base = "Basisspiel\r\n", expansion = "Erweiterung „Burgen und Wächter“\r\n",
                    second = "Erweiterung „Flottillen“\r\n", scenario = "Dies ist ein Szenario\r\n",
                    points = "Siegbedingung: 13 Siegpunkte";
  // Kind of game, players, the two options.
  const std::tuple<std::int16_t, std::int16_t, std::int16_t, std::int16_t, const char*, std::string> cases[] = {
      {3, 6, 1, 1, "2354", expansion + "6 Spieler\r\n" + second + scenario + points},
      {2, 4, 0, 0, "1---", base + "4 Spieler\r\n" + points},
      {2, 5, 1, 0, "13-4", base + "5 Spieler\r\n" + second + points},
      {3, 2, 0, 1, "2-5-", expansion + "2 Spieler\r\n" + scenario + points},
      {9, 4, 2, -1, "235-", expansion + "4 Spieler\r\n" + second + scenario + points}};
  game.WinPoints = 13;
  for (const auto& [gameType, players, flottillen, isScenario, pictures, summary] : cases) {
    game.GameType = gameType;
    game.NumPlayers = players;
    game.OptFlottillen = core::CheckValue(flottillen);
    game.OptScenario = core::CheckValue(isScenario);
    Press('I', {.Control = true});
    ASSERT_TRUE(Locking(F6));
    EXPECT_EQ(F6.lblGameInfo.Caption.Get(), summary);
    EXPECT_EQ(Pictures(), pictures);
    Click(F6.cmdOK);
  }
}

TEST_F(GameInfoTest, LeavingTakesBothTextsOverAsTheyStand) {
  std::pair<std::string, std::string> before(game.GameTitle, game.GameInfo);
  for (const auto& texts : {std::pair<std::string, std::string>("Abend bei Zoë", ""), {" a\"b,c ", "Runde 2"}}) {
    window.F1.ClickTool(window.F1.tbrMenu, 4);
    EXPECT_EQ(F6.Caption.Get(), "Spiel-Info");
    EXPECT_EQ(F6.Focus(), &F6.txtSpieltitel) << "wherever it was when the dialog was left";
    EXPECT_EQ(std::pair(F6.txtSpieltitel.Text.Get(), F6.txtSpielinfo.Text.Get()), before);
    F6.Type(F6.txtSpieltitel, texts.first);
    F6.Type(F6.txtSpielinfo, texts.second);
    Key(F6, platform::kKeyEscape);
    EXPECT_EQ(std::pair(game.GameTitle, game.GameInfo), before);
    texts.second.empty() ? Click(F6.cmdOK) : F6.PressCloseBox();
    before = texts;
    EXPECT_EQ(std::pair(game.GameTitle, game.GameInfo), before);
  }
}

}  // namespace
}  // namespace tests
