#include "shell.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScreen>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <iterator>

namespace platform::qt {
namespace {

/// Whether an event comes from the user. A locked window must not get it.
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

/// Keys that Qt's widgets get after the form: those of text fields and lists, and Alt, which leads to the menu bar.
/// Tab, Enter and Esc are the form's alone.
bool BelongsToWidgetToo(KeyCode code, QWidget* focus) {
  if (code == kKeyAlt) return true;
  if (code == kKeyTab || code == kKeyEnter || code == kKeyEscape) return false;
  const bool text = qobject_cast<QLineEdit*>(focus) || qobject_cast<QPlainTextEdit*>(focus);
  return text || qobject_cast<QComboBox*>(focus);
}

FormWindow* FormWindowOf(QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  if (auto* window = qobject_cast<QWindow*>(object)) widget = QWidget::find(window->winId());
  return widget ? dynamic_cast<FormWindow*>(widget->window()) : nullptr;
}

/// Whether the keyboard is in the menu bar.
bool MenuIsInUse() { return qobject_cast<QMenuBar*>(QApplication::focusWidget()) != nullptr; }

/// The user has moved the focus to a widget; the form follows.
void FollowFocus(QWidget* widget) {
  FormWindow* window = widget ? dynamic_cast<FormWindow*>(widget->window()) : nullptr;
  const ControlView* view = window ? ControlView::Of(widget) : nullptr;
  if (view && view->Model().TakesFocus()) window->Model().SetFocus(view->Model());
}

/// How long the window system may take to give the focus to a window that was clicked.
constexpr std::chrono::milliseconds kLateFocus{500};

KeyTracker::Time TimeOf(const QKeyEvent& event) { return KeyTracker::Time(event.timestamp()); }

}  // namespace

Shell::Shell(Desktop& desktop, Form& mainForm, int size) : desktop_(desktop), mainForm_(mainForm) {
  SetZoom(size_);
  MakeWindow(mainForm_);
  if (std::find(std::begin(kSizes), std::end(kSizes), size) == std::end(kSizes)) size = kNaturalSize;
  while (!Fits(size) && NextSize(size, false) != size) size = NextSize(size, false);
  if (size != size_) Resize(size);
  for (Form* form : desktop_.Forms()) StartTimers(*form);
  desktop_.OnChange = [this](Form& form, Aspect aspect) { FormChanged(form, aspect); };
  qApp->installEventFilter(this);
  chosen_.setSingleShot(true);
  chosen_.setInterval(std::chrono::seconds(1));
  connect(&chosen_, &QTimer::timeout, this, [this] { OnResize(size_); });
  connect(qApp, &QApplication::focusChanged, this, [](QWidget*, QWidget* now) { FollowFocus(now); });
  connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](QWindow* window) { FollowFocusWindow(window); });
}

Shell::~Shell() {
  qApp->removeEventFilter(this);
  if (chosen_.isActive()) OnResize(size_);
  desktop_.OnChange = nullptr;
  for (Form* form : desktop_.Forms()) {
    for (Timer* timer : form->Timers) timer->OnChange = nullptr;
  }
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
  if (aspect == Aspect::Focus) BringToFront(form);
  if (aspect != Aspect::Visible) return;
  if (!form.Visible) {
    // Activated before the window is hidden, so that the next key finds a window of the program.
    Form* next = mainForm_.AcceptsInput() ? &mainForm_ : desktop_.Front();
    if (next) WindowOf(*next)->activateWindow();
    if (FormWindow* window = WindowOf(form)) window->FollowVisible();
    return;
  }
  MakeWindow(form).FollowVisible();
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
  if (event.type() == QEvent::Wheel && static_cast<QWheelEvent&>(event).modifiers().testFlag(Qt::ControlModifier)) {
    TurnWheel(static_cast<QWheelEvent&>(event));
    return true;
  }
  if (!IsUserInput(event.type()) || window.Model().AcceptsInput()) return false;
  Form* front = event.type() == QEvent::MouseButtonPress ? desktop_.Front() : nullptr;
  if (front) {
    calledBack_.setRemainingTime(kLateFocus);
    desktop_.BringToFront(*front);
  }
  return true;
}

bool Shell::HandleKey(FormWindow& window, QKeyEvent& event) {
  if (MenuIsInUse()) return false;
  if (HandleSizeKey(event)) return true;
  const bool own = window.Model().AcceptsInput();
  DeliverReleases(CodeOf(event));
  Form* receiver = desktop_.KeyReceiver(window.Model());
  if (event.type() == QEvent::KeyPress) {
    PressKey(receiver, event);
  } else {
    ReleaseKey(receiver, event);
  }
  return !own || !BelongsToWidgetToo(CodeOf(event), window.focusWidget());
}

/// Ctrl with plus, minus or 0. Plus is the key itself or, where it needs Shift, the sign that shares its key.
bool Shell::HandleSizeKey(const QKeyEvent& event) {
  const Qt::KeyboardModifiers held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  if (held != Qt::ControlModifier) return false;
  const KeyCode code = CodeOf(event);
  const bool larger = event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal;
  const bool smaller = event.key() == Qt::Key_Minus || event.key() == Qt::Key_Underscore;
  // Without NumLock the pad's key is Insert.
  const bool natural = code == '0' || (code == kKeyNumberPad0 && event.key() == Qt::Key_0);
  if (!larger && !smaller && !natural) return false;
  ForgetKeys();
  if (event.type() == QEvent::KeyPress) ChooseSize(natural ? kNaturalSize : NextSize(size_, larger));
  return true;
}

