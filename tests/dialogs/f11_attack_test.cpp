// The barbarians: whose rows stand in grey, what the totals read, and the lock of the main window by kind of roll.
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

struct AttackTest : MainWindowTest {
  dialogs::F11& F11 = window.F11;

  AttackTest() {
    PlayExpansion();
    game.NumPlayers = 2;
    game.Players[1] = {.Name = "Ada", .Settlements = 2, .Cities = 3, .TradeMetropolis = true};
    game.Players[2] = {.Name = "Cy", .Settlements = 12, .PoliticsMetropolis = true, .TradeMetropolis = true};
    game.Players[3] = {.Name = "Dan", .Settlements = 5, .Cities = 4, .Active = true};
  }
  /// The seventh ship, entered or rolled by the program.
  void Attack(bool byDialog) {
    game.EventCount[4] = 6;
    services.RandomNumbers = {0, 0, 0.99};
    byDialog ? Type("43B") : Press(platform::FunctionKey(9));
  }
};

TEST_F(AttackTest, RowsAndTotalsTellWhoHasACityToLose) {
  using Row = std::tuple<std::int16_t, std::string, const char*>;
  // The cities of the last row, whose colour line and totals keep.
  const Row rows[] = {{2, "828282", "167,110 '5/'"}, {7, "000000", "153,110 '10/'"}, {0, "828282", "167,110 '3/'"}};
  for (const auto& [cities, ink, total] : rows) {
    game.Players[2].Cities = cities;
    Attack(false);  // over the window of the attack before
    const std::string last = " 12+ " + ink;
    EXPECT_EQ(Drawn(F11.picShowPlayers.Drawing),
              (Lines{"1,0 'Ada' 12+ 000000", "167,0 '3/' 12+ 000000", "187,0 '1' 12+ 000000", "215,0 '2' 12+ 000000",
                     "1,18 'Cy'" + last, "167,18 '" + std::to_string(cities) + "/'" + last, "187,18 '2'" + last,
                     "215,18 '12'" + last, "1,108-243,108 " + ink, total + last, "187,110 '3'" + last,
                     "215,110 '14'" + last}));
  }
}

TEST_F(AttackTest, LockFollowsTheKindOfRoll) {
  for (const bool byDialog : {true, false}) {
    Attack(byDialog);
    EXPECT_TRUE(F11.Visible && !window.F7.Visible && window.F1.Enabled == !byDialog);
    Key(F11, platform::kKeyEnter);
    EXPECT_TRUE(Closed(F11));
  }
  settings.ShowBarbarians = false;
  Attack(true);
  EXPECT_TRUE(Closed(F11)) << "nobody wants to be told";
}

}  // namespace
}  // namespace tests
