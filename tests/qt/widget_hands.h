// The forms as real windows of the toolkit, on a screen that nobody sees: what a user does is typed and clicked on the
// widgets, as the window system would deliver it.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWindow>

#include "../../mainwindow/main_window.h"
#include "../../platform/mnemonic.h"
#include "../../platform/qt/convert.h"
#include "../../platform/qt/shell.h"
#include "../hands.h"
#include "../pictures/described.h"

namespace tests {

class WidgetHands : protected virtual Hands {
 protected:
  explicit WidgetHands(mainwindow::MainWindow& window) : Shell(window.Desktop, window.F1), window_(window) {
    for (QTimer* timer : Shell.findChildren<QTimer*>()) timer->disconnect();  // only tests tick
  }

  platform::qt::FormWindow& WindowOf(const platform::Form& form) { return *Shell.WindowOf(form); }
  QWidget& WidgetOf(platform::Control& control) { return *WindowOf(*control.Owner()).WidgetOf(control); }
  bool IsOpen(const platform::Form& form) const { return Shell.WindowOf(form) && Shell.WindowOf(form)->isVisible(); }
  bool IsSeen(platform::Control& control) { return IsOpen(*control.Owner()) && WidgetOf(control).isVisible(); }

  void ClickAt(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(widget.window()->windowHandle(), button, {}, widget.mapTo(widget.window(), at));
    Settle();
  }
  void KeyDown(platform::Form& form, platform::KeyCode code, platform::Modifiers with) override {
    Send(form, true, code, with);
  }
  void KeyUp(platform::Form& form, platform::KeyCode code, platform::Modifiers with) override {
    Send(form, false, code, with);
    Settle();
  }
  void ClickOn(platform::Control& control, platform::MouseButton button) override {
    if (!IsSeen(control)) return;
    const QPoint middle = WidgetOf(control).rect().center();  // a mark with its words is to the left of it
    ClickAt(WidgetOf(control), {std::min(middle.x(), 10), middle.y()}, static_cast<Qt::MouseButton>(button));
  }
  void ClickTool(platform::ToolBar& bar, int index) override {
    if (!IsSeen(bar) || index < 1 || index > bar.Count() || bar.Image(index).Empty()) return;
    int button = 0;  // separators are none
    for (int i = 1; i < index; ++i) button += !bar.Image(i).Empty();
    QToolButton& tool = *WidgetOf(bar).findChildren<QToolButton*>()[button];
    ClickAt(tool, tool.rect().center());
  }
  void ClickMenu(platform::Form& form, platform::MenuItem& item) override {
    const QString caption = platform::qt::ToQt(item.Caption.Get());
    auto& bar = *WindowOf(form).findChild<QMenuBar*>();
    for (QAction* title : bar.actions()) {
      for (QAction* entry : title->menu()->actions()) {
        if (entry->text().section('\t', 0, 0) != caption || entry->isSeparator()) continue;
        QTest::mouseClick(bar.window()->windowHandle(), Qt::LeftButton, {}, bar.actionGeometry(title).center());
        if (title->menu()->isVisible()) ClickAt(*title->menu(), title->menu()->actionGeometry(entry).center());
      }
    }
    Settle();
  }
  /// From the list, by keys.
  void Pick(platform::ComboBox& combo, int index) override {
    if (!IsSeen(combo) || !combo.Owner()->AcceptsInput()) return;
    auto& list = static_cast<QComboBox&>(WidgetOf(combo));
    if (!list.isEnabled() || index < 0 || index >= list.count()) return;
    list.showPopup();
    QTest::keyClick(list.view(), Qt::Key_Home);
    for (int i = 0; i < index; ++i) QTest::keyClick(list.view(), Qt::Key_Down);
    QTest::keyClick(list.view(), Qt::Key_Return);
    Settle();
  }
  void Write(platform::Control& control, const std::string& text) override {
    QLineEdit* field = IsSeen(control) ? FieldIn(WidgetOf(control)) : nullptr;
    if (!field || !field->isEnabled() || field->isReadOnly() || !control.Owner()->AcceptsInput()) return;
    field->selectAll();
    field->insert(platform::qt::ToQt(text));
    Settle();
  }
  void PressCloseBox(platform::Form& form) override {
    if (IsOpen(form)) WindowOf(form).close();
    Settle();
  }

  std::string ViewOffence() override {
    for (const platform::Form* form : window_.Desktop.Forms()) {
      if (IsOpen(*form) != form->Visible) return form->Name + " is not shown as it is";
      if (!form->Visible) continue;
      if (WindowOf(*form).windowTitle() != platform::qt::ToQt(form->Caption.Get())) return form->Name + " has no title";
      for (platform::Control* control : form->Controls())
        if (!ShowsItself(*control)) return form->Name + "." + control->Name + " does not show what it is";
    }
    return ShowsMenus() ? "" : "the menus are others";
  }

