// The game info with its two texts, and a new game: what the dialogs take over, and what the main window makes of it.
#include "../main_window_fixture.h"

namespace tests {
namespace {

TEST_F(MainWindowTest, GameInfoTakesBothTextsOverAsTheyStandWhenItIsLeft) {
  dialogs::F6& F6 = window.F6;
  std::pair<std::string, std::string> before(game.GameTitle, game.GameInfo);
  for (const auto& texts : {std::pair<std::string, std::string>("Abend bei Zoë", ""), {" a\"b,c ", "Runde 2"}}) {
    Press('I', kCtrl);
    EXPECT_EQ(F6.Focus(), &F6.Info.txtSpieltitel) << "wherever it was when the dialog was left";
    EXPECT_EQ(std::pair(F6.Info.txtSpieltitel.Text.Get(), F6.Info.txtSpielinfo.Text.Get()), before);
    F6.Type(F6.Info.txtSpielinfo, texts.second);
    F6.Type(F6.Info.txtSpieltitel, texts.first + "→");  // which no file holds
    Key(F6, platform::kKeyEscape);
    EXPECT_EQ(std::pair(game.GameTitle, game.GameInfo), before);
    F6.SetFocus(F6.cmdOK);
    texts.second.empty() ? Click(F6.cmdOK) : F6.PressCloseBox();
    before = texts;
    EXPECT_EQ(std::pair(game.GameTitle, game.GameInfo), before);
  }
}

struct NewGameTest : MainWindowTest {
  dialogs::F20& F20 = window.F20;

  static void Clicks(int times, platform::Control& control) {
    for (int i = 0; i < times; ++i) Click(control);
  }
  /// Points to win, and the players who have a field for their name.
  std::string Shown() const {
    int fields = 0;
    while (fields < 6 && F20.txtSpielername(fields).Visible) ++fields;
    EXPECT_EQ(F20.txtNOP.Text.Get(), std::to_string(fields));
    return F20.txtneuSPBed.Text.Get() + "/" + std::to_string(fields);
  }
  std::vector<int> Rules() {
    return {game.GameType, game.NumPlayers, game.WinPoints, game.OptFlottillen.Value, game.OptScenario.Value, Rolls()};
  }
};

TEST_F(NewGameTest, ClicksStayInTheirBoundsAndCancelLeavesTheRunningGame) {
  Type("43\r");
  game.Players[6].Name = "Zoë";
  const auto players = game.Players;
  Press('N', kCtrl);
  const std::tuple<int, platform::Control*, const char*> clicks[] = {
      {1, &F20.cmdA(1), "11/4"}, {1, &F20.chkFlo, "10/4"},  {1, &F20.optB, "13/4"},     {5, &F20.cmdA(1), "18/4"},
      {1, &F20.chkSzen, "13/4"}, {12, &F20.cmdA(0), "2/4"}, {98, &F20.cmdA(1), "99/4"}, {3, &F20.cmdB(1), "99/6"},
      {5, &F20.cmdB(0), "99/2"}, {1, &F20.optA, "10/2"},    {1, &F20.cmdA(1), "11/2"},  {1, &F20.optA, "10/2"}};
  for (const auto& [times, control, shown] : clicks) {
    Clicks(times, *control);
    EXPECT_EQ(Shown(), shown) << control->Name;
  }
  EXPECT_EQ(F20.txtSpielername(5).Text.Get(), "Zoë") << "a hidden field keeps its name";
  F20.Type(F20.txtSpielername(0), "Eve");
  Press(platform::kKeyEscape);
  EXPECT_TRUE(Closed(F20) && game.Players == players && game.GameTitle.empty());
  EXPECT_THAT(Rules(), testing::ElementsAre(2, 4, 10, 0, 0, 1));
}

TEST_F(NewGameTest, StartTakesEveryFieldAndTheMainWindowFollows) {
  Type("43\r");
  game.Players[4].Name = "kept";
  Press('N', kCtrl);
  Click(F20.optB);
  F20.Type(F20.txtSpielername(0), "Ada");
  F20.Type(F20.txtSpielername(3), "edited, then hidden");
  F20.Type(F20.Info.txtSpieltitel, "title");
  F20.Type(F20.Info.txtSpielinfo, "info");
  Click(F20.cmdB(0));
  Click(F20.chkSzen);
  Click(F20.cmdA(0));
  Click(F20.cmdStart);
  EXPECT_TRUE(Closed(F20) && services.ScreenAwake);
  EXPECT_EQ(game.Players[1].Name + game.Players[4].Name + game.GameTitle + game.GameInfo, "Adakepttitleinfo");
  EXPECT_THAT(Rules(), testing::ElementsAre(3, 3, 12, 0, 1, 0));
  EXPECT_TRUE(window.F1.picSP(2).Visible && !window.F1.picSP(3).Visible && window.F4.cmdSP(10).Enabled);
  EXPECT_EQ(Numbers(window.F1.picWurfel), "18 17 19");
  Press('N', kCtrl);
  Click(F20.optA);
  Clicks(8, F20.cmdA(0));
  Click(F20.cmdStart);
  EXPECT_TRUE(!F20.Visible && Locking(window.F9)) << "all have the points at the start";
}

TEST_F(NewGameTest, TheThemeIsThatOfTheNewGameUnlessTheUserChoosesIt) {
  const std::tuple<platform::Control*, core::CheckValue, const char*> cases[] = {
      {&F20.optB, core::kOn, "img/bw_back.jpg"},
      {&F20.chkFlo, core::kOn, "img/flo_back.jpg"},
      {&F20.chkFlo, core::kOn, "img/bw_back.jpg"},
      {&F20.optA, core::kOff, "img/bw_back.jpg"},
      {&F20.optA, core::kOn, "img/basis_back.jpg"}};
  for (const auto& [control, automatic, theme] : cases) {
    settings.AutoHG = automatic;
    Press('N', kCtrl);
    Click(*control);
    Click(F20.cmdStart);
    EXPECT_EQ(window.F1.Image.Get().Name, theme);
  }
}

}  // namespace
}  // namespace tests
