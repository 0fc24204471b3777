#include "shell.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QWindow>

#include "key_codes.h"

namespace platform::qt {
namespace {

/// Whether an event is the user's doing: what a locked window must not get.
bool IsUserInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::Drop:
    case QEvent::Close: return true;
    default: return false;
  }
}

/// Keys that Qt's own widgets get as well once the form has had them: those of text fields and lists, and Alt, with
/// which the menu bar is reached. Tab, Enter and Esc belong to the form alone.
bool BelongsToWidgetToo(KeyCode code, QWidget* focus) {
  if (code == kKeyAlt) return true;
  if (code == kKeyTab || code == kKeyEnter || code == kKeyEscape) return false;
  const bool text = qobject_cast<QLineEdit*>(focus) || qobject_cast<QPlainTextEdit*>(focus);
  const bool arrow = code >= kKeyLeft && code <= kKeyDown;
  return text || qobject_cast<QComboBox*>(focus) || (arrow && focus);
}

FormWindow* FormWindowOf(QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  if (auto* window = qobject_cast<QWindow*>(object)) widget = QWidget::find(window->winId());
  return widget ? dynamic_cast<FormWindow*>(widget->window()) : nullptr;
}

/// Whether the user walks along the menu bar by keyboard. The bar may keep the focus when it is left.
bool MenuIsInUse() {
  auto* bar = qobject_cast<QMenuBar*>(QApplication::focusWidget());
  return bar && bar->activeAction();
}

/// The user has put the focus on a widget: the form's focus is there too.
void FollowFocus(QWidget* widget) {
  FormWindow* window = widget ? dynamic_cast<FormWindow*>(widget->window()) : nullptr;
  Control* control = window ? window->Widgets().ControlOf(widget) : nullptr;
  if (control && control->TakesFocus()) window->Model().SetFocus(*control);
}

KeyTracker::Time TimeOf(const QKeyEvent& event) { return KeyTracker::Time(event.timestamp()); }

}  // namespace

Shell::Shell(Desktop& desktop, Form& mainForm) : desktop_(desktop), mainForm_(mainForm) {
  MakeWindow(mainForm_);
  for (Form* form : desktop_.Forms()) StartTimers(*form);
  desktop_.OnChange = [this](Form& form, Aspect aspect) { FormChanged(form, aspect); };
  qApp->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, [](QWidget*, QWidget* now) { FollowFocus(now); });
}

Shell::~Shell() {
  qApp->removeEventFilter(this);
  desktop_.OnChange = nullptr;
  // Dialogs are children of the main window and go before it.
  for (auto& [form, window] : windows_) {
    if (form != &mainForm_) window.reset();
  }
}

FormWindow* Shell::WindowOf(const Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second.get();
}

FormWindow& Shell::MakeWindow(Form& form) {
  std::unique_ptr<FormWindow>& window = windows_[&form];
  if (!window) window = std::make_unique<FormWindow>(form, &form == &mainForm_ ? nullptr : WindowOf(mainForm_));
  return *window;
}

void Shell::StartTimers(Form& form) {
  for (Timer* timer : form.Timers) {
    auto* ticker = new QTimer(this);
    ticker->setTimerType(Qt::PreciseTimer);
    ticker->setInterval(timer->Interval);
    connect(ticker, &QTimer::timeout, this, [timer] { timer->Elapsed(); });
    timer->OnChange = [timer, ticker] { timer->Enabled ? ticker->start() : ticker->stop(); };
    timer->OnChange();
  }
}

void Shell::FormChanged(Form& form, Aspect aspect) {
  if (aspect != Aspect::Visible) return;
  if (!form.Visible) {
    // The keyboard goes back before the window goes, so that the next key finds a window of the program.
    FormWindow* main = WindowOf(mainForm_);
    if (&form != &mainForm_ && mainForm_.AcceptsInput()) main->activateWindow();
    if (FormWindow* window = WindowOf(form)) window->FollowVisible(origin_);
    return;
  }
  MakeWindow(form).FollowVisible(origin_);
  if (&form == &mainForm_) {
    QTimer::singleShot(100, this, [this] { origin_ = WindowOf(mainForm_)->frameGeometry().topLeft(); });
  }
}

bool Shell::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate) {
    if (auto* form = dynamic_cast<FormWindow*>(watched)) FollowActivation(*form, event->type());
    return false;
  }
  const bool onWindow = watched->isWindowType();
  const bool ofInterest = onWindow || event->type() == QEvent::Shortcut || event->type() == QEvent::ShortcutOverride ||
                          event->type() == QEvent::Close;
  FormWindow* window = ofInterest ? FormWindowOf(watched) : nullptr;
  return window && FilterForWindow(*window, *event);
}

bool Shell::FilterForWindow(FormWindow& window, QEvent& event) {
  // An open menu or list has the keyboard and the mouse to itself.
  if (QApplication::activePopupWidget()) return false;
  if (event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease) {
    return HandleKey(window, static_cast<QKeyEvent&>(event));
  }
  if (!IsUserInput(event.type()) || window.Model().AcceptsInput()) return false;
  if (event.type() == QEvent::MouseButtonPress) RaiseFrontDialog();
  return true;
}

bool Shell::HandleKey(FormWindow& window, QKeyEvent& event) {
  if (MenuIsInUse()) return false;
  QPointer<FormWindow> still(&window);
  const bool own = window.Model().AcceptsInput();
  Form* receiver = desktop_.KeyReceiver(window.Model());
  if (event.type() == QEvent::KeyPress) {
    PressKey(receiver, event);
  } else {
    ReleaseKey(receiver, event);
  }
  return !own || !still || !BelongsToWidgetToo(CodeOf(event), window.focusWidget());
}

void Shell::PressKey(Form* receiver, const QKeyEvent& event) {
  const KeyCode code = CodeOf(event);
  const auto verdict = keys_.Press(code, TimeOf(event), event.isAutoRepeat());
  if (verdict == KeyTracker::Verdict::Counts && receiver) receiver->KeyPress(code, ModifiersOf(event.modifiers()));
}

void Shell::ReleaseKey(Form* receiver, const QKeyEvent& event) {
  const KeyCode code = CodeOf(event);
  const Modifiers with = ModifiersOf(event.modifiers());
  const auto time = TimeOf(event);
  const auto verdict = keys_.Release(code, time, event.isAutoRepeat());
  if (verdict == KeyTracker::Verdict::Counts && receiver) receiver->KeyRelease(code, with);
  if (verdict != KeyTracker::Verdict::Waits) return;
  QTimer::singleShot(KeyTracker::kPatience, this, [this, receiver, code, with, time] {
    if (keys_.Expired(code, time) && receiver) receiver->KeyRelease(code, with);
  });
}

void Shell::FollowActivation(FormWindow& window, QEvent::Type type) {
  if (type == QEvent::WindowActivate) return desktop_.Activated(window.Model());
  // A dialog that opened just now may still get keys through this window; they are not this form's any more.
  if (window.Model().AcceptsInput()) window.Model().ForgetKeys();
}

void Shell::RaiseFrontDialog() {
  for (auto& [form, window] : windows_) {
    if (form != &mainForm_ && form->AcceptsInput()) {
      window->raise();
      window->activateWindow();
    }
  }
}

}  // namespace platform::qt
