// Services for tests: answers are given beforehand, what was asked is kept.
#pragma once

#include <deque>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "../dialogs/f8_settings.h"
#include "../platform/services.h"
#include "folders.h"
#include "keyboard.h"

namespace tests {

class ScriptedServices : public platform::Services {
 public:
  explicit ScriptedServices(std::filesystem::path folder = RunFolder()) : Folder(std::move(folder)) {}

  struct Box {
    std::string Text, Title;
    platform::Buttons Buttons;
    platform::Icon Icon;
  };

  std::vector<Box> Boxes;                             ///< the message boxes shown so far
  std::deque<platform::Answer> Answers;               ///< to the next boxes; then Ok and No
  std::deque<double> RandomNumbers;                   ///< the next ones; then 0
  std::function<void(platform::Form&)> WhileVisible;  ///< what the user does while a form is modal
  std::vector<platform::FileDialog> FileDialogs;      ///< as they were shown
  std::vector<std::string> Printers;
  std::pair<std::string, platform::Surface> Printed;  ///< printer and page
  bool PrinterFails = false;
  platform::Version Version{3, 0, 302};
  std::string ChosenFile;                 ///< empty: the file dialog is cancelled
  std::set<std::string> MissingPictures;  ///< by name
  std::filesystem::path Folder;           ///< the program's
  std::filesystem::path State;            ///< empty: no copies are kept
  std::string Separator = ",";
  bool ScreenAwake = false;
  platform::Words Words;  ///< what the toolkit says
  int QuitStatus = -1;    ///< -1: not asked to quit

  void Speak(const platform::Words& words) override { Words = words; }
  platform::Answer MessageBox(const std::string& text, const std::string& title, platform::Buttons buttons,
                              platform::Icon icon) override {
    Boxes.push_back({text, title, buttons, icon});
    return Next(Answers, buttons == platform::Buttons::Ok ? platform::Answer::Ok : platform::Answer::No);
  }
  void WaitWhileVisible(platform::Form& form) override {
    if (WhileVisible) return WhileVisible(form);
    form.Pick(dynamic_cast<dialogs::F8&>(form).comSelectLang, 0);  // the first run
    Key(form, platform::kKeyEnter);
  }
  bool ChooseFile(platform::FileDialog& dialog) override {
    FileDialogs.push_back(dialog);
    if (ChosenFile.empty()) return false;
    dialog.FileName = ChosenFile;
    return true;
  }
  std::vector<std::string> PrinterNames() override { return Printers; }
  bool Print(const std::string& printer, const platform::Page& page) override {
    Printed = {printer, page.Drawing};
    return !PrinterFails;
  }
  /// A page of which only the number of its steps is told.
  std::string PdfOf(const platform::Page& page) override { return std::to_string(page.Drawing.Steps().size()); }
  platform::Version ProgramVersion() override { return Version; }
  bool CanShow(const platform::Picture& picture) override {
    return !MissingPictures.contains(picture.Name) && (picture.IsResource || exists(RunFolder() / picture.Name));
  }
  double Random() override { return Next(RandomNumbers, 0.0); }
  std::filesystem::path ProgramFolder() override { return Folder; }
  std::filesystem::path ConfigurationFolder() override { return Folder / "config"; }
  std::filesystem::path DocumentsFolder() override { return Folder / "documents"; }
  std::filesystem::path StateFolder() override { return State; }
  std::string Today() override { return "22.11.2026"; }
  std::string DecimalSeparator() override { return Separator; }
  void KeepScreenAwake(bool awake, const std::string&) override { ScreenAwake = awake; }
  void Quit(int status) override { QuitStatus = status; }

 private:
  template <typename T>
  static T Next(std::deque<T>& queue, T otherwise) {
    if (queue.empty()) return otherwise;
    const T next = queue.front();
    queue.pop_front();
    return next;
  }
};

}  // namespace tests
