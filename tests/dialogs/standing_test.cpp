// The standing: its headline, its two views, players of one name, and kinds of game that only a file can bring.
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

struct StandingTest : MainWindowTest {
  dialogs::F9& F9 = window.F9;

  /// Two players, of whom the first leads; a third, who does not play, has more than both.
  StandingTest() {
    game.NumPlayers = 2;
    game.WinPoints = 20;
    game.Players[1] = {.Name = "Ada", .Settlements = 5, .Cities = 1, .Active = true};
    game.Players[2] = {.Name = "Ben", .LargestArmy = true, .Active = true};
    game.Players[3] = {.Name = "Dan", .Settlements = 20};
  }
};

TEST_F(StandingTest, HeadlineNamesTheWinnerUntilTheStandingIsAskedFor) {
  for (const bool won : {true, false, true}) {
    won ? core::CalcPoints(window.State, window) : Press('T', kCtrl);
    EXPECT_TRUE(Locking(F9) && asked.GameWon == won);
    Click(F9.optWinOrder(0));  // the view changes no headline
    EXPECT_EQ(F9.lblSiegertext.Caption.Get(), won ? "Ada T88" : "T87");
    Key(F9, platform::kKeyEnter);
  }
}

TEST_F(StandingTest, OptionChangesTheViewByMouseAndByKeyboard) {
  const auto key = [&](int view, int code) { F9.SetFocus(F9.optWinOrder(view)), Key(F9, code); };
  const std::tuple<const char*, Act, core::CheckValue> cases[] = {
      {"mouse", [&] { Click(F9.optWinOrder(0)); }, core::kOff},
      {"Space", [&] { key(1, platform::kKeySpace); }, core::kOn},
      {"arrow", [&] { key(1, platform::kKeyDown); }, core::kOff},
      {"right button", [&] { F9.MouseUp(F9.optWinOrder(0), platform::MouseButton::Right); }, core::kOff}};
  Press('T', kCtrl);
  for (const auto& [what, act, view] : cases) {
    act();
    EXPECT_TRUE(settings.SiegAnzeige == view && F9.optWinOrder(view.IsOn() ? 1 : 0).Value) << what;
    const char* cities = view.IsOff() ? "278,1 '2' 12 000000 on FFEABE" : "278,1 '1' 12 000000 on FFEABE";
    EXPECT_THAT(Drawn(F9.picRanking.Drawing), testing::Contains(cities)) << what;
  }
}

}  // namespace
}  // namespace tests
