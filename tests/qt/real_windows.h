// The main window and its dialogs as real windows of the toolkit, in the languages that come with the program.
#pragma once

#include "../scripted_services.h"
#include "widget_hands.h"

namespace tests {

struct Program {
  ScriptedServices Services;
  mainwindow::MainWindow Window{Services};
};

class RealWindows : public testing::Test, protected Program, protected WidgetHands {
 protected:
  RealWindows() : WidgetHands(Window) {
    EXPECT_EQ(Window.Load(), mainwindow::Started::Yes);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&WindowOf(Window.F1)));
  }

  void Type(const platform::Form& form, Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(WindowOf(form).windowHandle(), key, with);
  }
  void Click(platform::Control& control, Qt::MouseButton button = Qt::LeftButton) {
    ClickAt(WidgetOf(control), WidgetOf(control).rect().center(), button);
  }
};

}  // namespace tests
