#include <windows.h>

#include "screen_saver.h"

namespace platform::qt {
namespace {

/// Windows shows no reason for it.
class WindowsScreenSaver : public ScreenSaver {
 public:
  ~WindowsScreenSaver() override { SetThreadExecutionState(ES_CONTINUOUS); }

  void KeepAway(bool away, const std::string&) override {
    SetThreadExecutionState(away ? ES_CONTINUOUS | ES_DISPLAY_REQUIRED : ES_CONTINUOUS);
  }
};

}  // namespace

std::unique_ptr<ScreenSaver> ScreenSaver::Make() { return std::make_unique<WindowsScreenSaver>(); }

}  // namespace platform::qt
