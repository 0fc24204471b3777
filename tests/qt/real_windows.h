// The main window and its dialogs as real windows of the toolkit, on a screen that nobody sees.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWindow>

#include "../../mainwindow/main_window.h"
#include "../../platform/qt/shell.h"
#include "../scripted_services.h"

namespace tests {

/// Types and clicks on what a shell shows of the forms, as the window system would deliver it.
class Hands {
 protected:
  explicit Hands(platform::qt::Shell& shell) : shell_(shell) {}

  platform::qt::FormWindow& WindowOf(const platform::Form& form) { return *shell_.WindowOf(form); }
  QWidget& WidgetOf(platform::Control& control) { return *WindowOf(*control.Owner()).WidgetOf(control); }

  void Type(const platform::Form& form, Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(WindowOf(form).windowHandle(), key, with);
  }
  void Click(platform::Control& control, Qt::MouseButton button = Qt::LeftButton) {
    ClickAt(WidgetOf(control), WidgetOf(control).rect().center(), button);
  }
  void ClickAt(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(widget.window()->windowHandle(), button, {}, widget.mapTo(widget.window(), at));
  }

 private:
  platform::qt::Shell& shell_;
};

class RealWindows : public testing::Test, protected Hands {
 protected:
  RealWindows() : Hands(Shell) {
    EXPECT_EQ(Window.Load(), mainwindow::Started::Yes);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&WindowOf(Window.F1)));
  }

  ScriptedServices Services;
  mainwindow::MainWindow Window{Services};
  platform::qt::Shell Shell{Window.Desktop, Window.F1};
};

}  // namespace tests
