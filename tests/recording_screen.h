// A screen for tests of the rules: it keeps what the rules asked of it, in order.
#pragma once

#include <string>
#include <vector>

#include "../core/game_state.h"
#include "../core/screen.h"

namespace tests {

class RecordingScreen : public core::Screen {
 public:
  explicit RecordingScreen(const core::State& state) : state_(state) {}

  std::vector<std::string> Calls;

  /// Tells how many rolls the chart shows and how long the turn lasted, so that the order of the steps can be seen.
  void DrawDiceStats() override { Calls.push_back("chart of " + std::to_string(state_.game.TotalRolls)); }
  void DrawPlayerPanels() override { Calls.push_back("panels"); }
  void ShowPlayerPanels() override { Calls.push_back("who plays"); }
  void ShowStanding() override { Calls.push_back("standing"); }
  void ShowRolledDice() override { Calls.push_back("dice"); }
  void ShowAttack() override { Calls.push_back("attack"); }
  void UnlockMainWindow() override { Calls.push_back("unlock"); }
  void CloseDiceDialog() override { Calls.push_back("close after " + std::to_string(state_.game.Clock[1]) + " s"); }

 private:
  const core::State& state_;
};

}  // namespace tests
