// The chart and the strip of the last rolls, compared as drawing steps with figures worked out by hand.
#include "../../mainwindow/dice_chart.h"

#include <gmock/gmock.h>

#include "../../mainwindow/last_six.h"

namespace tests {
namespace {

using namespace platform;
using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::UnorderedElementsAre;

constexpr Colour kGrey{0x99, 0x99, 0x99};
constexpr Colour kMarker{0x41, 0x69, 0xE1};
constexpr Colour kText{232, 232, 232};
constexpr Colour kRed{255, 0, 0}, kGreen{0, 255, 0};

class DiceChartTest : public testing::Test {
 protected:
  DiceChartTest() {
    for (std::size_t i = 1; i <= 118; ++i) state.language.Text[i] = "T" + std::to_string(i);
    state.settings.Contrast = core::kOn;
    state.settings.EventHotkey = {0, 'P', 'H', 'W', 0xD6};
    game.GameType = core::kBaseGame;
  }
  void Draw() { mainwindow::DrawDiceChart(state, ",", chart); }

  template <typename Step>
  std::vector<Step> Steps() const {
    std::vector<Step> steps;
    for (const DrawingStep& step : chart.Steps()) {
      if (const auto* found = std::get_if<Step>(&step)) steps.push_back(*found);
    }
    return steps;
  }
  /// Each text with its place and size, "+" for bold; all are light grey.
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const TextStep& step : Steps<TextStep>()) {
      EXPECT_EQ(step.Ink, kText) << step.Text;
      EXPECT_EQ(step.Face.Name, "Verdana");
      texts.push_back(std::to_string(int(step.X)) + "," + std::to_string(int(step.Y)) + " " +
                      std::to_string(int(step.Face.Size)) + (step.Face.Bold ? "+ " : " ") + step.Text);
    }
    return texts;
  }
  /// The four boxes of each row: where markers and bars end for the sums 2 to 12, and the bars' colours.
  void ExpectBars(const std::array<int, 11>& markerEnds, const std::array<int, 11>& barEnds,
                  const std::array<Colour, 11>& colours) {
    const auto boxes = Steps<BoxStep>();
    ASSERT_EQ(boxes.size(), 44U);
    for (std::size_t row = 0; row < 11; ++row) {
      const double y = 20.0 + 20.0 * static_cast<double>(row), end = markerEnds[row], bar = barEnds[row];
      const std::vector<BoxStep> expected{{80, y, end, y + 2, kMarker},
                                          {80, y + 15, end, y + 13, kMarker},
                                          {80, y + 2, bar, y + 13, colours[row]},
                                          {end, y, end, y + 15, kMarker}};
      const auto first = boxes.begin() + static_cast<std::ptrdiff_t>(4 * row);
      EXPECT_TRUE(std::equal(expected.begin(), expected.end(), first)) << "sum " << row + 2;
    }
  }

  core::State state;
  core::Game& game = state.game;
  Surface chart;
};

TEST_F(DiceChartTest, FirstRollOfASeven) {
  game.DiceCount[7] = 1;
  Draw();
  ExpectBars({88, 96, 104, 113, 121, 129, 121, 113, 104, 96, 88}, {80, 80, 80, 80, 80, 380, 80, 80, 80, 80, 80},
             {kRed, kRed, kRed, kRed, kRed, kGreen, kRed, kRed, kRed, kRed, kRed});
  EXPECT_THAT(Steps<LineStep>(), ElementsAre(LineStep{2, 15, 599, 15, kGrey}, LineStep{1, 16, 600, 16, kBlack},
                                             LineStep{2, 17, 599, 17, kGrey}, LineStep{499, 2, 499, 249, kGrey},
                                             LineStep{500, 1, 500, 250, kBlack}, LineStep{501, 2, 501, 249, kGrey},
                                             LineStep{501, 193, 599, 193, kGrey}, LineStep{500, 194, 600, 194, kBlack},
                                             LineStep{501, 195, 599, 195, kGrey}));
  EXPECT_TRUE(Steps<PictureStep>().empty());
  EXPECT_THAT(Texts(), IsSupersetOf({"35,1 9 T17", "400,1 9 T18", "450,1 9 T20", "5,120 9+ 7", "35,120 9 1 x",
                                     "400,120 9 100,0%", "450,120 9 16,7%", "5,220 9+ 12", "35,220 9 0 x",
                                     "400,220 9 0%", "450,220 9 2,8%", "503,195 8 T26", "530,205 20+ 1x"}));
}

