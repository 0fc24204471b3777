// Shows the forms of a desktop: makes their windows, runs their timers, and passes the events of the window system to
// the routing of the model.
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <map>
#include <memory>
#include <vector>

#include "../desktop.h"
#include "../key_tracker.h"
#include "form_window.h"
#include "key_codes.h"

class QKeyEvent;

namespace platform::qt {

class Shell : public QObject {
 public:
  /// `mainForm` owns the others' windows. Both outlive the shell.
  Shell(Desktop& desktop, Form& mainForm);
  ~Shell() override;

  /// The window of a form; null before it was first shown.
  FormWindow* WindowOf(const Form& form) const;

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
  void PressKey(Form* receiver, const QKeyEvent& event);
  void ReleaseKey(Form* receiver, const QKeyEvent& event);
  void DeliverReleases(KeyCode except);
  void FollowActivation(FormWindow& window, QEvent::Type type);
  void FollowFocusWindow(QWindow* window);
  void BringToFront(Form& form);

  Desktop& desktop_;
  Form& mainForm_;
  std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
  bool calledBack_ = false;  ///< by a click on a locked window
  KeyTracker keys_{OnWayland()};
  std::vector<WaitingRelease> waiting_;
};

}  // namespace platform::qt
