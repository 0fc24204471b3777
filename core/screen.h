// All that the rules need of a screen: one narrow seam, implemented by the main window, and by tests in a few lines.
#pragma once

namespace core {

class Screen {
 public:
  virtual ~Screen() = default;

  virtual void DrawDiceStats() = 0;     ///< the chart and the last six rolls anew
  virtual void DrawPlayerPanels() = 0;  ///< the six panels, the leaders, the win test
  virtual void ShowRolledDice() = 0;    ///< `Die1`, `Die2`, `EventDie` as pictures of the main window
  virtual void ShowAttack() = 0;        ///< fills and opens the barbarian window
  virtual void CloseDiceDialog() = 0;   ///< which unlocks the main window, unless the attack keeps it locked
};

}  // namespace core
