// The standing as it is drawn: ranks, points and what each player holds; its two views, its headline, its ways out.
#include "../../core/points.h"
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using testing::ElementsAre;

struct StandingTest : MainWindowTest {
  dialogs::F9& F9 = window.F9;

  /// Three players of whom the first and the third are equal; a fourth, who does not play, would lead.
  StandingTest() {
    game.NumPlayers = 3;
    game.WinPoints = 30;
    game.Players[1] = {.Name = "Ada", .Settlements = 5, .Cities = 1, .Merchant = true, .Active = true};
    game.Players[2] = {.Name = "Ben", .LargestArmy = true, .PoliticsMetropolis = true, .Active = true};
    game.Players[3] = {.Name = "Cy", .LongestRoad = true, .TradeMetropolis = true, .BonusPoints = 4, .Active = true};
    game.Players[4] = {.Name = "Dan", .Settlements = 20};
    core::CalcPoints(game, window);
  }
  /// Each row in one line: its place, the bold texts, then "x=text" for each cell, with "-" for the grey of not held.
  Lines Rows(std::int16_t gameType, core::CheckValue view) {
    game.GameType = gameType;
    settings.SiegAnzeige = view;
    F9.ShowStanding();
    Lines rows;
    for (const auto& step : F9.picRanking.Drawing.Steps()) {
      const auto& text = std::get<platform::TextStep>(step);
      const bool held = text.Ink == platform::kBlack;
      EXPECT_TRUE(text.Face.Size == 12 && (held || Hex(text.Ink) == "646464")) << text.Text;
      if (text.X == 6) rows.push_back(At(text.X, text.Y));
      rows.back() += " " + (text.Face.Bold ? "+" : Number(text.X) + "=") + text.Text + (held ? "" : "-");
    }
    return rows;
  }
  /// The numbers of the pictures over the columns that are seen.
  std::string Heads() const {
    std::string heads;
    for (int i = 0; i < 8; ++i) heads += F9.picSymbol(i).Visible ? F9.picSymbol(i).Image.Get().Name.substr(10, 1) : "";
    return heads;
  }
};

TEST_F(StandingTest, TableShowsPointsOrCountsOfTheKindOfGame) {
  const std::string ada = "6,1 +1. +Ada + 8  248=5", cy = "6,19 +1. +Cy + 8  248=0- 278=0- 308=4",
                    ben = "6,37 +3. +Ben + 4  248=0- 278=0- 308=0-";
  EXPECT_THAT(Rows(2, core::kOff),
              ElementsAre(ada + " 278=2 308=0- 338=0- 368=0-", cy + " 338=2 368=0-", ben + " 338=0- 368=2"));
  EXPECT_EQ(Heads(), "12978");
  EXPECT_THAT(Rows(2, core::kOn), ElementsAre(ada + " 278=1 308=0-", cy + " 338=X", ben + " 368=X"));
  EXPECT_THAT(Rows(3, core::kOff),
              ElementsAre(ada + " 278=2 308=0- 338=0- 368=1 398=0- 428=0- 458=0-",
                          cy + " 338=2 368=0- 398=0- 428=2 458=0-", ben + " 338=0- 368=0- 398=2 428=0- 458=0-"));
  EXPECT_THAT(Rows(3, core::kOn), ElementsAre(ada + " 278=1 308=0- 368=X", cy + " 338=X 428=X", ben + " 398=X"));
  game.Players[2].Name = "Ada";  // players of one name share their cells; an unknown kind leaves the heads
  const std::string shared = " 248=5 278=1 308=0- 248=0- 278=0- 308=0-";
  EXPECT_THAT(Rows(7, core::kOn),
              ElementsAre("6,1 +1. +Ada + 8 " + shared, cy + " 338=X", "6,37 +3. +Ada + 4 " + shared));
  EXPECT_EQ(Heads(), "12976345");
}

TEST_F(StandingTest, HeadlineNamesTheWinnerUntilTheStandingIsAskedFor) {
  game.WinPoints = 20;  // only Dan has them, who does not play and is first in no table
  for (const bool won : {true, false, true}) {
    won ? core::CalcPoints(game, window) : Press('T', {.Control = true});
    EXPECT_TRUE(Locking(F9) && game.GameWon == won);
    Click(F9.optWinOrder(0));  // the view changes no headline
    EXPECT_EQ(F9.lblSiegertext.Caption.Get(), won ? "Ada hat gewonnen!" : "Zwischenstand");
    Key(F9, platform::kKeyEnter);
  }
}

TEST_F(StandingTest, OptionChangesTheViewByMouseAndBySpace) {
  const auto key = [&](int view, int code) { F9.SetFocus(F9.optWinOrder(view)), Key(F9, code); };
  const std::tuple<const char*, Act, core::CheckValue> cases[] = {
      {"mouse", [&] { Click(F9.optWinOrder(0)); }, core::kOff},
      {"Space", [&] { key(1, platform::kKeySpace); }, core::kOn},
      {"another key", [&] { key(0, 'A'); }, core::kOn},
      {"right button", [&] { F9.MouseUp(F9.optWinOrder(0), platform::MouseButton::Right); }, core::kOff}};
  Rows(core::kBaseGame, core::kOn);
  for (const auto& [what, act, view] : cases) {
    act();
    EXPECT_TRUE(settings.SiegAnzeige == view && F9.optWinOrder(view.IsOn() ? 1 : 0).Value) << what;
    EXPECT_EQ(Drawn(F9.picRanking.Drawing)[4], view.IsOff() ? "278,1 '2' 12 000000" : "278,1 '1' 12 000000");
  }
}

}  // namespace
}  // namespace tests
