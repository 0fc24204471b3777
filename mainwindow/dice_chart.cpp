#include "dice_chart.h"

#include "../core/dice_stats.h"
#include "../core/numbers.h"
#include "../core/rolls.h"
#include "../storage/code_page.h"
#include "../windows/form_metrics.h"
#include "../windows/image_lists.h"

namespace mainwindow {
namespace {

using core::State;
using platform::Colour;
using platform::Surface;

constexpr Colour kRule = Colour::FromBgr(0x999999);
constexpr Colour kMarker = Colour::FromBgr(0xE16941);

struct BarColours {
  Colour Above;
  Colour NotAbove;
};
constexpr BarColours kQuietBars{Colour::FromBgr(0x228B22), Colour::FromBgr(0x0045FF)};
constexpr BarColours kStrongBars{Colour::FromBgr(0x00FF00), Colour::FromBgr(0x0000FF)};

struct Rule {
  int X1, Y1, X2, Y2;
  Colour Ink;
};
constexpr Rule kFrame[] = {
    {2, 15, 599, 15, kRule},     {1, 16, 600, 16, platform::kBlack},     {2, 17, 599, 17, kRule},
    {499, 2, 499, 249, kRule},   {500, 1, 500, 250, platform::kBlack},   {501, 2, 501, 249, kRule},
    {501, 193, 599, 193, kRule}, {500, 194, 600, 194, platform::kBlack}, {501, 195, 599, 195, kRule},
};
constexpr int kEventRules[] = {62, 105, 148};  // heights of the rules between the faces of the event die

// Where things stand.
constexpr int kSumX = 5;
constexpr int kCountX = 35;
constexpr int kBarX = 80;
constexpr int kMeasuredX = 400;
constexpr int kTheoryX = 450;
constexpr int kHeadY = 1;
constexpr int kRowHeight = 20;
constexpr int kEmblemX = 502;
constexpr int kEmblemY = 18;
constexpr int kEventPictureX = 506;
constexpr int kEventPictureY[] = {33, 75, 119, 162};
constexpr int kEventCountX = 545;
constexpr int kEventShareX = 570;
constexpr int kEventKeyX = 505;
constexpr int kEventNameX = 530;
constexpr int kEventPitch = 43;

void DrawFrame(Surface& picW) {
  for (const Rule& rule : kFrame) picW.Line(rule.X1, rule.Y1, rule.X2, rule.Y2, rule.Ink);
}

void DrawHeads(const State& state, Surface& picW) {
  picW.FontSize = 9;
  picW.FontBold = false;
  picW.PrintAt(kCountX, kHeadY, state.Text(17));
  picW.PrintAt(kMeasuredX, kHeadY, state.Text(18));
  picW.PrintAt(kTheoryX, kHeadY, state.Text(20));
}

void DrawFigures(const State& state, int sum, int y, const std::string& separator, Surface& picW) {
  picW.FontBold = true;
  picW.PrintAt(kSumX, y, std::to_string(sum));
  picW.FontBold = false;
  picW.PrintAt(kCountX, y, std::to_string(state.game.DiceCount[sum]) + " x");
  picW.PrintAt(kMeasuredX, y, core::PercentText(state.figures.DicePercent[sum], separator));
  picW.PrintAt(kTheoryX, y, core::PlainText(core::DiceProbability[sum], separator) + "%");
}

/// The bar of a sum inside the open bracket that shows how far it should reach.
void DrawBar(const State& state, int sum, int y, int barUnit, const BarColours& colours, Surface& picW) {
  const double end = kBarX + static_cast<double>(core::ChartMarkerLength(state.figures, barUnit, sum));
  const double bar = kBarX + state.game.DiceCount[sum] * barUnit;
  picW.FillBox(kBarX, y, end, y + 2, kMarker);
  picW.FillBox(kBarX, y + 15, end, y + 13, kMarker);
  picW.FillBox(kBarX, y + 2, bar, y + 13, core::IsAboveShare(state.figures, sum) ? colours.Above : colours.NotAbove);
  picW.FillBox(end, y, end, y + 15, kMarker);
}

void DrawHistogram(const State& state, const std::string& separator, Surface& picW) {
  const int barUnit = core::ChartBarUnit(state.figures);
  const BarColours& colours = state.settings.Contrast.IsOn() ? kStrongBars : kQuietBars;
  DrawHeads(state, picW);
  for (int sum = core::kLowestSum; sum <= core::kHighestSum; ++sum) {
    const int y = (sum - 1) * kRowHeight;
    DrawFigures(state, sum, y, separator, picW);
    DrawBar(state, sum, y, barUnit, colours, picW);
  }
}

void DrawEventFrame(Surface& picW) {
  for (int face = 1; face <= core::kEventFaces; ++face) {
    picW.PaintPicture(windows::imlW.Image(face + windows::kBeforeEventFaces), kEventPictureX, kEventPictureY[face - 1]);
  }
  for (const int y : kEventRules) {
    picW.Line(501, y - 1, 599, y - 1, kRule);
    picW.Line(500, y, 600, y, platform::kBlack);
    picW.Line(501, y + 1, 599, y + 1, kRule);
  }
}

void DrawEventDie(const State& state, Surface& picW) {
  DrawEventFrame(picW);
  picW.PrintAt(kEventCountX, kHeadY, state.Text(19));
  picW.PrintAt(kEventShareX, kHeadY, state.Text(18));
  picW.FontSize = 8;
  for (int face = 1; face <= core::kEventFaces; ++face) {
    const int y = 43 + (face - 1) * kEventPitch;
    picW.PrintAt(kEventCountX, y, std::to_string(state.game.EventCount[face]));
    picW.PrintAt(kEventShareX, y, std::to_string(core::EventPercent(state, face)) + "%");
  }
  for (int face = 1; face <= core::kEventFaces; ++face) {
    const int y = 20 + (face - 1) * kEventPitch;
    const int key = state.settings.EventHotkey[face];
    picW.FontBold = true;
    picW.PrintAt(kEventKeyX, y, "(" + storage::CharacterOf(key) + ")");
    picW.FontBold = false;
    picW.PrintAt(kEventNameX, y, state.Text(20 + face));
  }
}

void DrawTotal(const State& state, Surface& picW) {
  picW.FontBold = false;
  picW.FontSize = 8;
  picW.PrintAt(503, 195, state.Text(26));
  picW.FontBold = true;
  picW.FontSize = 20;
  const int total = state.figures.TotalRolls;
  picW.PrintAt(total <= 9 ? 530 : 520, 205, std::to_string(total) + "x");
}

}  // namespace

std::string SpokenChart(const State& state) {
  std::string text = state.Text(26) + ": " + std::to_string(state.figures.TotalRolls);
  for (int sum = core::kLowestSum; sum <= core::kHighestSum; ++sum) {
    text += "; " + std::to_string(sum) + ": " + std::to_string(state.game.DiceCount[sum]) + " x";
  }
  return text;
}

void DrawDiceChart(State& state, const std::string& decimalSeparator, Surface& picW) {
  core::ComputeDiceFigures(state.game, state.figures);
  picW.ForeColor = windows::kLightGrey;
  picW.Cls();
  if (!core::HasEventDie(state.game)) picW.PaintPicture(windows::kEmblem, kEmblemX, kEmblemY);
  DrawFrame(picW);
  DrawHistogram(state, decimalSeparator, picW);
  if (core::HasEventDie(state.game)) DrawEventDie(state, picW);
  DrawTotal(state, picW);
}

}  // namespace mainwindow
