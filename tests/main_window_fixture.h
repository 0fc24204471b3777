// The whole program in the model, started in the language whose texts are their numbers, verbs to play with it, and a
// folder to save in.
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "../core/points.h"
#include "../core/rolls.h"
#include "../mainwindow/main_window.h"
#include "keyboard.h"
#include "numbered_program.h"
#include "scripted_services.h"
#include "storage/temporary_folder.h"

namespace tests {

using Act = std::function<void()>;

inline constexpr platform::Modifiers kShift{.Shift = true}, kCtrl{.Control = true}, kAlt{.Alt = true};

class MainWindowTest : public TemporaryFolder {
 protected:
  MainWindowTest() { EXPECT_EQ(window.Load(), mainwindow::Started::Yes); }

  /// Turns the running game into one of the first expansion.
  void PlayExpansion() {
    game.GameType = core::kFirstExpansion;
    window.F1.picWurfel(2).Visible = true;
  }
  /// Types keys as fast as can be: they arrive at the main window before a dialog has the keyboard.
  void Type(const std::string& keys, platform::Modifiers with = {}) {
    for (const char key : keys) Press(static_cast<unsigned char>(key), with);
  }
  void Press(platform::KeyCode code, platform::Modifiers with = {}) {
    if (platform::Form* form = window.Desktop.KeyReceiver(window.F1)) Key(*form, code, with);
  }
  void Choose(const char* menuItem) { window.F1.ClickMenu((*window.F1.MenuBar)[menuItem]); }
  std::string Caption(const char* menuItem) { return (*window.F1.MenuBar)[menuItem].Caption; }
  /// Leaves every dialog, by Esc, Enter or the close box.
  void LeaveAll() {
    for (platform::Form* form : window.Desktop.Forms()) {
      if (form == &window.F1) continue;
      Key(*form, platform::kKeyEscape);
      form->PressCloseBox();
      Key(*form, platform::kKeyEnter);
    }
  }
  int Rolls() { return core::CountTotalRolls(game); }
  bool Locking(const platform::Form& dialog) const { return dialog.Visible && !window.F1.Enabled; }
  bool Closed(const platform::Form& dialog) const { return !dialog.Visible && window.F1.Enabled; }
  /// The pictures of a row of controls by their numbers in the image list, "-" for none.
  template <typename Controls>
  static std::string Numbers(const Controls& controls) {
    std::string numbers;
    for (int i = controls.First(); i <= controls.Last(); ++i) {
      const std::string name = controls(i).Image.Get().Name;
      numbers += (numbers.empty() ? "" : " ") + (name.empty() ? "-" : name.substr(name.find('/') + 1, 2));
    }
    return numbers;
  }

  ScriptedServices services{MakeNumberedProgram(Folder)};
  mainwindow::MainWindow window{services};
  core::Game& game = window.State.game;
  core::Figures& figures = window.State.figures;
  core::Asked& asked = window.State.asked;
  core::Entry& entry = window.State.entry;
  core::Settings& settings = window.State.settings;
};

}  // namespace tests
