// What all dialogs share: the lock that they put on the main window. A dialog is modal by hand: opening it shows it and
// disables the main window, and every way out, the close box included, hides it and gives the lock back.
#pragma once

#include <functional>
#include <set>
#include <string>

#include "../core/game_state.h"
#include "../core/screen.h"
#include "../platform/desktop.h"
#include "../platform/form.h"
#include "../platform/services.h"
#include "../storage/places.h"

namespace windows {

/// The lock of the main window. It takes input as long as no dialog holds the lock.
class Lock {
 public:
  explicit Lock(platform::Form& f1) : f1_(f1) {}

  void Take(const platform::Form& dialog);
  void GiveBack(const platform::Form& dialog);
  bool IsTaken() const { return !holders_.empty(); }

 private:
  platform::Form& f1_;
  std::set<const platform::Form*> holders_;
};

/// What a dialog works on. All of it outlives the dialog.
struct Context {
  core::State& state;
  core::Screen& screen;
  platform::Services& services;
  platform::Desktop& desktop;
  Lock& lock;
  const storage::Places& places;  ///< where files are on this machine
};

class Dialog : public platform::Form {
 public:
  /// A hidden dialog with a client area in twips.
  Dialog(const Context& context, std::string name, int clientWidth, int clientHeight,
         platform::CloseBox closeBox = platform::CloseBox::Present)
      : Form(context.desktop, std::move(name), clientWidth, clientHeight, closeBox), context_(context) {}

  /// Takes title and captions from the loaded language.
  virtual void SetCaptions() = 0;
  /// Gives the lock back and hides the dialog; in between what is left to do: a window that it opens gets the keyboard
  /// directly.
  void Leave(const std::function<void()>& last = nullptr);

 protected:
  /// Shows the dialog in front of the others and locks the main window.
  void Open();
  /// Leaves the dialog, with points and panels worked out anew in between: they may open the winner's window, which
  /// then holds the lock.
  void LeaveAndScore();

  core::State& state() { return context_.state; }
  core::Screen& screen() { return context_.screen; }

  Context context_;
};

}  // namespace windows
