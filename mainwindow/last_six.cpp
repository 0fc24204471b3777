#include "last_six.h"

#include <string>

#include "../windows/form_metrics.h"

namespace mainwindow {
namespace {

using platform::Colour;
using platform::Surface;
using windows::kLightGrey;

constexpr int kShown = 6;
constexpr int kPitch = 70;
constexpr int kTextY = 1;
constexpr int kLabelX = 5;
constexpr int kOldestX = 500;  // in a game without event die
constexpr int kOldestWithMarkX = 485;
constexpr int kMarkOffset = 20;

constexpr Colour kGateColours[] = {Colour::FromBgr(0xFF901E), Colour::FromBgr(0x00FFFF), Colour{0, 150, 0}};

/// A gate shows the red die in its colour, the ship a letter.
void DrawMark(const core::TRoll& roll, int x, Surface& strip) {
  if (roll.EventDie < 1 || roll.EventDie > core::kEventFaces) return;
  const bool ship = roll.EventDie == core::kShipFace;
  strip.ForeColor = ship ? kLightGrey : kGateColours[roll.EventDie - 1];
  strip.PrintAt(x, kTextY, ship ? "(B)" : "(" + std::to_string(roll.Die2) + ")");
}

void DrawRoll(const core::TRoll& roll, std::int16_t gameType, int place, Surface& strip) {
  const std::string sum = std::to_string(roll.Die1 + roll.Die2);
  strip.ForeColor = kLightGrey;
  if (gameType == core::kBaseGame) {
    strip.PrintAt(kOldestX - kPitch * place, kTextY, sum);
  } else if (gameType == core::kFirstExpansion) {
    const int x = kOldestWithMarkX - kPitch * place;
    strip.PrintAt(x, kTextY, sum);
    DrawMark(roll, x + kMarkOffset, strip);
  }
}

}  // namespace

void DrawLastSix(const core::State& state, Surface& picInfoLine) {
  picInfoLine.FontSize = 9;
  picInfoLine.FontBold = true;
  picInfoLine.ForeColor = kLightGrey;
  picInfoLine.Cls();
  picInfoLine.PrintAt(kLabelX, kTextY, state.Text(25));
  for (int place = 0; place < kShown; ++place) {
    const int entry = state.figures.TotalRolls - (kShown - 1) + place;
    if (entry < 1 || entry > core::kLoggedRolls) continue;
    DrawRoll(state.game.DiceLog[entry], state.game.GameType, place, picInfoLine);
  }
}

}  // namespace mainwindow
