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

class RealWindows : public testing::Test {
 protected:
  RealWindows() {
    EXPECT_EQ(Window.Load(), mainwindow::Started::Yes);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&WindowOf(Window.F1)));
  }

  ScriptedServices Services;
  mainwindow::MainWindow Window{Services};
  platform::qt::Shell Shell{Window.Desktop, Window.F1};

  platform::qt::FormWindow& WindowOf(platform::Form& form) { return *Shell.WindowOf(form); }
  QWidget& WidgetOf(platform::Control& control) { return *WindowOf(*control.Owner()).Widgets().WidgetOf(control); }

  /// Types a key into the window of a form, as the window system would deliver it.
  void Type(platform::Form& form, Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(WindowOf(form).windowHandle(), key, with);
  }

  void Click(platform::Control& control, Qt::MouseButton button = Qt::LeftButton) {
    QWidget& widget = WidgetOf(control);
    const QPoint middle = widget.mapTo(widget.window(), widget.rect().center());
    QTest::mouseClick(widget.window()->windowHandle(), button, {}, middle);
  }
};

}  // namespace tests
