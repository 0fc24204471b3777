// The barbarians: whose rows stand in grey, what the totals read, and the lock of the main window by kind of roll.
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

struct AttackTest : MainWindowTest {
  dialogs::F11& F11 = window.F11;

  void SetUp() override {
    MainWindowTest::SetUp();
    PlayExpansion();
    game.NumPlayers = 3;
    game.Players[1] = {.Name = "Ada", .Settlements = 2, .Cities = 3, .TradeMetropolis = true};
    game.Players[2] = {
        .Name = "Ben", .Settlements = 1, .Cities = 2, .PoliticsMetropolis = true, .ScienceMetropolis = true};
    game.Players[3] = {.Name = "Cy", .Settlements = 12, .PoliticsMetropolis = true, .TradeMetropolis = true};
    game.Players[4] = {.Name = "Dan", .Settlements = 5, .Cities = 4, .Active = true};
  }
  /// The seventh ship, entered or rolled by the program.
  void Attack(bool byDialog) {
    game.EventCount[4] = 6;
    services.RandomNumbers = {0, 0, 0.99};
    byDialog ? Type("43B") : Press(platform::FunctionKey(9));
  }
};

TEST_F(AttackTest, RowsAndTotalsTellWhoHasACityToLose) {
  struct Case {
    std::int16_t LastCities;  // of the last row, whose colour line and totals keep
    const char *Ink, *Total;
  };
  const Case cases[] = {{1, "000000", "167,110 '6/'"},
                        {2, "828282", "167,110 '7/'"},
                        {4, "000000", "167,110 '9/'"},
                        {5, "000000", "153,110 '10/'"},
                        {0, "828282", "167,110 '5/'"}};
  for (const Case& c : cases) {
    game.Players[3].Cities = c.LastCities;
    Attack(false);  // over the window of the attack before
    const std::string last = std::string(" 12+ ") + c.Ink, cities = std::to_string(c.LastCities);
    EXPECT_EQ(Drawn(F11.picShowPlayers.Drawing),
              (std::vector<std::string>{
                  "1,0 'Ada' 12+ 000000", "167,0 '3/' 12+ 000000", "187,0 '1' 12+ 000000", "215,0 '2' 12+ 000000",
                  "1,18 'Ben' 12+ 828282", "167,18 '2/' 12+ 828282", "187,18 '2' 12+ 828282", "215,18 '1' 12+ 828282",
                  "1,36 'Cy'" + last, "167,36 '" + cities + "/'" + last, "187,36 '2'" + last, "215,36 '12'" + last,
                  std::string("1,108-243,108 ") + c.Ink, c.Total + last, "187,110 '5'" + last, "215,110 '15'" + last}));
  }
}

TEST_F(AttackTest, LockFollowsTheKindOfRollAndEveryWayOutUnlocks) {
  const std::function<void()> waysOut[] = {[&] { Click(F11.cmdOK); }, [&] { Key(F11, platform::kKeyEnter); },
                                           [&] { F11.PressCloseBox(); }};
  for (const auto& leave : waysOut) {
    for (const bool byDialog : {true, false}) {
      Attack(byDialog);
      EXPECT_TRUE(F11.Visible && !window.F7.Visible);
      EXPECT_EQ(window.F1.Enabled, !byDialog);
      leave();
      EXPECT_TRUE(!F11.Visible && window.F1.Enabled);
    }
  }
  window.State.settings.ShowBarbarians = false;
  Attack(true);
  EXPECT_TRUE(!F11.Visible && window.F1.Enabled) << "nobody wants to be told";
}

}  // namespace
}  // namespace tests