TEST_F(DiceChartTest, TheoryFulfilledInTheExpansion) {
  game.GameType = core::kFirstExpansion;
  game.DiceCount = {0, 0, 1, 2, 3, 4, 5, 6, 5, 4, 3, 2, 1};
  game.EventCount = {0, 6, 6, 5, 19};
  Draw();
  std::array<Colour, 11> allAbove;
  allAbove.fill(kGreen);
  ExpectBars({115, 151, 187, 223, 259, 295, 259, 223, 187, 151, 115},
             {116, 152, 188, 224, 260, 296, 260, 224, 188, 152, 116}, allAbove);
  EXPECT_THAT(Texts(), UnorderedElementsAre("35,1 9 T17", "400,1 9 T18", "450,1 9 T20",                          //
                                            "5,20 9+ 2", "35,20 9 1 x", "400,20 9 2,8%", "450,20 9 2,8%",        //
                                            "5,40 9+ 3", "35,40 9 2 x", "400,40 9 5,6%", "450,40 9 5,6%",        //
                                            "5,60 9+ 4", "35,60 9 3 x", "400,60 9 8,3%", "450,60 9 8,3%",        //
                                            "5,80 9+ 5", "35,80 9 4 x", "400,80 9 11,1%", "450,80 9 11,1%",      //
                                            "5,100 9+ 6", "35,100 9 5 x", "400,100 9 13,9%", "450,100 9 13,9%",  //
                                            "5,120 9+ 7", "35,120 9 6 x", "400,120 9 16,7%", "450,120 9 16,7%",  //
                                            "5,140 9+ 8", "35,140 9 5 x", "400,140 9 13,9%", "450,140 9 13,9%",  //
                                            "5,160 9+ 9", "35,160 9 4 x", "400,160 9 11,1%", "450,160 9 11,1%",  //
                                            "5,180 9+ 10", "35,180 9 3 x", "400,180 9 8,3%", "450,180 9 8,3%",   //
                                            "5,200 9+ 11", "35,200 9 2 x", "400,200 9 5,6%", "450,200 9 5,6%",   //
                                            "5,220 9+ 12", "35,220 9 1 x", "400,220 9 2,8%", "450,220 9 2,8%",   //
                                            "545,1 9 T19", "570,1 9 T18",                                        //
                                            "545,43 8 6", "570,43 8 16%", "505,20 8+ (P)", "530,20 8 T21",       //
                                            "545,86 8 6", "570,86 8 16%", "505,63 8+ (H)", "530,63 8 T22",       //
                                            "545,129 8 5", "570,129 8 13%", "505,106 8+ (W)", "530,106 8 T23",   //
                                            "545,172 8 19", "570,172 8 52%", "505,149 8+ (Ö)", "530,149 8 T24",  //
                                            "503,195 8 T26", "520,205 20+ 36x"));
  EXPECT_THAT(Steps<PictureStep>(),
              ElementsAre(PictureStep{506, 33, {"imlW/13.svg"}}, PictureStep{506, 75, {"imlW/14.svg"}},
                          PictureStep{506, 119, {"imlW/15.svg"}}, PictureStep{506, 162, {"imlW/16.svg"}}));
  const auto lines = Steps<LineStep>();
  ASSERT_EQ(lines.size(), 18U);
  const std::vector<LineStep> last{lines.end() - 3, lines.end()};
  EXPECT_THAT(last, ElementsAre(LineStep{501, 147, 599, 147, kGrey}, LineStep{500, 148, 600, 148, kBlack},
                                LineStep{501, 149, 599, 149, kGrey}));
  EXPECT_EQ(lines[10], (LineStep{500, 62, 600, 62, kBlack}));
  EXPECT_EQ(lines[13], (LineStep{500, 105, 600, 105, kBlack}));
}

