// The whole program in the model, started in the language whose texts are their numbers, verbs to play with it, and a
// folder to save in.
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "../mainwindow/main_window.h"
#include "hands.h"
#include "numbered_program.h"
#include "scripted_services.h"
#include "storage/temporary_folder.h"

namespace tests {

class MainWindowTest : public TemporaryFolder, protected virtual Hands {
 protected:
  void SetUp() override { ASSERT_EQ(window.Load(), mainwindow::Started::Yes); }

  /// Types keys as fast as can be: they arrive at the main window before a dialog has the keyboard.
  void Type(const std::string& keys, platform::Modifiers with = {}) {
    for (const char key : keys) Press(static_cast<unsigned char>(key), with);
  }
  void Press(platform::KeyCode code, platform::Modifiers with = {}) {
    platform::Form* form = window.Desktop.KeyReceiver(window.F1);
    if (!form) form = window.Desktop.Front();  // which has the keyboard where windows are shown
    if (form) KeyDown(*form, code, with);
    if (form) KeyUp(*form, code, with);
  }
  void Choose(const char* menuItem) { ClickMenu(window.F1, (*window.F1.MenuBar)[menuItem]); }
  std::string Caption(const char* menuItem) { return (*window.F1.MenuBar)[menuItem].Caption; }

  ScriptedServices services{MakeNumberedProgram(Folder)};
  mainwindow::MainWindow window{services};
};

}  // namespace tests
