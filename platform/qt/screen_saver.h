// Keeps the screen from going dark while nobody touches keyboard or mouse, as each system can. Where it cannot, nothing
// happens. Each system has its own file.
#pragma once

#include <memory>
#include <string>

namespace platform::qt {

class ScreenSaver {
 public:
  /// Of the system that the program runs on.
  static std::unique_ptr<ScreenSaver> Make();

  /// Lets the screen go dark again.
  virtual ~ScreenSaver() = default;

  /// Keeps the screen on, or lets it go dark again. Desktops show the reason; another one is asked for anew.
  virtual void KeepAway(bool away, const std::string& reason) = 0;
};

}  // namespace platform::qt
