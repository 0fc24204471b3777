#include "dice_chart.h"

#include "../core/dice_stats.h"
#include "../core/numbers.h"
#include "../core/rolls.h"
#include "../core/texts.h"
#include "../storage/code_page.h"
#include "../windows/form_metrics.h"
#include "../windows/image_lists.h"

namespace mainwindow {
namespace {

namespace text = core::text;
using core::State;
using platform::Colour;
using platform::Surface;
using windows::kLightGrey;

constexpr Colour kRule = Colour::FromBgr(0x999999);
constexpr Colour kMarker = Colour::FromBgr(0xE16941);

struct BarColours {
  Colour Above;
  Colour NotAbove;
};
constexpr BarColours kQuietBars{Colour::FromBgr(0x228B22), Colour::FromBgr(0x0045FF)};
constexpr BarColours kStrongBars{Colour::FromBgr(0x00FF00), Colour::FromBgr(0x0000FF)};

// The rules: a head over the whole chart, the column of the event die and, at its foot, the box of the total.
constexpr int kHeadRuleY = 16;
constexpr int kColumnX = 500;
constexpr int kColumnEnd = 250;
constexpr int kTotalRuleY = 194;
constexpr int kRight = 600;
constexpr int kEventRuleY[] = {62, 105, 148};

// The histogram, a row for each sum.
constexpr int kHeadY = 1;
constexpr int kRowHeight = 20;
constexpr int kSumX = 5;
constexpr int kCountX = 35;
constexpr int kBarX = 80;
constexpr int kMeasuredX = 400;
constexpr int kTheoryX = 450;
constexpr int kRailHeight = 2;
constexpr int kBarFoot = 13;
constexpr int kRailFoot = 15;

// The event die, a row for each face: key and name above picture, count and share.
constexpr int kEventPitch = 43;
constexpr int kEventNameY = 20;
constexpr int kEventFiguresY = 43;
constexpr int kEventKeyX = 505;
constexpr int kEventNameX = 530;
constexpr int kEventPictureX = 506;
constexpr int kEventPictureY[] = {33, 75, 119, 162};
constexpr int kEventCountX = 545;
constexpr int kEventShareX = 570;

constexpr int kEmblemX = 502;
constexpr int kEmblemY = 18;

constexpr int kTotalLabelX = 503;
constexpr int kTotalLabelY = 195;
constexpr int kOneDigitTotalX = 530;
constexpr int kMoreDigitsTotalX = 520;
constexpr int kTotalY = 205;

// The strip of the last six rolls.
constexpr int kShownRolls = 6;
constexpr int kStripY = 1;
constexpr int kStripLabelX = 5;
constexpr int kRollPitch = 70;
constexpr int kOldestX = 500;  // in a game without event die
constexpr int kOldestWithMarkX = 485;
constexpr int kMarkOffset = 20;
constexpr Colour kGateColours[] = {Colour::FromBgr(0xFF901E), Colour::FromBgr(0x00FFFF), Colour{0, 150, 0}};

/// A black rule between two grey ones, which are a pixel shorter at both ends.
void DrawRuleAcross(Surface& picW, int left, int right, int y) {
  picW.Line(left + 1, y - 1, right - 1, y - 1, kRule);
  picW.Line(left, y, right, y, platform::kBlack);
  picW.Line(left + 1, y + 1, right - 1, y + 1, kRule);
}

void DrawRuleDown(Surface& picW, int x, int top, int foot) {
  picW.Line(x - 1, top + 1, x - 1, foot - 1, kRule);
  picW.Line(x, top, x, foot, platform::kBlack);
  picW.Line(x + 1, top + 1, x + 1, foot - 1, kRule);
}

void DrawFrame(Surface& picW) {
  DrawRuleAcross(picW, 1, kRight, kHeadRuleY);
  DrawRuleDown(picW, kColumnX, 1, kColumnEnd);
  DrawRuleAcross(picW, kColumnX, kRight, kTotalRuleY);
}

void DrawHeads(const State& state, Surface& picW) {
  picW.FontSize = 9;
  picW.FontBold = false;
  picW.PrintAt(kCountX, kHeadY, state.Text(text::Count));
  picW.PrintAt(kMeasuredX, kHeadY, state.Text(text::MeasuredShare));
  picW.PrintAt(kTheoryX, kHeadY, state.Text(text::TheoryShare));
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
  const Colour colour = core::IsAboveShare(state.figures, sum) ? colours.Above : colours.NotAbove;
  picW.FillBox(kBarX, y, end, y + kRailHeight, kMarker);
  picW.FillBox(kBarX, y + kRailFoot, end, y + kBarFoot, kMarker);
  picW.FillBox(kBarX, y + kRailHeight, bar, y + kBarFoot, colour);
  picW.FillBox(end, y, end, y + kRailFoot, kMarker);
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
    picW.PaintPicture(windows::EventDie(face), kEventPictureX, kEventPictureY[face - 1]);
  }
  for (const int y : kEventRuleY) DrawRuleAcross(picW, kColumnX, kRight, y);
}

void DrawEventDie(const State& state, Surface& picW) {
  DrawEventFrame(picW);
  picW.PrintAt(kEventCountX, kHeadY, state.Text(text::EventCount));
  picW.PrintAt(kEventShareX, kHeadY, state.Text(text::MeasuredShare));
  picW.FontSize = 8;
  for (int face = 1; face <= core::kEventFaces; ++face) {
    const int y = kEventFiguresY + (face - 1) * kEventPitch;
    picW.PrintAt(kEventCountX, y, std::to_string(state.game.EventCount[face]));
    picW.PrintAt(kEventShareX, y, std::to_string(core::EventPercent(state, face)) + "%");
  }
  for (int face = 1; face <= core::kEventFaces; ++face) {
    const int y = kEventNameY + (face - 1) * kEventPitch;
    picW.FontBold = true;
    picW.PrintAt(kEventKeyX, y, "(" + storage::CharacterOf(state.settings.EventHotkey[face]) + ")");
    picW.FontBold = false;
    picW.PrintAt(kEventNameX, y, state.Text(windows::TextOfEventFace(face)));
  }
}

void DrawTotal(const State& state, Surface& picW) {
  picW.FontBold = false;
  picW.FontSize = 8;
  picW.PrintAt(kTotalLabelX, kTotalLabelY, state.Text(text::Rolls));
  picW.FontBold = true;
  picW.FontSize = 20;
  const int total = state.figures.TotalRolls;
  picW.PrintAt(total <= 9 ? kOneDigitTotalX : kMoreDigitsTotalX, kTotalY, std::to_string(total) + "x");
}

/// A gate shows the red die in its colour, the ship a letter.
void DrawMark(const core::TRoll& roll, int x, Surface& strip) {
  if (roll.EventDie < 1 || roll.EventDie > core::kEventFaces) return;
  const bool ship = roll.EventDie == core::kShipFace;
  strip.ForeColor = ship ? kLightGrey : kGateColours[roll.EventDie - 1];
  strip.PrintAt(x, kStripY, ship ? "(B)" : "(" + std::to_string(roll.Die2) + ")");
}

void DrawRoll(const core::TRoll& roll, std::int16_t gameType, int place, Surface& strip) {
  const std::string sum = std::to_string(roll.Die1 + roll.Die2);
  strip.ForeColor = kLightGrey;
  if (gameType == core::kBaseGame) {
    strip.PrintAt(kOldestX - kRollPitch * place, kStripY, sum);
  } else if (gameType == core::kFirstExpansion) {
    const int x = kOldestWithMarkX - kRollPitch * place;
    strip.PrintAt(x, kStripY, sum);
    DrawMark(roll, x + kMarkOffset, strip);
  }
}

}  // namespace

