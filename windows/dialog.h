// What all dialogs share: the lock that they put on the main window. A dialog is modal by hand: opening it shows it and
// disables the main window, and every way out, the close box included, enables it again and hides the dialog.
#pragma once

#include <string>

#include "../core/game_state.h"
#include "../core/screen.h"
#include "../platform/desktop.h"
#include "../platform/form.h"
#include "../platform/services.h"
#include "../storage/places.h"

namespace windows {

/// What a dialog works on. All of it outlives the dialog.
struct Context {
  core::State& state;
  core::Screen& screen;
  platform::Services& services;
  platform::Desktop& desktop;
  platform::Form& F1;  ///< the main window

  /// Where files stand on this machine.
  storage::Places Places() const {
    return {services.ProgramFolder(), services.ConfigurationFolder(), services.DocumentsFolder()};
  }
};

class Dialog : public platform::Form {
 public:
  /// A hidden dialog with a client area in twips.
  Dialog(const Context& context, std::string name, int clientWidth, int clientHeight,
         platform::CloseBox closeBox = platform::CloseBox::Present)
      : Form(context.desktop, std::move(name), clientWidth, clientHeight, closeBox), context_(context) {}

  /// Takes title and captions from the language that was loaded.
  virtual void SetCaptions() = 0;

 protected:
  /// Shows the dialog, or brings it before the others if it is shown already.
  void BringUp();
  /// The same, and locks the main window.
  void Open();
  /// Unlocks the main window and hides the dialog.
  void Leave();
  /// Only gives the lock back, for a dialog that has work to do before it hides. The main window stays locked as long
  /// as another dialog that is open holds it.
  void Unlock();
  /// Takes part in a lock that is there already, without making one.
  void ShareLock() { locks_ = !context_.F1.Enabled; }

  core::State& state() { return context_.state; }
  core::Screen& screen() { return context_.screen; }

  Context context_;

 private:
  bool locks_ = false;
};

}  // namespace windows
