#include "game_report.h"

#include "../core/dice_stats.h"
#include "../core/numbers.h"
#include "../core/rolls.h"
#include "../core/standing.h"
#include "../core/texts.h"
#include "../windows/image_lists.h"

namespace printing {
namespace {

namespace text = core::text;
using core::State;
using platform::Colour;
using platform::Surface;

constexpr Colour kExpected{0, 0, 255};
constexpr Colour kMoreOften{0, 255, 0};
constexpr Colour kNotMoreOften{255, 0, 0};

// Units of the page.
constexpr int kMargin = 100;
constexpr int kInfoY = 200;
constexpr int kBoxTop = 400;
constexpr int kBoxPitch = 200;
constexpr int kBoxWidth = 800;
constexpr int kBoxHeight = 160;
constexpr int kSymbolPitch = 60;
constexpr int kNameDown = 40;  // from the top of the box
constexpr int kOneDigitX = 700;
constexpr int kTwoDigitsX = 620;
constexpr int kHeadY = 305;
constexpr int kSumX = 1000;
constexpr int kCountX = 1150;
constexpr int kCountRoom = 240;
constexpr int kBarX = 1400;
constexpr int kMeasuredX = 1900;
constexpr int kTheoryX = 2200;
constexpr int kRowsY = 400;
constexpr int kRowPitch = 95;
constexpr int kRailHeight = 10;
constexpr int kBarFoot = 80;
constexpr int kRailFoot = 90;
constexpr int kFullBar = 450;
constexpr int kFootY = 1600;
constexpr int kEventX = 1000;
constexpr int kEventPitch = 300;
constexpr int kEventTextX = 150;  // from its picture
constexpr int kEventShareY = 1650;
constexpr int kTotalY = 1675;
constexpr int kOneDigitTotalX = 350;
constexpr int kMoreDigitsTotalX = 400;

void Write(Surface& page, double size, bool bold, double x, double y, const std::string& text) {
  page.FontSize = size;
  page.FontBold = bold;
  page.PrintAt(x, y, text);
}

void DrawPlayer(const State& state, int seat, Surface& page) {
  const core::TPlayer& player = state.game.Players[seat];
  const int top = kBoxTop + (seat - 1) * kBoxPitch;
  page.Box(kMargin, top, kMargin + kBoxWidth, top + kBoxHeight, platform::kBlack);
  int x = kMargin + 1;
  for (const int symbol : core::SymbolsOf(player, (kPageWidth - kMargin) / kSymbolPitch)) {
    page.PaintPicture(windows::imlIcons.Image(symbol), x, top + 1);
    x += kSymbolPitch;
  }
  const int points = state.figures.PlayerPoints[seat];
  const int pointsX = points > 9 ? kTwoDigitsX : kOneDigitX;
  page.FontSize = 18;
  page.FontBold = true;
  page.PrintWithin(kMargin + 1, top + kNameDown, pointsX - kMargin - 1, player.Name);
  page.Halo = platform::kWhite;  // symbols may run beneath
  Write(page, 34, true, pointsX, top, core::PrintedNumber(points));
  page.Halo.reset();
}

void DrawHeads(const State& state, Surface& page) {
  Write(page, 20, true, kMargin, kMargin, state.game.GameTitle);
  Write(page, 14, false, kMargin, kInfoY, state.game.GameInfo);
  for (int seat = 1; seat <= core::kSeats; ++seat) {
    if (state.game.Players[seat].Active) DrawPlayer(state, seat, page);
  }
  Write(page, 14, false, kCountX, kHeadY, state.Text(text::Count));
  Write(page, 14, false, kMeasuredX, kHeadY, state.Text(text::MeasuredShare));
  Write(page, 14, false, kTheoryX, kHeadY, state.Text(text::TheoryShare));
}

/// The measured bar between two rails that reach as far as it should, closed at their end.
void DrawBars(const State& state, int sum, int y, int barUnit, Surface& page) {
  const double end = kBarX + core::RoundHalfEven(state.figures.TotalRolls * barUnit * core::TheoryShare(sum) / 100);
  const double bar = kBarX + state.game.DiceCount[sum] * barUnit;
  const Colour colour = core::IsAboveShare(state.figures, sum) ? kMoreOften : kNotMoreOften;
  page.FillBox(kBarX, y, end, y + kRailHeight, kExpected);
  page.FillBox(kBarX, y + kRailFoot, end, y + kBarFoot, kExpected);
  page.FillBox(kBarX, y + kRailHeight, bar, y + kBarFoot, colour);
  page.FillBox(end, y, end, y + kRailFoot, kExpected);
}

void DrawRows(const State& state, const std::string& separator, Surface& page) {
  const core::Figures& figures = state.figures;
  const int barUnit = figures.MaxDiceCount > 0 ? kFullBar / figures.MaxDiceCount : kFullBar;
  for (int sum = core::kLowestSum; sum <= core::kHighestSum; ++sum) {
    const int y = kRowsY + (sum - 1) * kRowPitch;
    Write(page, 14, false, kSumX, y, std::to_string(sum));
    const int count = state.game.DiceCount[sum];
    const std::string& word = state.TextOr(count == 1 ? text::RollAfterOne : text::RollsAfterNumber, text::Rolls);
    page.PrintWithin(kCountX, y, kCountRoom, std::to_string(count) + " " + word);
    page.PrintAt(kMeasuredX, y, core::PercentText(figures.DicePercent[sum], separator));
    page.PrintAt(kTheoryX, y, core::PlainText(core::DiceProbability[sum], separator) + "%");
    DrawBars(state, sum, y, barUnit, page);
  }
}

void DrawEventDie(const State& state, Surface& page) {
  for (int face = 1; face <= core::kEventFaces; ++face) {
    const int x = kEventX + (face - 1) * kEventPitch;
    page.PaintPicture(windows::EventDie(face), x, kFootY);
    const int count = state.game.EventCount[face];
    Write(page, 10, false, x + kEventTextX, kFootY, std::to_string(count) + "x");
    page.PrintAt(x + kEventTextX, kEventShareY, std::to_string(core::EventPercent(state, face)) + "%");
  }
}

void DrawTotal(const State& state, Surface& page) {
  const int total = state.figures.TotalRolls;
  Write(page, 14, false, kMargin, kFootY, state.Text(text::Rolls));
  Write(page, 25, false, total > 9 ? kMoreDigitsTotalX : kOneDigitTotalX, kTotalY, std::to_string(total) + "x");
}

}  // namespace

void DrawGameReport(const State& state, const std::string& decimalSeparator, Surface& page) {
  page.FontName = "Arial";
  page.ForeColor = platform::kBlack;
  page.Cls();
  DrawHeads(state, page);
  DrawRows(state, decimalSeparator, page);
  if (core::HasEventDie(state.game)) DrawEventDie(state, page);
  DrawTotal(state, page);
}

}  // namespace printing
