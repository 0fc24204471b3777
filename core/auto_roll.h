// The program rolls by itself. Two commands do it, and they do not give the faces of the event die the same odds.
#pragma once

#include <functional>

#include "game_state.h"
#include "screen.h"

namespace core {

/// Gives random numbers, at least 0 and below 1.
using RandomSource = std::function<double()>;

/// Who rolls the event die: the menu knows three ships on six sides, the mouse four even faces.
enum class EventDieOf { Menu, Mouse };

/// Rolls all three dice, one random number each, and records the roll.
void AutoRoll(State& state, Screen& screen, const RandomSource& random, EventDieOf command);

}  // namespace core
