// What a player has done, reported by a key or a click, and a record corrected by hand.
#include "../../core/player_actions.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

struct PlayerActionTest : MainWindowTest {
  dialogs::F4& F4 = window.F4;

  /// Opens the dialog for seat 2, who holds these pieces.
  void OpenFor(std::int16_t gameType, std::int16_t settlements = 2, std::int16_t cities = 1) {
    game.GameType = gameType;
    game.Players[2] = {.Name = "Ben", .Settlements = settlements, .Cities = cities, .Active = true};
    core::CalcPoints(window.State, window);
    Press(platform::FunctionKey(2));
    ASSERT_TRUE(Locking(F4));
  }
  void Report(int action, bool byKey) { byKey ? Press('0' + action % 10) : Click(F4.cmdSP(action)); }
};

TEST_F(PlayerActionTest, EachKeyAndButtonReportsItsActionWhereTheKindOfGameOffersIt) {
  for (const std::int16_t gameType : {core::kBaseGame, core::kFirstExpansion}) {
    for (int action = 1; action <= 10; ++action) {
      for (const bool byKey : {true, false}) {
        OpenFor(gameType);
        core::Game expected = game;
        core::Figures points;
        const bool offered = core::ActionOffered(gameType, action);
        if (offered)
          core::ApplyPlayerAction(
              expected, {.CurrentPlayer = asked.CurrentPlayer, .ActionCode = static_cast<std::int16_t>(action)});
        core::ComputePoints(expected, points);
        Report(action, byKey);
        EXPECT_EQ(game.Players, expected.Players) << action << " in a game of kind " << gameType;
        EXPECT_EQ(figures.PlayerPoints, points.PlayerPoints);
        EXPECT_EQ(Closed(F4), byKey || offered) << "a disabled button takes no click";
        LeaveAll();
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
    figures.PlayerPoints[2] = 50;
    act();
    EXPECT_TRUE(Closed(F4) && game.Players[2].Settlements == 2) << what;
    EXPECT_EQ(figures.PlayerPoints[2], recalculates ? 4 : 50) << what;
  }
}

TEST_F(PlayerActionTest, ARefusalIsToldAndAWinLocksTheMainWindowAgain) {
  for (const bool byKey : {true, false}) {
    OpenFor(core::kFirstExpansion, 1, 4);
    Report(2, byKey);
    EXPECT_EQ(services.Boxes.back(),
              (ScriptedServices::Box{"Ben T59", "T60", platform::Buttons::Ok, platform::Icon::None}));
    EXPECT_TRUE(Closed(F4));
    OpenFor(core::kBaseGame);
    game.WinPoints = 5;
    Report(1, byKey);
    EXPECT_TRUE(!F4.Visible && Locking(window.F9));
    Click(window.F9.cmdOK);
    game.WinPoints = 10;
  }
}

struct PlayerDataTest : MainWindowTest {
  dialogs::F5& F5 = window.F5;
  core::TPlayer& ada = game.Players[1];

  PlayerDataTest() { ada.Name = "Ada"; }
  void Open() {
    Press(platform::FunctionKey(1), kShift);
    EXPECT_EQ(F5.Focus(), &F5.txtData(0)) << "wherever it was when the dialog was left";
  }
  /// What a row shows and what the record holds.
  std::string InRow(int row) {
    const int number = row == 1 ? ada.Settlements : row == 2 ? ada.Cities : ada.BonusPoints;
    return F5.txtData(row).Text.Get() + " " + std::to_string(number);
  }
  /// Types into a field and lets a key go there that moves nothing.
  void Enter(int row, const std::string& text) {
    F5.SetFocus(F5.txtData(row));
    F5.Type(F5.txtData(row), text);
    Key(F5, platform::kKeyRight);
  }
};

TEST_F(PlayerDataTest, NumbersAreTakenAsTheyAreTypedAndButtonsStepToTheirBound) {
  Open();
  const std::tuple<int, const char*, char, const char*> rows[] = {
      {1, "7", ' ', "7 7"},    {1, "", ' ', "2 2"},      {2, "3.5", ' ', "3.5 4"}, {2, "x", ' ', "0 0"},
      {8, "-3", ' ', "-3 -3"}, {8, "40000", ' ', "0 0"}, {1, "4", '+', "5 5"},     {1, "9", '+', "5 5"},
      {1, "9", '-', "8 8"},    {1, "0", '-', "0 0"},     {1, "-3", '-', "0 0"},    {1, "-3", '+', "-2 -2"},
      {2, "4", '+', "4 4"},    {8, "98", '+', "99 99"},  {8, "99", '+', "99 99"}};
  for (const auto& [row, typed, button, holds] : rows) {
    Enter(row, typed);
    if (button != ' ') Click(button == '+' ? F5.cmdPlus(row - 1) : F5.cmdMinus(row - 1));
    EXPECT_EQ(InRow(row), holds) << typed << ", " << button;
  }
  for (const auto& [row, pasted] : {std::pair(0, "Zoë "), {1, "5"}, {1, "-"}}) F5.Type(F5.txtData(row), pasted);
  EXPECT_EQ(ada.Name + InRow(1), "Zoë - 5") << "without a key; a sign is no number yet";
}

TEST_F(PlayerDataTest, AFlagTurnsOverAtAnyKeyAndAtBothButtonsForThisPlayerAlone) {
  const std::pair<int, bool core::TPlayer::*> flags[] = {
      {3, &core::TPlayer::LongestRoad},        {4, &core::TPlayer::LargestArmy},
      {5, &core::TPlayer::PoliticsMetropolis}, {6, &core::TPlayer::TradeMetropolis},
      {7, &core::TPlayer::ScienceMetropolis},  {9, &core::TPlayer::Merchant}};
  game.WinPoints = 30;
  for (const auto& [row, flag] : flags) {
    game.GameType = row == 4 ? core::kBaseGame : core::kFirstExpansion;
    game.Players[2].*flag = true;
    Open();
    core::TPlayer expected = ada;
    const Act acts[] = {[&, at = row] { Enter(at, "x"); }, [&, at = row] { Click(F5.cmdPlus(at - 1)); },
                        [&, at = row] { Click(F5.cmdMinus(at - 1)); }};
    for (const Act& act : acts) {
      act();
      expected.*flag = !(expected.*flag);
      EXPECT_EQ(ada, expected) << row;
      EXPECT_EQ(F5.txtData(row).Text.Get(), expected.*flag ? "T64" : "T65");
    }
    EXPECT_TRUE(game.Players[2].*flag);
    Click(F5.cmdOK);
  }
}

TEST_F(PlayerDataTest, LeavingCountsThePoints) {
  Open();
  Enter(8, "10");
  EXPECT_EQ(figures.PlayerPoints[1], 2);
  Click(F5.cmdOK);
  EXPECT_TRUE(!F5.Visible && Locking(window.F9)) << "the points to win are reached";
}

}  // namespace
}  // namespace tests
