// While the main window is locked nothing reaches it: no key, shortcut, click, menu or close box. It does not look
// greyed, and the keys go to the dialog that has locked it.
#include <QMenuBar>

#include "real_windows.h"

namespace {

class Lock : public tests::RealWindows {
 protected:
  Lock() { Window.F7.PrepareDiceDialog(); }
  int Rolls() { return Window.State.game.TotalRolls; }
};

TEST_F(Lock, KeepsKeysAndShortcutsOut) {
  for (const Qt::Key key : {Qt::Key_F9, Qt::Key_F7, Qt::Key_F2}) Type(Window.F1, key);
  Type(Window.F1, Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(Rolls(), 0);
  EXPECT_FALSE(Window.State.game.ClockRunning);
  EXPECT_FALSE(Window.F4.Visible);
  EXPECT_FALSE(Window.F20.Visible);
}

TEST_F(Lock, KeepsTheMouseOut) {
  Click(Window.F1.picWurfel(0), Qt::RightButton);
  Click(Window.F1.picSP(1));
  EXPECT_EQ(Rolls(), 0);
  EXPECT_FALSE(Window.F4.Visible);

  auto* menus = WindowOf(Window.F1).findChild<QMenuBar*>();
  QTest::mouseClick(WindowOf(Window.F1).windowHandle(), Qt::LeftButton, {},
                    menus->actionGeometry(menus->actions()[0]).center());
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(Lock, KeepsTheAccessKeysOfTheMenuOut) {
  WindowOf(Window.F1).activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&WindowOf(Window.F1)));
  Type(Window.F1, Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(Lock, KeepsTheCloseBoxOut) {
  WindowOf(Window.F1).close();
  EXPECT_EQ(Services.QuitStatus, -1);
  EXPECT_TRUE(WindowOf(Window.F1).isVisible());
}

TEST_F(Lock, DoesNotLookGreyed) {
  EXPECT_TRUE(WindowOf(Window.F1).isEnabled());
  EXPECT_TRUE(WidgetOf(Window.F1.tbrMenu).isEnabled());
}

TEST_F(Lock, EndsWithTheDialogAndItsCloseBox) {
  WindowOf(Window.F7).close();
  EXPECT_FALSE(WindowOf(Window.F7).isVisible());
  Type(Window.F1, Qt::Key_F9);
  EXPECT_EQ(Rolls(), 1);
}

}  // namespace
