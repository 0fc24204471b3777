// A random evening on real windows: what the model's evening does to forms is typed and clicked here on the widgets
// that show them, and after each event they must show what the model holds. To play one seed again, or longer:
//   ORVANBEG_EVENING_SEED=3 ORVANBEG_EVENING_EVENTS=50000 qt_tests --gtest_filter='*WidgetEvening*'
#include "../random_evening/random_evening.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

#include "real_windows.h"

namespace tests {
namespace {

#ifdef NDEBUG
constexpr unsigned kEvents = 20'000;
#else  // the debug build carries the sanitizers
constexpr unsigned kEvents = 4000;
#endif
constexpr unsigned kEnoughForAll = 20'000;  // events in which every dialog has been open

Qt::Key KeyOf(KeyCode code) {
  static const std::map<KeyCode, Qt::Key> kNamed{
      {kKeyBackspace, Qt::Key_Backspace}, {kKeyTab, Qt::Key_Tab},         {kKeyEnter, Qt::Key_Return},
      {kKeyShift, Qt::Key_Shift},         {kKeyControl, Qt::Key_Control}, {kKeyAlt, Qt::Key_Alt},
      {kKeyEscape, Qt::Key_Escape},       {kKeyLeft, Qt::Key_Left},       {kKeyUp, Qt::Key_Up},
      {kKeyRight, Qt::Key_Right},         {kKeyDown, Qt::Key_Down}};
  if (const auto named = kNamed.find(code); named != kNamed.end()) return named->second;
  return static_cast<Qt::Key>(code < kKeyF1 ? code : Qt::Key_F1 + code - kKeyF1);
}

Qt::KeyboardModifiers HeldOf(Modifiers with) {
  return (with.Shift ? Qt::ShiftModifier : Qt::NoModifier) | (with.Control ? Qt::ControlModifier : Qt::NoModifier) |
         (with.Alt ? Qt::AltModifier : Qt::NoModifier);
}

class WidgetEvening : public RandomEvening, Hands {
 protected:
  WidgetEvening() : Hands(shell_) {}

  void KeyDown(Form& form, KeyCode code, Modifiers with) override { Send(form, true, code, with); }
  void KeyUp(Form& form, KeyCode code, Modifiers with) override {
    Send(form, false, code, with);
    Settle();
  }
  void ClickOn(Control& control, MouseButton button) override {
    if (!Shown(control)) return;
    Click(control, static_cast<Qt::MouseButton>(button));
    Settle();
  }
  void ClickTool(ToolBar& bar, int index) override {
    const auto buttons = Shown(bar) ? WidgetOf(bar).findChildren<QToolButton*>() : QList<QToolButton*>();
    if (index < 0 || index >= buttons.size()) return;
    ClickAt(*buttons[index], buttons[index]->rect().center());
    Settle();
  }
  void ClickMenu(MenuItem& item) override {
    const QString caption = QString::fromStdString(item.Caption);
    auto& bar = *WindowOf(window.F1).findChild<QMenuBar*>();
    for (QAction* title : bar.actions()) {
      for (QAction* entry : title->menu()->actions()) {
        if (entry->text().section('\t', 0, 0) != caption || entry->isSeparator()) continue;
        ClickAt(bar, bar.actionGeometry(title).center());
        if (title->menu()->isVisible()) ClickAt(*title->menu(), title->menu()->actionGeometry(entry).center());
      }
    }
    Settle();
  }
  void Pick(ComboBox& combo, int index) override {
    ClickOn(combo, MouseButton::Left);
    for (int i = 0; i <= index && Shown(combo); ++i) Type(*combo.Owner(), Qt::Key_Down);
    Settle();
  }
  void Write(Control& control, const std::string& text) override {
    QApplication::clipboard()->setText(QString::fromStdString(text));
    ClickOn(control, MouseButton::Left);
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_V}) {
      if (Shown(control)) Type(*control.Owner(), key, Qt::ControlModifier);
    }
    Settle();
  }
  void PressCloseBox(Form& form) override {
    if (IsOpen(form)) WindowOf(form).close();
    Settle();
  }

  std::string Offence() override { return RandomEvening::Offence() + ViewOffence(); }
  std::string ViewOffence() {
    for (const Form* form : window.Desktop.Forms()) {
      const auto* shown = shell_.WindowOf(*form);
      if ((shown && shown->isVisible()) != form->Visible) return form->Name + " is not shown as it is";
      if (!form->Visible) continue;
      for (Control* control : form->Controls()) {
        if (!ShowsItself(*control)) return form->Name + "." + control->Name + " does not show what it is";
      }
    }
    return "";
  }
  bool ShowsItself(Control& control) {
    QWidget& widget = WidgetOf(control);
    if (widget.isHidden() == control.Visible || widget.isEnabled() != control.Enabled) return false;
    if (const auto* frame = dynamic_cast<Container*>(&control)) {
      return std::ranges::all_of(frame->Controls(), [this](Control* inner) { return ShowsItself(*inner); });
    }
    if (const auto* box = dynamic_cast<const CheckBox*>(&control)) {
      return static_cast<QCheckBox&>(widget).isChecked() == (box->Value.Get() == 1);
    }
    const auto* line = qobject_cast<QLineEdit*>(&widget);
    return !line || line->text().toStdString() == dynamic_cast<const TextBox&>(control).Text.Get();
  }

 private:
  void Send(Form& form, bool press, KeyCode code, Modifiers with) {
    const bool writes = code >= kKeySpace && code <= 'Z' && !(code >= kKeyLeft && code <= kKeyDown);
    const QString text = writes && !with.Control && !with.Alt ? QString(QChar(code)) : QString();
    if (IsOpen(form))
      QTest::simulateEvent(WindowOf(form).windowHandle(), press, KeyOf(code), HeldOf(with), text, false);
  }
  bool IsOpen(const Form& form) const { return shell_.WindowOf(form) && shell_.WindowOf(form)->isVisible(); }
  bool Shown(Control& control) { return IsOpen(*control.Owner()) && WidgetOf(control).isVisible(); }
  /// What was opened on the way is closed, what waits is painted.
  static void Settle() {
    while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    QCoreApplication::processEvents();
  }

  platform::qt::Shell shell_{window.Desktop, window.F1};
};

TEST_P(WidgetEvening, ShowsWhatTheModelHolds) {
  const unsigned events = FromEnvironment("ORVANBEG_EVENING_EVENTS", kEvents);
  Play(events);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_LT(QApplication::allWidgets().size(), 500) << "widgets were made and forgotten";
  if (HasFatalFailure() || events < kEnoughForAll) return;
  EXPECT_THAT(seen, testing::IsSupersetOf({"F2", "F3", "F4", "F5", "F6", "F7", "F8", "F9", "F10", "F20"}));
}

INSTANTIATE_TEST_SUITE_P(Seed, WidgetEvening, testing::Values(FromEnvironment("ORVANBEG_EVENING_SEED", 1)),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace tests
