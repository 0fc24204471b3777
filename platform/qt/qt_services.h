// The services of the machine, by Qt and the standard library.
#pragma once

#include <random>

#include "../services.h"
#include "screen_saver.h"

namespace platform::qt {

class QtServices : public Services {
 public:
  QtServices();

  Answer MessageBox(const std::string& text, const std::string& title, Buttons buttons, Icon icon) override;
  void WaitWhileVisible(Form& form) override;
  bool ChooseFile(FileDialog& dialog) override;
  std::vector<std::string> PrinterNames() override;
  bool Print(const std::string& printer, const Surface& page) override;
  std::string PdfOf(const Surface& page) override;
  Version ProgramVersion() override;
  bool CanShow(const Picture& picture) override;
  double Random() override;
  std::filesystem::path ProgramFolder() override;
  std::filesystem::path ConfigurationFolder() override;
  std::filesystem::path DocumentsFolder() override;
  std::string Today() override;
  std::string DecimalSeparator() override;
  void KeepScreenAwake(bool awake) override { screenSaver_.KeepAway(awake); }
  void Quit(int status) override;

 private:
  std::mt19937_64 generator_;  ///< seeded once, from the clock
  ScreenSaver screenSaver_;
};

}  // namespace platform::qt