void DrawDiceChart(State& state, const std::string& decimalSeparator, Surface& picW) {
  core::ComputeDiceFigures(state.game, state.figures);
  picW.ForeColor = kLightGrey;
  picW.Cls();
  if (!core::HasEventDie(state.game)) picW.PaintPicture(windows::kEmblem, kEmblemX, kEmblemY);
  DrawFrame(picW);
  DrawHistogram(state, decimalSeparator, picW);
  if (core::HasEventDie(state.game)) DrawEventDie(state, picW);
  DrawTotal(state, picW);
}

std::string SpokenChart(const State& state) {
  std::string spoken = state.Text(text::Rolls) + ": " + std::to_string(state.figures.TotalRolls);
  for (int sum = core::kLowestSum; sum <= core::kHighestSum; ++sum) {
    spoken += "; " + std::to_string(sum) + ": " + std::to_string(state.game.DiceCount[sum]) + " x";
  }
  return spoken;
}

void DrawLastSix(const State& state, Surface& picInfoLine) {
  picInfoLine.FontSize = 9;
  picInfoLine.FontBold = true;
  picInfoLine.ForeColor = kLightGrey;
  picInfoLine.Cls();
  picInfoLine.PrintAt(kStripLabelX, kStripY, state.Text(text::LastSixRolls));
  for (int place = 0; place < kShownRolls; ++place) {
    const int entry = state.figures.TotalRolls - (kShownRolls - 1) + place;
    if (entry < 1 || entry > core::kLoggedRolls) continue;
    DrawRoll(state.game.DiceLog[entry], state.game.GameType, place, picInfoLine);
  }
}

}  // namespace mainwindow