  platform::qt::Shell Shell;

  /// What was opened on the way is closed, what waits is painted.
  static void Settle() {
    QCoreApplication::processEvents();
    while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    QCoreApplication::processEvents();
  }

 private:
  static QLineEdit* FieldIn(QWidget& widget) {
    const auto* list = qobject_cast<QComboBox*>(&widget);
    return list ? list->lineEdit() : qobject_cast<QLineEdit*>(&widget);
  }
  bool ShowsItself(platform::Control& control) {
    using platform::qt::ToQt;
    QWidget& widget = WidgetOf(control);
    if (widget.isHidden() == control.Visible || widget.isEnabled() != control.Enabled) return false;
    if (widget.toolTip() != ToQt(control.ToolTipText.Get())) return false;
    if (const QVariant seen = widget.property("text"); const std::string* caption = CaptionOf(control))
      if (seen.isValid() && seen.toString().simplified() != ToQt(*caption).simplified()) return false;
    if (const auto* box = dynamic_cast<const platform::CheckBox*>(&control))
      return static_cast<QCheckBox&>(widget).isChecked() == (box->Value.Get() == 1);
    if (const auto* option = dynamic_cast<const platform::OptionButton*>(&control))
      return static_cast<QRadioButton&>(widget).isChecked() == option->Value;
    const auto* box = dynamic_cast<const platform::TextBox*>(&control);
    const auto* combo = dynamic_cast<const platform::ComboBox*>(&control);
    if (const QLineEdit* field = FieldIn(widget); field && (box || combo))
      return field->text() == ToQt(box ? box->Text.Get() : combo->Text.Get());
    return std::ranges::all_of(control.Controls(), [this](platform::Control* inner) { return ShowsItself(*inner); });
  }
  bool ShowsMenus() {
    QStringList seen, held;
    for (QAction* title : WindowOf(window_.F1).findChild<QMenuBar*>()->actions()) {
      seen += title->text();
      for (QAction* entry : title->menu()->actions()) seen += entry->text().section('\t', 0, 0);
    }
    for (platform::MenuItem& item : window_.F1.MenuBar->Items())
      held += item.Separates() ? QString() : platform::qt::ToQt(item.Caption.Get());
    return seen == held;
  }

  void Send(platform::Form& form, bool press, platform::KeyCode code, platform::Modifiers with) {
    using namespace platform;
    const bool writes = code >= kKeySpace && code <= 'Z' && !(code >= kKeyLeft && code <= kKeyDown);
    const QString text = writes && !with.Control && !with.Alt ? QString(QChar(code)) : QString();
    const Qt::KeyboardModifiers held =
        (with.Shift ? Qt::ShiftModifier : Qt::NoModifier) | (with.Control ? Qt::ControlModifier : Qt::NoModifier) |
        (with.Alt ? Qt::AltModifier : Qt::NoModifier) | (IsOnPad(code) ? Qt::KeypadModifier : Qt::NoModifier);
    if (IsOpen(form)) QTest::simulateEvent(WindowOf(form).windowHandle(), press, KeyOf(code), held, text, false);
  }
  static bool IsOnPad(platform::KeyCode code) {
    return code >= platform::kKeyNumberPad0 && code < platform::kKeyNumberPad0 + 10;
  }
  static Qt::Key KeyOf(platform::KeyCode code) {
    using namespace platform;
    static const std::map<KeyCode, Qt::Key> kNamed{
        {kKeyBackspace, Qt::Key_Backspace}, {kKeyTab, Qt::Key_Tab},         {kKeyEnter, Qt::Key_Return},
        {kKeyShift, Qt::Key_Shift},         {kKeyControl, Qt::Key_Control}, {kKeyAlt, Qt::Key_Alt},
        {kKeyEscape, Qt::Key_Escape},       {kKeyLeft, Qt::Key_Left},       {kKeyUp, Qt::Key_Up},
        {kKeyRight, Qt::Key_Right},         {kKeyDown, Qt::Key_Down}};
    if (const auto named = kNamed.find(code); named != kNamed.end()) return named->second;
    if (IsOnPad(code)) return static_cast<Qt::Key>(Qt::Key_0 + code - kKeyNumberPad0);
    return static_cast<Qt::Key>(code < kKeyF1 ? code : Qt::Key_F1 + code - kKeyF1);
  }
  mainwindow::MainWindow& window_;
};

}  // namespace tests
