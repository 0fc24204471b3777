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
  void SetUp() override {
    MainWindowTest::SetUp();
    game.NumPlayers = 3;
    game.WinPoints = 30;
    game.Players[1] = {.Name = "Ada", .Settlements = 5, .Cities = 1, .Merchant = true, .Active = true};
    game.Players[2] = {.Name = "Ben", .LargestArmy = true, .PoliticsMetropolis = true, .Active = true};
    game.Players[3] = {.Name = "Cy", .LongestRoad = true, .TradeMetropolis = true, .BonusPoints = 4, .Active = true};
    game.Players[4] = {.Name = "Dan", .Settlements = 20};
    core::CalcPoints(game, window);
  }
  /// Each row in one line: "x,y=text", with "+" for bold and "-" for the grey of what is not held.
  std::vector<std::string> Rows(std::int16_t gameType, core::CheckValue view) {
    game.GameType = gameType;
    window.State.settings.SiegAnzeige = view;
    F9.ShowStanding();
    std::vector<std::string> rows;
    for (const auto& step : F9.picRanking.Drawing.Steps()) {
      const auto& text = std::get<platform::TextStep>(step);
      EXPECT_TRUE(text.Face.Size == 12 && (Hex(text.Ink) == "000000" || Hex(text.Ink) == "646464")) << text.Text;
      if (text.X == 6) rows.emplace_back(At(text.X, text.Y));
      if (text.X != 6) rows.back() += " " + (text.Face.Bold ? "" : At(text.X, 0).substr(0, 3));
      rows.back() += "=" + text.Text + (text.Face.Bold ? "+" : "") + (text.Ink == platform::kBlack ? "" : "-");
    }
    return rows;
  }
  /// The numbers of the pictures over the columns that are seen.
  std::string Heads() const {
    std::string heads;
    for (int i = 0; i < 8; ++i) {
      if (F9.picSymbol(i).Visible) heads += F9.picSymbol(i).Image.Get().Name.substr(10, 1);
    }
    return heads;
  }
};

TEST_F(StandingTest, TableShowsPointsOrCountsOfTheKindOfGame) {
  const std::string ada = "6,1=1.+ =Ada+ = 8 + 248=5", cy = "6,19=1.+ =Cy+ = 8 + 248=0- 278=0- 308=4",
                    ben = "6,37=3.+ =Ben+ = 4 + 248=0- 278=0- 308=0-";
  EXPECT_THAT(Rows(2, core::kOff),
              ElementsAre(ada + " 278=2 308=0- 338=0- 368=0-", cy + " 338=2 368=0-", ben + " 338=0- 368=2"));
  EXPECT_EQ(Heads(), "12978");
  EXPECT_THAT(Rows(2, core::kOn), ElementsAre(ada + " 278=1 308=0-", cy + " 338=X", ben + " 368=X"));
  EXPECT_THAT(Rows(3, core::kOff),
              ElementsAre(ada + " 278=2 308=0- 338=0- 368=1 398=0- 428=0- 458=0-",
                          cy + " 338=2 368=0- 398=0- 428=2 458=0-", ben + " 338=0- 368=0- 398=2 428=0- 458=0-"));
  EXPECT_THAT(Rows(3, core::kOn), ElementsAre(ada + " 278=1 308=0- 368=X", cy + " 338=X 428=X", ben + " 398=X"));
  EXPECT_EQ(Heads(), "12976345");
  game.Players[2].Name = "Ada";
  const std::string shared = " 248=5 278=1 308=0- 248=0- 278=0- 308=0-";
  EXPECT_THAT(Rows(7, core::kOn),
              ElementsAre("6,1=1.+ =Ada+ = 8 +" + shared, cy + " 338=X", "6,37=3.+ =Ada+ = 4 +" + shared))
      << "two players of one name";
  EXPECT_EQ(Heads(), "12976345") << "an unknown kind leaves the heads";
}

TEST_F(StandingTest, HeadlineNamesTheWinnerUntilTheStandingIsAskedForAndEveryWayOutUnlocks) {
  game.WinPoints = 20;  // only Dan has them, who does not play and is first in no table
  const std::tuple<std::function<void()>, const char*, std::function<void()>> rows[] = {
      {[&] { core::CalcPoints(game, window); }, "Ada hat gewonnen !", [&] { F9.PressCloseBox(); }},
      {[&] { Press('T', {.Control = true}); }, "Zwischenstand", [&] { Click(F9.cmdOK); }},
      {[&] { core::CalcPoints(game, window); }, "Ada hat gewonnen !", [&] { Key(F9, platform::kKeyEnter); }},
      {[&] { F9.ShowStanding(); }, "Ada hat gewonnen !", [&] { Click(F9.cmdOK); }},
      {[&] { window.F1.ClickTool(window.F1.tbrMenu, 7); }, "Zwischenstand", [&] { F9.PressCloseBox(); }}};
  for (const auto& [open, headline, leave] : rows) {
    open();
    EXPECT_TRUE(F9.Visible && !window.F1.Enabled);
    Click(F9.optWinOrder(0));
    EXPECT_EQ(F9.lblSiegertext.Caption.Get(), headline) << "the view changes no headline";
    EXPECT_EQ(game.GameWon, headline != std::string("Zwischenstand"));
    leave();
    EXPECT_TRUE(!F9.Visible && window.F1.Enabled);
  }
}

TEST_F(StandingTest, OptionChangesTheViewByMouseAndBySpace) {
  const auto key = [&](int view, int code) { F9.SetFocus(F9.optWinOrder(view)), Key(F9, code); };
  const std::tuple<const char*, std::function<void()>, core::CheckValue> cases[] = {
      {"mouse", [&] { Click(F9.optWinOrder(0)); }, core::kOff},
      {"Space", [&] { key(1, platform::kKeySpace); }, core::kOn},
      {"Space back", [&] { key(0, platform::kKeySpace); }, core::kOff},
      {"another key", [&] { key(1, 'A'); }, core::kOff},
      {"right button", [&] { F9.MouseUp(F9.optWinOrder(1), platform::MouseButton::Right); }, core::kOn}};
  Rows(core::kBaseGame, core::kOn);
  for (const auto& [what, act, view] : cases) {
    SCOPED_TRACE(what);
    act();
    EXPECT_EQ(window.State.settings.SiegAnzeige, view);
    EXPECT_TRUE(F9.optWinOrder(0).Value == view.IsOff() && F9.optWinOrder(1).Value == view.IsOn());
    EXPECT_EQ(Drawn(F9.picRanking.Drawing)[4], view.IsOff() ? "278,1 '2' 12 000000" : "278,1 '1' 12 000000");
  }
}

}  // namespace
}  // namespace tests
