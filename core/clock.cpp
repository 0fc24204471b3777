#include "clock.h"

#include <algorithm>

#include "numbers.h"

namespace core {
namespace {

constexpr int kSecondsPerMinute = 60;
constexpr int kSecondsPerHour = 3600;

std::string TwoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

}  // namespace

void Tick(Game& game) {
  if (!game.ClockRunning) return;
  for (std::int16_t& seconds : game.Clock) seconds = Saturate16(seconds + 1);
}

std::string ClockText(int seconds) {
  const int shown = std::max(seconds, 0);
  const int hours = shown / kSecondsPerHour;
  const int minutes = shown % kSecondsPerHour / kSecondsPerMinute;
  return (hours == 0 ? "" : std::to_string(hours) + ":") + TwoDigits(minutes) + ":" +
         TwoDigits(shown % kSecondsPerMinute);
}

}  // namespace core