/// The Ctrl of another size is no key of the form that has the keyboard: its release finds nothing held.
void Shell::ForgetKeys() {
  for (Form* form : desktop_.Forms()) form->ForgetKeys();
}

void Shell::TurnWheel(const QWheelEvent& event) {
  ForgetKeys();
  wheel_ += event.angleDelta().y();
  if (std::abs(wheel_) < QWheelEvent::DefaultDeltasPerStep) return;
  ChooseSize(NextSize(size_, wheel_ > 0));
  wheel_ = 0;
}

void Shell::ChooseSize(int size) {
  if (size == size_ || !Fits(size)) return;
  Resize(size);
  if (OnResize) chosen_.start();
}

void Shell::Resize(int size) {
  size_ = size;
  SetZoom(size);
  QApplication::setFont(ToQt(Font{}));  // of menus, tooltips, message boxes and the file dialog
  for (auto& [form, window] : windows_) window->Rescale();
}

/// Whether the largest window fits on the screen, with its frame, or as long as that is not known, a usual one.
bool Shell::Fits(int size) const {
  constexpr int kUsualFrame = 600;  // twips
  QSize room;
  for (const Form* form : desktop_.Forms()) {
    const Place place = form->Position;
    room = room.expandedTo({place.Width, place.Height + form->MenuBarHeight});
  }
  const int frameHeight = mainForm_.FrameHeight > 0 ? mainForm_.FrameHeight : kUsualFrame;
  const QSize frame(mainForm_.FrameWidth, frameHeight);
  const QSize needed = (room * size / kNaturalSize + frame) / kTwipsPerPixel;
  const QSize screen = WindowOf(mainForm_)->screen()->availableSize();
  return needed.width() <= screen.width() && needed.height() <= screen.height();
}

void Shell::PressKey(Form* receiver, const QKeyEvent& event) {
  const KeyCode code = CodeOf(event);
  const auto verdict = keys_.Press(code, TimeOf(event), event.isAutoRepeat());
  if (verdict != KeyTracker::Verdict::Counts || !receiver) return;
  // From the first Tab on the focus is shown, but not in forms that use their keys wherever it is.
  if (code == kKeyTab && receiver->PressesFocusedButtons) WindowOf(*receiver)->setAttribute(Qt::WA_KeyboardFocusChange);
  receiver->KeyPress(code, ModifiersOf(event.modifiers()));
}

void Shell::ReleaseKey(Form* receiver, const QKeyEvent& event) {
  const KeyCode code = CodeOf(event);
  const Modifiers with = ModifiersOf(event.modifiers());
  const auto time = TimeOf(event);
  const auto verdict = keys_.Release(code, time, event.isAutoRepeat());
  if (verdict == KeyTracker::Verdict::Counts && receiver) receiver->KeyRelease(code, with);
  if (verdict != KeyTracker::Verdict::Waits) return;
  waiting_.push_back({receiver, code, with, time});
  QTimer::singleShot(KeyTracker::kPatience, this, [this] { DeliverReleases(kKeyUnknown); });
}

/// Delivers the waiting releases, except those of a key that may be repeated now: a repeat follows its own release
/// directly, so an event of another key shows that these keys are up.
void Shell::DeliverReleases(KeyCode except) {
  std::vector<WaitingRelease> due;
  due.swap(waiting_);
  for (const WaitingRelease& release : due) {
    if (release.code == except) {
      waiting_.push_back(release);
    } else if (keys_.Expired(release.code, release.since) && release.receiver && !QApplication::activeModalWidget()) {
      release.receiver->KeyRelease(release.code, release.with);
    }
  }
}

void Shell::FollowActivation(FormWindow& window, QEvent::Type type) {
  if (type == QEvent::WindowActivate) {
    window.LearnFrame();
    return desktop_.Activated(window.Model());
  }
  // A dialog that has just been opened may still get keys through this window.
  if (window.Model().AcceptsInput()) window.Model().ForgetKeys();
}

/// When a message box or another program gets the keyboard, keys that are down are released there. The focus may move
/// to the window that was clicked only after the form in front was activated; then that is activated again. Compositors
/// also give it to a locked window by its title bar or the task bar, which the program does not see.
void Shell::FollowFocusWindow(QWindow* window) {
  FormWindow* form = window ? FormWindowOf(window) : nullptr;
  if (!form) {
    keys_.Forget();
    return waiting_.clear();
  }
  if (QWidget* box = QApplication::activeModalWidget()) return box->activateWindow();
  Form* front = form->Model().AcceptsInput() ? nullptr : desktop_.Front();
  if (front && (OnWayland() || !calledBack_.hasExpired())) BringToFront(*front);
}

void Shell::BringToFront(Form& form) {
  FormWindow* window = WindowOf(form);
  if (!window) return;
  if (window->isMinimized()) window->showNormal();
  window->raise();
  window->activateWindow();
}

}  // namespace platform::qt
