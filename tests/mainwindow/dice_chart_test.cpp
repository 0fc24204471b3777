// The chart and the strip of the last rolls, compared as drawing steps with figures worked out by hand.
#include "../../mainwindow/dice_chart.h"

#include <gmock/gmock.h>

#include "../../mainwindow/last_six.h"
#include "../drawn.h"

namespace tests {
namespace {

using testing::IsSupersetOf;
using Ends = std::array<int, 11>;  // one for each of the sums 2 to 12, in pixels

Lines Grey(Lines texts) {
  for (std::string& text : texts) text += " E8E8E8";
  return texts;
}

class DiceChartTest : public testing::Test {
 protected:
  DiceChartTest() {
    for (std::size_t i = 1; i <= 118; ++i) state.language.Text[i] = "T" + std::to_string(i);
    state.settings.Contrast = core::kOn;
    state.settings.EventHotkey = {0, 'P', 'H', 'W', 0xD6};
    game.GameType = core::kBaseGame;
  }
  /// The whole drawing; the steps are as many as told.
  Lines Chart(std::size_t steps) {
    mainwindow::DrawDiceChart(state, ",", chart);
    EXPECT_EQ(chart.Steps().size(), steps);
    return Drawn(chart);
  }
  /// Each row has an open bracket and in it a bar; only one sum (0: each of them) is above its share.
  void ExpectBars(const Ends& brackets, const Ends& bars, int above) const {
    Lines expected, boxes = Drawn(chart);
    std::erase_if(boxes, [](const std::string& line) { return line[0] != '['; });
    for (int row = 0; row < 11; ++row) {
      const int y = 20 + 20 * row, end = brackets[row];
      const std::string bar = above == 0 || above == row + 2 ? "] 00FF00" : "] FF0000";
      expected.insert(expected.end(), {"[" + At(80, y) + "-" + At(end, y + 2) + "] 4169E1",
                                       "[" + At(80, y + 15) + "-" + At(end, y + 13) + "] 4169E1",
                                       "[" + At(80, y + 2) + "-" + At(bars[row], y + 13) + bar,
                                       "[" + At(end, y) + "-" + At(end, y + 15) + "] 4169E1"});
    }
    EXPECT_EQ(boxes, expected);
  }

  core::State state;
  core::Game& game = state.game;
  platform::Surface chart;
};

TEST_F(DiceChartTest, TheoryFulfilledInTheExpansion) {
  game.GameType = core::kFirstExpansion;
  game.DiceCount = {0, 0, 1, 2, 3, 4, 5, 6, 5, 4, 3, 2, 1};
  game.EventCount = {0, 6, 6, 5, 19};
  const Lines drawn = Chart(133);
  ExpectBars({115, 151, 187, 223, 259, 295, 259, 223, 187, 151, 115},
             {116, 152, 188, 224, 260, 296, 260, 224, 188, 152, 116}, 0);
  EXPECT_THAT(drawn,
              IsSupersetOf(Grey({"400,20 '2,8%' 9", "400,120 '16,7%' 9", "570,43 '16%' 8", "505,20 '(P)' 8+",
                                 "570,129 '13%' 8", "570,172 '52%' 8", "505,149 '(Ö)' 8+", "520,205 '36x' 20+"})));
}

TEST_F(DiceChartTest, CountsFromNoneTo500KeepTheirPlacesInBothContrasts) {
  game.GameType = core::kFirstExpansion;
  game.EventCount[4] = 500;
  EXPECT_THAT(Chart(133), IsSupersetOf(Grey({"400,40 '0%' 9", "570,172 '0%' 8", "530,205 '0x' 20+"})));
  game.DiceCount[3] = 500;
  EXPECT_THAT(Chart(133),
              IsSupersetOf(Grey({"35,40 '500 x' 9", "400,40 '100,0%' 9", "570,172 '100%' 8", "520,205 '500x' 20+"})));
  Ends foot;
  foot.fill(80);
  ExpectBars(foot, foot, 3);
  state.settings.Contrast = core::kOff;
  game.DiceCount[3] = 9;
  EXPECT_THAT(Chart(133), IsSupersetOf({"530,205 '9x' 20+ E8E8E8", "[80,22-80,33] FF4500", "[80,42-377,53] 228B22"}));
  game.DiceCount[3] = 10;
  EXPECT_THAT(Chart(133), testing::Contains("520,205 '10x' 20+ E8E8E8"));
}

TEST_F(DiceChartTest, LastSixRunFromNewToOldWithTheMarksOfTheirGame) {
  // Kind of game, rolls, what stands behind the label.
  const std::tuple<std::int16_t, std::int16_t, Lines> cases[] = {
      {2, 2, Grey({"220,1 '3' 9+", "150,1 '5' 9+"})},
      {3,
       5,
       {"415,1 '3' 9+ E8E8E8", "435,1 '(2)' 9+ 1E90FF", "345,1 '5' 9+ E8E8E8", "365,1 '(3)' 9+ FFFF00",
        "275,1 '7' 9+ E8E8E8", "295,1 '(4)' 9+ 009600", "205,1 '9' 9+ E8E8E8", "225,1 '(B)' 9+ E8E8E8",
        "135,1 '11' 9+ E8E8E8"}},
      {3, 600, {}},
      {3, -3, {}}};
  const core::TRoll rolls[] = {{}, {1, 2, 1}, {2, 3, 2}, {3, 4, 3}, {4, 5, 4}, {5, 6, 5}, {6, 6, 0}};
  std::copy(std::begin(rolls), std::end(rolls), game.DiceLog.begin());
  for (const auto& [gameType, total, behind] : cases) {
    game.GameType = gameType;
    game.TotalRolls = total;
    mainwindow::DrawLastSix(state, chart);
    Lines expected{"5,1 'T25' 9+ E8E8E8"};
    expected.insert(expected.end(), behind.begin(), behind.end());
    EXPECT_EQ(Drawn(chart), expected) << total << " rolls";
  }
}

}  // namespace
}  // namespace tests
