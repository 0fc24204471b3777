// What a screen reader hears of windows and controls: what they are, and their names.
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>

#include "real_windows.h"

namespace {

using Spoken = tests::RealWindows;

TEST_F(Spoken, WindowsAndControlsByTheirRolesAndNames) {
  dialogs::F20& F20 = Window.F20;
  dialogs::F8& F8 = Window.F8;
  F20.OpenNewGame();
  F8.OpenSettings();
  const std::tuple<QWidget&, QAccessible::Role, std::string> rows[] = {
      {WindowOf(F20), QAccessible::Dialog, F20.Caption},
      {WidgetOf(F20.fraA), QAccessible::Grouping, F20.fraA.Caption},
      {WidgetOf(F20.optA), QAccessible::RadioButton, F20.optA.Caption},
      {WidgetOf(F20.cmdB(1)), QAccessible::PushButton, F20.lblB.Caption.Get() + " +"},
      {WidgetOf(F20.picGameStatus(0)), QAccessible::Graphic, F20.optA.Caption},
      {*static_cast<QComboBox&>(WidgetOf(F8.cmbHG)).lineEdit(), QAccessible::EditableText, F8.lblHG.Caption}};
  for (const auto& [widget, role, name] : rows) {
    QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&widget);
    EXPECT_EQ(heard->role(), role) << name;
    EXPECT_EQ(heard->text(QAccessible::Name).toStdString(), name);
  }
}

}  // namespace
