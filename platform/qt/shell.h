// Shows the forms of a desktop: makes their windows, runs their timers, and passes the events of the window system to
// the routing of the model.
#pragma once

#include <QDeadlineTimer>
#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "../desktop.h"
#include "../key_tracker.h"
#include "form_window.h"
#include "key_codes.h"

class QKeyEvent;
class QWheelEvent;

namespace platform::qt {

class Shell : public QObject {
 public:
  /// `mainForm` owns the others' windows. Both outlive the shell. Windows have the size, in 100, or the largest below
  /// it that fits on the screen.
  Shell(Desktop& desktop, Form& mainForm, int size = kNaturalSize);
  ~Shell() override;

  /// The window of a form; null before it was first shown.
  FormWindow* WindowOf(const Form& form) const;

  /// Called with the size of windows, in 100, that the user has chosen and kept for a second, or at the end.
  std::function<void(int size)> OnResize;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// A release that counts unless a repeat of its key follows at once.
  struct WaitingRelease {
    Form* receiver;
    KeyCode code;
    Modifiers with;
    KeyTracker::Time since;
  };

  FormWindow& MakeWindow(Form& form);
  void StartTimers(Form& form);
  void FormChanged(Form& form, Aspect aspect);

  bool FilterForWindow(FormWindow& window, QEvent& event);
  bool HandleKey(FormWindow& window, QKeyEvent& event);
  bool HandleSizeKey(const QKeyEvent& event);
  void ForgetKeys();
  void TurnWheel(const QWheelEvent& event);
  void ChooseSize(int size);
  void Resize(int size);
  bool Fits(int size) const;
  void PressKey(Form* receiver, const QKeyEvent& event);
  void ReleaseKey(Form* receiver, const QKeyEvent& event);
  void DeliverReleases(KeyCode except);
  void FollowActivation(FormWindow& window, QEvent::Type type);
  void FollowFocusWindow(QWindow* window);
  void BringToFront(Form& form);

  Desktop& desktop_;
  Form& mainForm_;
  std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
  QDeadlineTimer calledBack_;  ///< until when a locked window that gets the focus was clicked
  int size_ = kNaturalSize;
  QTimer chosen_;  ///< runs until OnResize is told
  int wheel_ = 0;  ///< what it has turned since the last step, in the toolkit's units
  KeyTracker keys_{OnWayland()};
  std::vector<WaitingRelease> waiting_;
};

}  // namespace platform::qt
