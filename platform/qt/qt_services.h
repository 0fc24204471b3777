// The services of the machine by Qt and the standard library. Boxes and printing are in files of their own, and what
// each system does in its own way.
#pragma once

#include "../services.h"
#include "screen_saver.h"
#include "toolkit_language.h"

namespace platform::qt {

class QtServices : public Services {
 public:
  explicit QtServices(Version programVersion) : programVersion_(programVersion) {}

  void Speak(const Words& words) override { toolkit_.Use(words); }
  Answer MessageBox(const std::string& text, const std::string& title, Buttons buttons, Icon icon) override;
  void WaitWhileVisible(Form& form) override;
  bool ChooseFile(FileDialog& dialog) override;
  std::vector<std::string> PrinterNames() override;
  bool Print(const std::string& printer, const Page& page) override;
  std::string PdfOf(const Page& page) override;
  Version ProgramVersion() override { return programVersion_; }
  bool CanShow(const Picture& picture) override;
  double Random() override;
  std::filesystem::path ProgramFolder() override;
  std::filesystem::path ConfigurationFolder() override;
  std::filesystem::path DocumentsFolder() override;
  std::filesystem::path StateFolder() override;
  std::string Today() override;
  std::string DecimalSeparator() override;
  void KeepScreenAwake(bool awake, const std::string& reason) override { screenSaver_->KeepAway(awake, reason); }
  void Quit(int status) override;

 private:
  /// What the print system says of the job sent last.
  static bool LastJobWasTaken();

  const Version programVersion_;
  const std::unique_ptr<ScreenSaver> screenSaver_ = ScreenSaver::Make();
  ToolkitLanguage toolkit_;
};

}  // namespace platform::qt
