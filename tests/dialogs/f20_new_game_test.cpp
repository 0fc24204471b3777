// Setting up a new game: what the dialog shows, what cancelling leaves, and how the main window follows a start.
#include "../main_window_fixture.h"

namespace tests {
namespace {

using testing::ElementsAre;

struct NewGameTest : MainWindowTest {
  dialogs::F20& F20 = window.F20;

  void Open() {
    Press('N', {.Control = true});
    ASSERT_TRUE(Locking(F20));
  }
  static void Clicks(int times, platform::Control& control) {
    for (int i = 0; i < times; ++i) Click(control);
  }
  /// Points to win and players.
  std::string Shown() const { return F20.txtneuSPBed.Text.Get() + "/" + F20.txtNOP.Text.Get(); }
  std::vector<int> Rules() {
    return {game.GameType, game.NumPlayers, game.WinPoints, game.OptFlottillen.Value, game.OptScenario.Value, Rolls()};
  }
};

TEST_F(NewGameTest, ClicksStayInTheirBoundsAndCancelLeavesTheRunningGame) {
  Type("43\r");
  game.Players[6].Name = "Zoë";
  const auto players = game.Players;
  Open();
  const std::tuple<int, platform::Control*, const char*> clicks[] = {
      {1, &F20.cmdA(1), "11/4"}, {1, &F20.chkFlo, "10/4"},  {1, &F20.optB, "13/4"},    {5, &F20.cmdA(1), "18/4"},
      {1, &F20.chkSzen, "13/4"}, {1, &F20.chkFlo, "13/4"},  {12, &F20.cmdA(0), "2/4"}, {98, &F20.cmdA(1), "99/4"},
      {1, &F20.cmdB(1), "99/5"}, {2, &F20.cmdB(1), "99/6"}, {2, &F20.cmdB(0), "99/4"}, {3, &F20.cmdB(0), "99/2"},
      {1, &F20.optA, "10/2"}};
  for (const auto& [times, control, shown] : clicks) {
    Clicks(times, *control);
    EXPECT_EQ(Shown(), shown) << control->Name;
    const int count = std::stoi(F20.txtNOP.Text.Get());
    for (int i = 0; i < 6; ++i) EXPECT_EQ(F20.txtSpielername(i).Visible, i < count);
  }
  EXPECT_EQ(F20.txtSpielername(5).Text.Get(), "Zoë") << "a hidden field keeps its name";
  F20.Type(F20.txtSpielername(0), "Eve");
  Press(platform::kKeyEscape);
  EXPECT_TRUE(Closed(F20) && game.Players == players && game.GameTitle.empty());
  EXPECT_THAT(Rules(), ElementsAre(2, 4, 10, 0, 0, 1));
}

TEST_F(NewGameTest, StartTakesEveryFieldAndTheMainWindowFollows) {
  Type("43\r");
  game.Players[4].Name = "kept";
  Open();
  Click(F20.optB);
  F20.Type(F20.txtSpielername(0), "Ada");
  F20.Type(F20.txtSpielername(3), "edited, then hidden");
  F20.Type(F20.txtSpieltitel, "title");
  F20.Type(F20.txtSpielinfo, "info");
  Click(F20.cmdB(0));
  Click(F20.chkSzen);
  Click(F20.cmdA(0));
  Click(F20.cmdStart);
  EXPECT_TRUE(Closed(F20));
  EXPECT_EQ(game.Players[1].Name + game.Players[4].Name + game.GameTitle + game.GameInfo, "Adakepttitleinfo");
  EXPECT_THAT(Rules(), ElementsAre(3, 3, 12, 0, 1, 0));
  EXPECT_TRUE(window.F1.picSP(2).Visible && !window.F1.picSP(3).Visible && window.F4.cmdSP(10).Enabled);
  Open();
  Click(F20.optA);
  Clicks(8, F20.cmdA(0));
  Click(F20.cmdStart);
  EXPECT_TRUE(!F20.Visible && Locking(window.F9)) << "all have the points at the start";
}

}  // namespace
}  // namespace tests
