// F3, the about window: the program's name and version, and a running list of addresses and thanks.
#pragma once

#include <functional>

#include "../platform/timer.h"
#include "../windows/dialog.h"

namespace dialogs {

class F3 : public windows::Dialog {
 public:
  explicit F3(const windows::Context& context);

  platform::PictureBox picLogo;
  platform::Label lblPN;
  platform::Label lblFreeware;  ///< the version
  platform::Label lblCopyr;
  platform::PictureBox picFlash;  ///< the running list
  platform::CommandButton cmdShowReadme;
  platform::CommandButton cmdOK;
  platform::Timer timClock;

  /// The user wants to read the readme file.
  std::function<void()> ShowReadme = [] {};

  void OpenAbout();
  void SetCaptions() override;

 private:
  void F3_timClock_Timer();
  void F3_cmdOK_Click();
};

}  // namespace dialogs
