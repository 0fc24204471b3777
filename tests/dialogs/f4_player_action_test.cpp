// What a player has done, reported by two keys or by a click: which key does what, and how the dialog closes.
#include "../../core/points.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using platform::FunctionKey;

struct PlayerActionTest : MainWindowTest {
  dialogs::F4& F4 = window.F4;
  core::TPlayer& ben = game.Players[2];

  /// Opens the dialog for seat 2, who holds these pieces.
  void OpenFor(std::int16_t gameType, std::int16_t settlements = 2, std::int16_t cities = 1) {
    game.GameType = gameType;
    ben = {.Name = "Ben", .Settlements = settlements, .Cities = cities, .Active = true};
    core::CalcPoints(game, window);
    Press(FunctionKey(2));
    ASSERT_TRUE(F4.Visible && !window.F1.Enabled);
    EXPECT_EQ(F4.Caption.Get(), "Wähle Aktion für Ben (Spieler 2)");
  }
  void Report(char key, bool byKey) {
    byKey ? Type(std::string(1, key)) : Click(F4.cmdSP(key == '0' ? 10 : key - '0'));
  }
  bool Closed() const { return !F4.Visible && window.F1.Enabled; }
  /// "2/1/0" for settlements, cities and bonus points, with a letter for each title, and the points.
  std::string Holdings() const {
    std::string text =
        std::to_string(ben.Settlements) + "/" + std::to_string(ben.Cities) + "/" + std::to_string(ben.BonusPoints);
    const std::pair<bool, const char*> titles[] = {{ben.LongestRoad, "R"},        {ben.LargestArmy, "A"},
                                                   {ben.PoliticsMetropolis, "P"}, {ben.TradeMetropolis, "T"},
                                                   {ben.ScienceMetropolis, "S"},  {ben.Merchant, "M"}};
    for (const auto& [held, letter] : titles) text += held ? letter : "";
    return text + "=" + std::to_string(game.PlayerPoints[2]);
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
    for (const bool base : {true, false}) {
      SCOPED_TRACE(std::string(1, key) + (base ? " in the base game" : " in the expansion"));
      const std::string& expected = base ? inBase : inExpansion;
      for (const bool byKey : {true, false}) {
        OpenFor(base ? core::kBaseGame : core::kFirstExpansion);
        Report(key, byKey);
        EXPECT_EQ(Holdings(), expected);
        EXPECT_EQ(Closed(), byKey || expected != none) << "a disabled button takes no click";
        Press(platform::kKeyEscape);
      }
    }
  }
}

TEST_F(PlayerActionTest, EveryOtherKeyClosesWithoutActionAndLeavingLetsThePointsBe) {
  const std::tuple<const char*, std::function<void()>, bool> cases[] = {
      {"Tab", [&] { Press(platform::kKeyTab); }, true},
      {"Space on a button", [&] { F4.SetFocus(F4.cmdSP(1)), Press(platform::kKeySpace); }, true},
      {"Enter on a button", [&] { F4.SetFocus(F4.cmdSP(1)), Press(platform::kKeyEnter); }, true},
      {"letter", [&] { Type("A"); }, true},
      {"number pad", [&] { Press(platform::kKeyNumberPad0 + 1); }, true},
      {"modifier", [&] { Press(platform::kKeyShift, {.Shift = true}); }, true},
      {"Esc", [&] { Press(platform::kKeyEscape); }, false},
      {"button", [&] { Click(F4.cmdNix); }, false},
      {"close box", [&] { F4.PressCloseBox(); }, false}};
  for (const auto& [what, act, recalculates] : cases) {
    SCOPED_TRACE(what);
    OpenFor(core::kBaseGame);
    game.PlayerPoints[2] = 50;
    act();
    EXPECT_TRUE(Closed());
    EXPECT_EQ(Holdings(), recalculates ? "2/1/0=4" : "2/1/0=50");
  }
}

TEST_F(PlayerActionTest, RefusalsTellThePlayerAndCloseAllTheSame) {
  struct Case {
    char Key;
    std::int16_t Settlements, Cities;
    const char *Text, *Title;
  };
  const Case cases[] = {
      {'1', 5, 1, "Ben hat bereits alle fünf Siedlungen gebaut", "hat keine Spielfigur dieser Art mehr übrig"},
      {'2', 0, 4, "Ben hat keine Siedlung, die zur Stadt ausgebaut werden kann", "Stadtausbau nicht möglich"},
      {'2', 1, 4, "Ben hat keine Spielfigur dieser Art mehr übrig", "Stadtausbau nicht möglich"},
      {'0', 2, 0, "Ben hat keine Stadt, die verwüstet werden kann", "Keine Stadt vorhanden"}};
  for (const Case& c : cases) {
    for (const bool byKey : {true, false}) {
      services.Boxes.clear();
      OpenFor(core::kFirstExpansion, c.Settlements, c.Cities);
      const core::TPlayer before = ben;
      Report(c.Key, byKey);
      const ScriptedServices::Box box{c.Text, c.Title, platform::Buttons::Ok, platform::Icon::None};
      EXPECT_THAT(services.Boxes, testing::ElementsAre(box));
      EXPECT_TRUE(Closed() && ben == before) << c.Text;
    }
  }
}

TEST_F(PlayerActionTest, WinLocksTheMainWindowAgainWhileTheDialogHides) {
  for (const bool byKey : {true, false}) {
    game.WinPoints = 10;
    OpenFor(core::kBaseGame);
    game.WinPoints = 5;
    Report('1', byKey);
    EXPECT_TRUE(!F4.Visible && !window.F1.Enabled && window.F9.Visible);
    Click(window.F9.cmdOK);
  }
}

}  // namespace
}  // namespace tests
