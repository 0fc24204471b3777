// While the main window is locked nothing reaches it: no shortcut, click, menu or close box. It does not look greyed,
// and the keyboard is where the next key counts.
#include <QMenuBar>
#include <QSignalSpy>

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
  Click(Window.F1.picWurfel(0), Qt::RightButton);
  main.close();
  EXPECT_TRUE(main.isVisible() && main.isEnabled() && WidgetOf(Window.F1.tbrMenu).isEnabled());
  EXPECT_EQ(Window.State.figures.TotalRolls, 0);
}

TEST_F(Lock, WhatTakesTheDialogsPlaceGetsTheKeyboardDirectly) {
  core::Game& game = Window.State.game;
  game.GameType = core::kFirstExpansion;
  game.EventCount[core::kShipFace] = 6;
  game.WinPoints = 2;
  Window.F11.ShowAttack();  // stays open
  const std::tuple<std::function<void()>, const platform::Form*, const char*, const platform::Form*> rows[] = {
      {[&] { Window.F7.PrepareDiceDialog(); }, &Window.F7, "43B", &Window.F11},
      {[&] { Window.F8.OpenSettings(); }, &Window.F8, "\r", &Window.F9},
      {[&] { Window.F20.OpenNewGame(); }, &Window.F20, "\r", &Window.F9}};
  for (const auto& [open, dialog, keys, next] : rows) {
    open();
    Window.F20.txtneuSPBed.Text = "2";
    Window.F20.SetFocus(Window.F20.cmdStart);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&WindowOf(*dialog)));
    QSignalSpy focus(qApp, &QGuiApplication::focusWindowChanged);
    for (const char* key = keys; *key; ++key) Type(*dialog, *key == '\r' ? Qt::Key_Return : Qt::Key(*key));
    QCoreApplication::processEvents();
    EXPECT_TRUE(WindowOf(*next).isActiveWindow()) << dialog->Name;
    EXPECT_FALSE(focus.contains(QVariantList{QVariant::fromValue(WindowOf(Window.F1).windowHandle())}));
    Window.F9.PressCloseBox();
  }
}

TEST_F(Lock, ADialogOpensOverTheMainWindowWhereItStandsNow) {
  WindowOf(Window.F1).move(150, 90);
  Window.F7.PrepareDiceDialog();
  const QPoint off = WindowOf(Window.F7).frameGeometry().center() - WindowOf(Window.F1).frameGeometry().center();
  EXPECT_LE(off.manhattanLength(), 40);
  WindowOf(Window.F7).move(-50, 700);
  WindowOf(Window.F1).move(500, -400);
  Window.F7.PressCloseBox();
  Window.F7.PrepareDiceDialog();
  Window.F8.OpenSettings();
  for (const platform::Form* dialog : std::initializer_list<const platform::Form*>{&Window.F7, &Window.F8})
    EXPECT_TRUE(WindowOf(*dialog).screen()->availableGeometry().contains(WindowOf(*dialog).frameGeometry()));
}

}  // namespace
