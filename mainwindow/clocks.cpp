#include "clocks.h"

#include <algorithm>

#include "../core/clock.h"
#include "../core/standing.h"
#include "../core/texts.h"
#include "../windows/image_lists.h"

namespace mainwindow {
namespace {

namespace text = core::text;
using core::State;
using platform::Surface;

// Twips of the main window.
constexpr int kTotalsFromRight = 1000;
constexpr int kFirstTotalY = 6650;
constexpr int kTotalPitch = 300;
constexpr int kIconRight = 400;
constexpr int kIconAbove = 50;
constexpr int kPauseLeft = 500;
constexpr int kPauseUp = 1000;
constexpr int kLabelUp = 1400;
constexpr int kTimeUp = 1200;
constexpr int kMostFrame = 750;
constexpr int kGameClockX = 200;
constexpr int kPlayerClockFromRight = 2200;

constexpr double kTimeSize = 16;  // points
constexpr double kTextSize = 8;

void DrawTotals(const State& state, int x, Surface& surface) {
  const core::BoardTotals totals = core::CountBoard(state.game);
  int y = kFirstTotalY;
  const auto draw = [&](int count, int symbol) {
    surface.PrintAt(x, y, std::to_string(count) + " x");
    surface.PaintPicture(windows::imlIcons.Image(symbol), x + kIconRight, y - kIconAbove);
    y += kTotalPitch;
  };
  draw(totals.Settlements, core::kSettlementSymbol);
  draw(totals.Cities, core::kCitySymbol);
  if (state.game.GameType == core::kFirstExpansion) draw(totals.Metropolises, core::kMetropolisSymbol);
}

void DrawClock(const std::string& label, int seconds, int x, int height, Surface& surface) {
  surface.PrintAt(x, height - kLabelUp, label);
  surface.FontSize = kTimeSize;
  surface.PrintAt(x, height - kTimeUp, core::ClockText(seconds));
  surface.FontSize = kTextSize;
}

}  // namespace

void DrawClockStrip(const State& state, platform::Form& f1) {
  Surface& surface = f1.Drawing;
  const int width = f1.Width();
  // The frames of desktops differ: what one adds beyond this would push the clocks out of the window.
  const int above = std::min(f1.MenuBarHeight + f1.FrameHeight, kMostFrame);
  const int height = f1.Position.Get().Height + above;
  surface.Cls();
  surface.ForeColor = platform::kWhite;
  DrawTotals(state, width - kTotalsFromRight, surface);
  const core::Settings& settings = state.settings;
  if (!state.game.ClockRunning) {
    if (settings.ShowGameTime || settings.ShowPlayerTime) {
      surface.PrintAt(width / 2 - kPauseLeft, height - kPauseUp, "PAUSE");
    }
    return;
  }
  if (settings.ShowGameTime) DrawClock(state.Text(text::GameTime), state.game.Clock[0], kGameClockX, height, surface);
  if (settings.ShowPlayerTime) {
    DrawClock(state.Text(text::TurnTime), state.game.Clock[1], width - kPlayerClockFromRight, height, surface);
  }
}

void ShowWhetherClocksRun(const State& state, platform::Services& services, platform::Form& f1) {
  const bool run = state.game.ClockRunning;
  (*f1.MenuBar)["mnuExtraClock"].Caption = state.Text(run ? text::MenuStopClock : text::MenuStartClock);
  services.KeepScreenAwake(run, state.Text(text::ClockRuns));
}

}  // namespace mainwindow
