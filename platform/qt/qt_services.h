// The services of the machine by Qt and the standard library. Boxes and printing are in files of their own.
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
  void KeepScreenAwake(bool awake, const std::string& reason) override { screenSaver_.KeepAway(awake, reason); }
  void Quit(int status) override;

 private:
  const Version programVersion_;
  ScreenSaver screenSaver_;
  ToolkitLanguage toolkit_;
};

}  // namespace platform::qt
