// The whole program in the model, started with the shipped language file, and verbs to play with it.
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "../core/dice_log.h"
#include "../mainwindow/main_window.h"
#include "keyboard.h"
#include "scripted_services.h"

namespace tests {

class MainWindowTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(window.Load(), mainwindow::Started::Yes); }

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
  /// The number of the picture that a box shows, of the image list of the dice.
  static std::string Face(const platform::PictureBox& box) { return box.Image.Get().Name.substr(5, 2); }

  ScriptedServices services;
  mainwindow::MainWindow window{services};
  core::Game& game = window.State.game;
  core::Entry& entry = window.State.entry;
};

}  // namespace tests
