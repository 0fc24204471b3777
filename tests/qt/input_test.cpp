// What the toolkit's events become: key codes, clicks on pictures, typed texts, options and check boxes.
#include <QAccessible>
#include <QLineEdit>

#include "../../platform/qt/key_codes.h"
#include "real_windows.h"

namespace {

TEST(KeyCodes, TellTheTopRowFromTheNumberPadAndSignsFromFunctionKeys) {
  const Qt::KeyboardModifier none = Qt::NoModifier, shift = Qt::ShiftModifier, pad = Qt::KeypadModifier;
  // The arrow of the pad is its digit without NumLock.
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, platform::KeyCode> rows[] = {
      {Qt::Key_4, none, '4'},           {Qt::Key_4, pad, platform::kKeyNumberPad0 + 4},
      {Qt::Key_B, shift, 'B'},          {Qt::Key_Left, pad, platform::kKeyNumberPad0 + 4},
      {Qt::Key_F12, none, 123},         {Qt::Key_Enter, pad, platform::kKeyEnter},
      {Qt::Key_Percent, shift, 0},      {Qt::Key_BraceLeft, none, platform::kKeyUnknown},
      {Qt::Key_Udiaeresis, none, 0xDC}, {Qt::Key_Backtab, shift, platform::kKeyTab}};
  for (const auto& [key, with, code] : rows) {
    EXPECT_EQ(platform::qt::CodeOf(QKeyEvent(QEvent::KeyRelease, key, with)), code) << "key " << key;
  }
}

using Input = tests::RealWindows;

TEST_F(Input, ClicksOnPicturesCountOnlyInside) {
  QWidget& die = WidgetOf(Window.F1.picWurfel(0));
  const QPoint at = die.mapTo(die.window(), die.rect().center());
  QTest::mousePress(die.window()->windowHandle(), Qt::LeftButton, {}, at);
  QTest::mouseRelease(die.window()->windowHandle(), Qt::LeftButton, {}, at - QPoint(100, 0));
  EXPECT_FALSE(Window.F7.Visible);
}

TEST_F(Input, KeysAreTheFormsAgainOnceTheMenuWasLeft) {
  Type(Window.F1, Qt::Key_E, Qt::AltModifier);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  for (int i = 0; i < 2; ++i) {
    QWidget* popup = QApplication::activePopupWidget();
    QTest::keyClick(popup ? popup : QApplication::focusWidget(), Qt::Key_Escape);
  }
  Type(Window.F1, Qt::Key_F9);
  EXPECT_EQ(Window.State.figures.TotalRolls, 1);
}

TEST_F(Input, WhatTabOrTheProgramBringsIntoFocusMakesWayForTheNextKey) {
  Window.State.game.Players[1] = {.Name = "Bo", .BonusPoints = 12};
  Type(Window.F1, Qt::Key_F1, Qt::ShiftModifier);
  Type(Window.F5, Qt::Key_Home);
  QKeyEvent greek(QEvent::KeyPress, Qt::Key_unknown, {}, "α");  // which no file holds
  QApplication::sendEvent(WindowOf(Window.F5).windowHandle(), &greek);
  for (const Qt::Key key : {Qt::Key_A, Qt::Key_Tab, Qt::Key_7}) Type(Window.F5, key);
  EXPECT_EQ(Window.State.game.Players[1].Name, "aBo");
  EXPECT_EQ(Window.State.game.Players[1].Settlements, 7);
  EXPECT_TRUE(WindowOf(Window.F5).testAttribute(Qt::WA_KeyboardFocusChange)) << "no style marks the focus";
  for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_3}) Type(Window.F5, key);
  EXPECT_EQ(Window.State.game.Players[1].Settlements, 3);
}

TEST_F(Input, TextCountsByWhateverWayItCame) {
  Window.State.game.Players[1].Name = "Jos";
  Type(Window.F1, Qt::Key_F1, Qt::ShiftModifier);
  Type(Window.F5, Qt::Key_End);
  QInputMethodEvent composed;  // by a dead key: without a key press of its own
  composed.setCommitString("é");
  QApplication::sendEvent(&WidgetOf(Window.F5.txtData(0)), &composed);
  auto* spoken = QAccessible::queryAccessibleInterface(&WidgetOf(Window.F5.txtData(1)));
  spoken->setText(QAccessible::Value, "7");
  auto& flag = static_cast<QLineEdit&>(WidgetOf(Window.F5.txtData(3)));
  const QString value = flag.text();
  flag.insert("x");
  EXPECT_EQ(flag.text(), value) << "that of a flag";
  Type(Window.F5, Qt::Key_Return);
  EXPECT_EQ(Window.State.game.Players[1].Name, "José");
  EXPECT_EQ(Window.State.game.Players[1].Settlements, 7);
}

}  // namespace