TEST_F(DiceChartTest, CountOf500AndNoCountStayInTheirPlaces) {
  std::array<int, 11> foot;
  foot.fill(80);
  game.GameType = core::kFirstExpansion;
  game.EventCount[4] = 500;
  Draw();
  EXPECT_THAT(Texts(), IsSupersetOf({"400,40 9 0%", "570,172 8 0%", "530,205 20+ 0x"}));
  game.DiceCount[3] = 500;
  Draw();
  ExpectBars(foot, foot, {kRed, kGreen, kRed, kRed, kRed, kRed, kRed, kRed, kRed, kRed, kRed});
  EXPECT_THAT(Texts(), IsSupersetOf({"35,40 9 500 x", "400,40 9 100,0%", "570,172 8 100%", "520,205 20+ 500x"}));
}

TEST_F(DiceChartTest, TenthRollMovesTheTotalAndContrastChangesTheBars) {
  state.settings.Contrast = core::kOff;
  game.DiceCount[7] = 9;
  Draw();
  EXPECT_THAT(Texts(), testing::Contains("530,205 20+ 9x"));
  EXPECT_EQ(Steps<BoxStep>()[2].Ink, (Colour{0xFF, 0x45, 0x00}));
  EXPECT_EQ(Steps<BoxStep>()[22].Ink, (Colour{0x22, 0x8B, 0x22}));
  game.DiceCount[7] = 10;
  Draw();
  EXPECT_THAT(Texts(), testing::Contains("520,205 20+ 10x"));
}

TEST_F(DiceChartTest, LastSixRunFromNewToOldWithTheMarksOfTheirGame) {
  struct Case {
    const char* What;
    std::int16_t GameType, Total;
    std::vector<TextStep> Behind;  // the label
  };
  const Font font{"Verdana", 9, true};
  const auto at = [&font](double x, const char* text, Colour ink = kText) { return TextStep{x, 1, text, ink, font}; };
  const Case cases[] = {
      {"no rolls", 2, 0, {}},
      {"two rolls", 2, 2, {at(220, "3"), at(150, "5")}},
      {"seven rolls", 2, 7, {at(500, "5"), at(430, "7"), at(360, "9"), at(290, "11"), at(220, "12"), at(150, "10")}},
      {"marks",
       3,
       5,
       {at(415, "3"), at(435, "(2)", {0x1E, 0x90, 0xFF}), at(345, "5"), at(365, "(3)", {255, 255, 0}), at(275, "7"),
        at(295, "(4)", {0, 150, 0}), at(205, "9"), at(225, "(B)"), at(135, "11")}},
      {"more rolls than entries", 3, 600, {}},
      {"negative total", 3, -3, {}},
  };
  game.DiceLog[1] = {1, 2, 1};
  game.DiceLog[2] = {2, 3, 2};
  game.DiceLog[3] = {3, 4, 3};
  game.DiceLog[4] = {4, 5, 4};
  game.DiceLog[5] = {5, 6, 0};
  game.DiceLog[6] = {6, 6, 30000};
  game.DiceLog[7] = {4, 6, -1};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.What);
    game.GameType = c.GameType;
    game.TotalRolls = c.Total;
    mainwindow::DrawLastSix(state, chart);
    std::vector<TextStep> expected = c.Behind;
    expected.insert(expected.begin(), at(5, "T25"));
    EXPECT_EQ(Steps<TextStep>(), expected);
  }
}

}  // namespace
}  // namespace tests
