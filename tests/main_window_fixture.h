// The whole program in the model, started with the shipped language file, verbs to play with it, and a folder to save
// in.
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "../core/dice_log.h"
#include "../mainwindow/main_window.h"
#include "keyboard.h"
#include "scripted_services.h"
#include "storage/temporary_folder.h"

namespace tests {

using Act = std::function<void()>;

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
  int Rolls() { return core::CountTotalRolls(game); }
  bool Locking(const platform::Form& dialog) const { return dialog.Visible && !window.F1.Enabled; }
  bool Closed(const platform::Form& dialog) const { return !dialog.Visible && window.F1.Enabled; }
  /// The numbers of the pictures of three dice, of their image list.
  static std::string Faces(const platform::ControlArray<platform::PictureBox>& dice) {
    std::string faces;
    for (int i = 0; i < 3; ++i) faces += (i ? " " : "") + dice(i).Image.Get().Name.substr(5, 2);
    return faces;
  }

  ScriptedServices services;
  mainwindow::MainWindow window{services};
  core::Game& game = window.State.game;
  core::Entry& entry = window.State.entry;
  core::Settings& settings = window.State.settings;
};

}  // namespace tests
