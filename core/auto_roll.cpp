#include "auto_roll.h"

#include <algorithm>

#include "dice_log.h"

namespace core {
namespace {

std::int16_t Roll(const RandomSource& random, int sides) { return static_cast<std::int16_t>(random() * sides + 1); }

std::int16_t RollEventDie(const RandomSource& random, EventDieOf command) {
  if (command == EventDieOf::Mouse) return Roll(random, kEventFaces);
  return std::min<std::int16_t>(Roll(random, 6), kShipFace);
}

}  // namespace

void AutoRoll(State& state, Screen& screen, const RandomSource& random, EventDieOf command) {
  state.entry.Die1 = Roll(random, 6);
  state.entry.Die2 = Roll(random, 6);
  state.entry.EventDie = RollEventDie(random, command);
  RecordRoll(state, screen);
}

}  // namespace core
