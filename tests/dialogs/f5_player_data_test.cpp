// A record corrected by hand: what each key and button does to it, which rows are seen, how the dialog is left.
#include "../main_window_fixture.h"

namespace tests {
namespace {

struct PlayerDataTest : MainWindowTest {
  dialogs::F5& F5 = window.F5;
  core::TPlayer& ada = game.Players[1];

  PlayerDataTest() { ada.Name = "Ada"; }
  void Open(int seat = 1) {
    Press(platform::FunctionKey(seat), {.Shift = true});
    EXPECT_EQ(F5.Focus(), &F5.txtData(0)) << "wherever it was when the dialog was left";
  }
  std::string Shown(int row) const { return F5.txtData(row).Text; }
  int Number(int row) const { return row == 1 ? ada.Settlements : row == 2 ? ada.Cities : ada.BonusPoints; }
  /// Types into a field and lets a key go there that moves nothing.
  void Enter(int row, const std::string& text) {
    F5.SetFocus(F5.txtData(row));
    F5.Type(F5.txtData(row), text);
    Key(F5, platform::kKeyRight);
  }
};

TEST_F(PlayerDataTest, NumbersAreTakenAtEachKeyWithinSixteenBits) {
  Open();
  const std::tuple<int, const char*, const char*, int> rows[] = {
      {1, "7", "7", 7},      {1, "-3", "-3", -3},     {1, "", "2", 2},
      {1, "40000", "2", 2},  {2, "3.5", "3.5", 4},    {2, "x", "0", 0},
      {2, "2,5", "2,5", 2},  {2, "32768", "0", 0},    {8, "32767", "32767", 32767},
      {8, "-32769", "0", 0}, {8, "12 Punkte", "0", 0}};
  for (const auto& [row, typed, shown, value] : rows) {
    Enter(row, typed);
    EXPECT_EQ(std::pair(Shown(row), Number(row)), std::pair(std::string(shown), value)) << typed;
  }
  F5.Type(F5.txtData(0), "Zoë ");
  EXPECT_EQ(ada.Name, "Ada") << "pasted, and no key let go yet";
  Enter(0, "Zoë ");
  EXPECT_EQ(ada.Name, "Zoë ");
}

TEST_F(PlayerDataTest, ButtonsStepToTheirBoundAndBringTypedNumbersBackOnlyOnTheirOwnSide) {
  Open();
  const std::tuple<int, const char*, char, const char*> rows[] = {
      {1, "4", '+', "5"},   {1, "5", '+', "5"},   {1, "9", '+', "5"},      {1, "9", '-', "8"},     {1, "0", '-', "0"},
      {1, "-3", '-', "0"},  {1, "-3", '+', "-2"}, {2, "3", '+', "4"},      {2, "4", '+', "4"},     {2, "2", '-', "1"},
      {8, "98", '+', "99"}, {8, "99", '+', "99"}, {8, "32767", '+', "99"}, {8, "-32768", '-', "0"}};
  for (const auto& [row, typed, button, shown] : rows) {
    Enter(row, typed);
    Click(button == '+' ? F5.cmdPlus(row - 1) : F5.cmdMinus(row - 1));
    EXPECT_EQ(Shown(row) + std::to_string(Number(row)), shown + std::string(shown)) << typed << ", " << button;
  }
}

TEST_F(PlayerDataTest, AFlagTurnsOverAtAnyKeyAndAtBothButtonsForThisPlayerAlone) {
  const std::tuple<int, bool core::TPlayer::*, std::int16_t> flags[] = {
      {3, &core::TPlayer::LongestRoad, 2},        {4, &core::TPlayer::LargestArmy, 2},
      {5, &core::TPlayer::PoliticsMetropolis, 3}, {6, &core::TPlayer::TradeMetropolis, 3},
      {7, &core::TPlayer::ScienceMetropolis, 3},  {9, &core::TPlayer::Merchant, 3}};
  game.WinPoints = 30;
  for (const auto& [row, field, gameType] : flags) {
    game.GameType = gameType;
    game.Players[2].*field = true;
    Open();
    core::TPlayer expected = ada;
    for (int turn = 0; turn < 4; ++turn) {
      turn == 0   ? Enter(row, "Ja")
      : turn == 1 ? Key(F5, platform::kKeyShift)
                  : Click(turn == 2 ? F5.cmdPlus(row - 1) : F5.cmdMinus(row - 1));
      expected.*field = turn % 2 == 0;
      EXPECT_EQ(Shown(row), turn % 2 == 0 ? "Ja" : "Nein");
      EXPECT_EQ(ada, expected) << row;
    }
    EXPECT_TRUE(game.Players[2].*field);
    Click(F5.cmdOK);
  }
}

TEST_F(PlayerDataTest, TabTurnsEachFlagOnWhichItLands) {
  Open();
  for (int i = 0; i < 4; ++i) Key(F5, platform::kKeyTab);
  EXPECT_TRUE(ada.LongestRoad && ada.LargestArmy && F5.Focus() == &F5.txtData(4));
  Key(F5, platform::kKeyTab);
  EXPECT_EQ(F5.Focus(), &F5.txtData(8)) << "the rows between are hidden";
  Key(F5, platform::kKeyTab, {.Shift = true});
  EXPECT_TRUE(ada.LongestRoad && !ada.LargestArmy && !ada.PoliticsMetropolis);
}

TEST_F(PlayerDataTest, RowsFollowTheKindOfGameAndAnInactiveSeatIsShownToo) {
  game.WinPoints = 30;
  game.Players[6] = {.Name = "Zoë", .Settlements = 3, .Cities = 1, .PoliticsMetropolis = true, .BonusPoints = 8};
  for (const auto& [gameType, expected] :
       {std::pair(2, "01=2=3=4=8="), {3, "01=2=3=5=6=7=8=9="}, {7, "01=2=3=5=6=7=8=9="}}) {
    game.GameType = static_cast<std::int16_t>(gameType);
    Open(6);
    EXPECT_EQ(F5.Caption.Get(), "Spielerdaten Zoë (Spieler6)");
    std::string shown, values;
    for (int row = 0; row < 10; ++row) {
      if (F5.lblData(row).Visible && F5.txtData(row).Visible) shown += std::to_string(row);
      if (row > 0 && F5.cmdMinus(row - 1).Visible && F5.cmdPlus(row - 1).Visible && F5.picSymbol(row - 1).Visible)
        shown += "=";
      values += Shown(row) + " ";
    }
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(values, "Zoë 3 1 Nein Nein Ja Nein Nein 8 Nein ") << "hidden rows are filled too";
    Click(F5.cmdOK);
  }
}

TEST_F(PlayerDataTest, LeavingCountsThePoints) {
  Open();
  Enter(8, "10");
  EXPECT_EQ(game.PlayerPoints[1], 2);
  Click(F5.cmdOK);
  EXPECT_TRUE(!F5.Visible && Locking(window.F9)) << "the points to win are reached";
}

}  // namespace
}  // namespace tests
