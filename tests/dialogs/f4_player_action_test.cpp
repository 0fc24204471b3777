// What a player has done, reported by two keys or by a click: which key does what, and how the dialog closes.
#include "../../core/points.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

struct PlayerActionTest : MainWindowTest {
  dialogs::F4& F4 = window.F4;
  core::TPlayer& ben = game.Players[2];

  /// Opens the dialog for seat 2, who holds these pieces.
  void OpenFor(std::int16_t gameType, std::int16_t settlements = 2, std::int16_t cities = 1) {
    game.GameType = gameType;
    ben = {.Name = "Ben", .Settlements = settlements, .Cities = cities, .Active = true};
    core::CalcPoints(game, window);
    Press(platform::FunctionKey(2));
    ASSERT_TRUE(Locking(F4));
    EXPECT_EQ(F4.Caption.Get(), "Aktion wählen für Ben (Spieler 2)");
  }
  void Report(char key, bool byKey) {
    byKey ? Type(std::string(1, key)) : Click(F4.cmdSP(key == '0' ? 10 : key - '0'));
  }
  /// "2/1/0" for settlements, cities and bonus points, with a letter for each title, and the points.
  std::string Holdings() const {
    std::ostringstream text;
    text << ben.Settlements << "/" << ben.Cities << "/" << ben.BonusPoints << (ben.LongestRoad ? "R" : "")
         << (ben.LargestArmy ? "A" : "") << (ben.PoliticsMetropolis ? "P" : "") << (ben.TradeMetropolis ? "T" : "")
         << (ben.ScienceMetropolis ? "S" : "") << (ben.Merchant ? "M" : "") << "=" << game.PlayerPoints[2];
    return text.str();
  }
};

TEST_F(PlayerActionTest, KeysAndButtonsReportWhatTheKindOfGameOffers) {
  const std::string none = "2/1/0=4";
  const std::tuple<char, std::string, std::string> cases[] = {
      {'1', "3/1/0=5", "3/1/0=5"},   {'2', "1/2/0=5", "1/2/0=5"}, {'3', "2/1/1=5", "2/1/1=5"},
      {'4', "2/1/0R=6", "2/1/0R=6"}, {'5', "2/1/0A=6", none},     {'6', none, "2/1/0P=6"},
      {'7', none, "2/1/0T=6"},       {'8', none, "2/1/0S=6"},     {'9', none, "2/1/0M=5"},
      {'0', none, "3/0/0=3"}};
  for (const auto& [key, inBase, inExpansion] : cases) {
    for (const auto& [gameType, expected] :
         {std::pair(core::kBaseGame, inBase), {core::kFirstExpansion, inExpansion}}) {
      for (const bool byKey : {true, false}) {
        OpenFor(gameType);
        Report(key, byKey);
        EXPECT_EQ(Holdings(), expected) << key << " in a game of kind " << gameType;
        EXPECT_EQ(Closed(F4), byKey || expected != none) << "a disabled button takes no click";
        Press(platform::kKeyEscape);
      }
    }
  }
}

TEST_F(PlayerActionTest, EveryOtherKeyClosesWithoutActionAndLeavingLetsThePointsBe) {
  const std::tuple<const char*, Act, bool> cases[] = {
      {"Tab", [&] { Press(platform::kKeyTab); }, true},
      {"Space on a button", [&] { F4.SetFocus(F4.cmdSP(1)), Press(platform::kKeySpace); }, true},
      {"number pad", [&] { Press(platform::kKeyNumberPad0 + 1); }, true},
      {"Esc", [&] { Press(platform::kKeyEscape); }, false},
      {"close box", [&] { F4.PressCloseBox(); }, false}};
  for (const auto& [what, act, recalculates] : cases) {
    OpenFor(core::kBaseGame);
    game.PlayerPoints[2] = 50;
    act();
    EXPECT_TRUE(Closed(F4)) << what;
    EXPECT_EQ(Holdings(), recalculates ? "2/1/0=4" : "2/1/0=50") << what;
  }
}

TEST_F(PlayerActionTest, RefusalIsToldAndAWinLocksTheMainWindowAgain) {
  for (const bool byKey : {true, false}) {
    services.Boxes.clear();
    OpenFor(core::kFirstExpansion, 1, 4);
    Report('2', byKey);
    EXPECT_THAT(services.Boxes, testing::ElementsAre(ScriptedServices::Box{
                                    "Ben hat keine Spielfigur dieser Art mehr", "Stadtausbau nicht möglich",
                                    platform::Buttons::Ok, platform::Icon::None}));
    EXPECT_TRUE(Closed(F4));
    EXPECT_EQ(Holdings(), "1/4/0=9");
    OpenFor(core::kBaseGame);
    game.WinPoints = 5;
    Report('1', byKey);
    EXPECT_TRUE(!F4.Visible && Locking(window.F9));
    Click(window.F9.cmdOK);
    game.WinPoints = 10;
  }
}

}  // namespace
}  // namespace tests
