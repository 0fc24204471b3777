// While the main window is locked nothing reaches it: no shortcut, click, menu or close box. It does not look greyed.
#include <QMenuBar>

#include "real_windows.h"

namespace {

using Lock = tests::RealWindows;

TEST_F(Lock, KeepsKeysAndMouseOutAndDoesNotLookGreyed) {
  Window.F7.PrepareDiceDialog();
  platform::qt::FormWindow& main = WindowOf(Window.F1);
  main.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
  Type(Window.F1, Qt::Key_S, Qt::AltModifier);  // opens the menu that a click would close again
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  auto* menus = main.findChild<QMenuBar*>();
  QTest::mouseClick(main.windowHandle(), Qt::LeftButton, {}, menus->actionGeometry(menus->actions()[0]).center());
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  Type(Window.F1, Qt::Key_F9);
  Type(Window.F1, Qt::Key_N, Qt::ControlModifier);
  Click(Window.F1.picWurfel(0), Qt::RightButton);
  main.close();
  EXPECT_TRUE(main.isVisible() && Services.QuitStatus == -1);
  EXPECT_TRUE(main.isEnabled() && WidgetOf(Window.F1.tbrMenu).isEnabled());
  EXPECT_TRUE(Window.State.game.TotalRolls == 0 && !Window.F20.Visible);
  WindowOf(Window.F7).close();
  EXPECT_FALSE(WindowOf(Window.F7).isVisible());
  Type(Window.F1, Qt::Key_F9);
  EXPECT_EQ(Window.State.game.TotalRolls, 1);
}

}  // namespace
