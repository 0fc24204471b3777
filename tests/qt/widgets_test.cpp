// What the toolkit's widgets do by themselves, and what comes from fingers and assistive tools, reaches the model as
// told.
#include <QAccessible>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QStyleHints>
#include <QTimer>
#include <memory>

#include "../../platform/qt/pictures.h"
#include "../../platform/qt/qt_services.h"
#include "../../windows/image_lists.h"
#include "real_windows.h"

namespace {

using Widgets = tests::RealWindows;

TEST_F(Widgets, AListGoesOnFromTheEntryThatItShows) {
  Window.State.settings.AutoHG = core::kOff;
  Window.State.settings.HG = 3;
  Window.F8.OpenSettings();
  auto& list = static_cast<QComboBox&>(WidgetOf(Window.F8.cmbHG));
  list.setFocus();
  Type(Window.F8, Qt::Key_Up);
  EXPECT_EQ(Window.State.settings.HG, 2);
  int picks = 0;
  Window.F8.cmbHG.Click = [&picks] { ++picks; };
  for (const char* typed : {"x", Window.F8.cmbHG.List()[0].c_str()}) {
    list.lineEdit()->clear();
    for (const char letter : std::string(typed)) QTest::keyClick(&list, letter);
  }
  WidgetOf(Window.F8.comSelectLang).setFocus();
  EXPECT_EQ(picks, 0) << "typed text is no pick, nor when the field is left";
  EXPECT_EQ(list.currentIndex(), 0);
  list.lineEdit()->cursorWordBackward(false);
  for (const Qt::Key key : {Qt::Key_X, Qt::Key_Y, Qt::Key_Backspace}) QTest::keyClick(&list, key);
  EXPECT_TRUE(list.lineEdit()->isUndoAvailable());
  QTest::keyClick(&list, Qt::Key_Backspace);
  EXPECT_EQ(list.currentIndex(), 0);
  EXPECT_EQ(list.lineEdit()->cursorPosition(), 0);
}

TEST_F(Widgets, ALongPressIsTheSecondButton) {
  QGuiApplication::styleHints()->setMousePressAndHoldInterval(20);
  const std::unique_ptr<QPointingDevice> finger(QTest::createTouchDevice());
  QWidget& die = WidgetOf(Window.F1.picWurfel(0));
  const QPoint at = die.mapTo(die.window(), die.rect().center());
  QWindow* window = die.window()->windowHandle();
  QTest::touchEvent(window, finger.get()).press(0, at, window);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Window.State.figures.TotalRolls == 1; }));
  QTest::touchEvent(window, finger.get()).release(0, at, window);
  EXPECT_FALSE(Window.F7.Visible);
  QTest::touchEvent(window, finger.get()).press(0, at, window);
  QTest::touchEvent(window, finger.get()).release(0, at, window);
  EXPECT_TRUE(Window.F7.Visible);
}

TEST_F(Widgets, GrowAsFarAsTheScreenHasRoomAndKeepTheirPlaces) {
  for (int i = 0; i < 2; ++i) Type(Window.F1, Qt::Key_Plus, Qt::ControlModifier);  // 150 would leave the screen
  EXPECT_EQ(WindowOf(Window.F1).width(), qRound(633 * 1.25));
  Click(Window.F1.picWurfel(0));
  EXPECT_EQ(WidgetOf(Window.F7.cmdOK).font().pixelSize(), 13);
  const Qt::KeyboardModifiers control = Qt::ControlModifier, pad = control | Qt::KeypadModifier;
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, int> rows[] = {
      {Qt::Key_Insert, pad, 125}, {Qt::Key_Minus, pad, 100}, {Qt::Key_Minus, control, 90}, {Qt::Key_0, control, 100}};
  for (const auto& [key, with, size] : rows) {
    Type(Window.F7, key, with);
    EXPECT_EQ(qRound(100 * platform::qt::Zoom()), size);
  }
}

TEST_F(Widgets, TheCtrlOfAnotherSizeByKeyOrWheelIsNoKeyOfTheForm) {
  Type(Window.F1, Qt::Key_F1, Qt::ShiftModifier);
  Window.F5.SetFocus(Window.F5.txtData(3));  // the longest road, which any key turns over
  QWindow* window = WindowOf(Window.F5).windowHandle();
  QWheelEvent wheel({}, {}, {}, {0, -120}, {}, Qt::ControlModifier, Qt::NoScrollPhase, false);
  for (const bool byWheel : {false, true}) {
    QTest::keyPress(window, Qt::Key_Control);
    if (byWheel) QApplication::sendEvent(WindowOf(Window.F1).windowHandle(), &wheel);
    if (!byWheel) QTest::keyClick(window, Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyRelease(window, Qt::Key_Control);
    EXPECT_FALSE(Window.State.game.Players[1].LongestRoad);
    EXPECT_EQ(platform::qt::Zoom(), byWheel ? 1 : 1.25);
  }
  Type(Window.F5, Qt::Key_Control);
  EXPECT_TRUE(Window.State.game.Players[1].LongestRoad);
}

TEST(SizeOfWindows, IsOneThatFitsOnTheScreenAtTheStartAndToldOnceAtTheEnd) {
  std::vector<int> told;
  for (const auto& [size, taken] : {std::pair(117, 100), std::pair(300, 125)}) {
    tests::ScriptedServices services;
    mainwindow::MainWindow window(services);
    platform::qt::Shell shell(window.Desktop, window.F1, size);
    EXPECT_EQ(qRound(100 * platform::qt::Zoom()), taken);
    shell.OnResize = [&told](int chosen) { told.push_back(chosen); };
    window.F1.Visible = true;
    QWindow* shown = shell.WindowOf(window.F1)->windowHandle();
    for (const Qt::Key key : {Qt::Key_0, Qt::Key_Minus, Qt::Key_0, Qt::Key_Minus})
      QTest::keyClick(shown, key, Qt::ControlModifier);
    QTest::keyClick(shown, Qt::Key_Plus, Qt::ControlModifier);
  }
  EXPECT_EQ(told, std::vector({100, 100}));
}

TEST_F(Widgets, AssistiveToolsPressPictures) {
  QAccessibleInterface* die = QAccessible::queryAccessibleInterface(&WidgetOf(Window.F1.picWurfel(0)));
  die->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
  EXPECT_EQ(Window.State.figures.TotalRolls, 1);
  QAccessible::queryAccessibleInterface(&WidgetOf(Window.F1.picSP(0)))->actionInterface()->doAction("Press");
  EXPECT_TRUE(Window.F4.Visible);
}

TEST_F(Widgets, ObjectionsAreShownOverTheFileDialogWhichStaysAsItIs) {
  platform::qt::QtServices services({});
  platform::FileDialog dialog;
  dialog.InitDir = QDir::rootPath().toStdString();
  dialog.Objection = [](const std::string& path) { return "not " + path; };
  QString refused, kept;
  QTimer::singleShot(0, [&] {
    auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    auto* name = chooser->findChild<QLineEdit*>();
    name->setText("none/game");
    QTimer::singleShot(0, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box) refused = box->text();
      if (box && chooser->isVisible()) kept = name->text();
      QApplication::activeModalWidget()->close();
    });
    QTest::keyClick(name, Qt::Key_Return);
    chooser->close();
  });
  EXPECT_FALSE(services.ChooseFile(dialog));
  EXPECT_EQ(refused, QDir::toNativeSeparators("not " + QDir::rootPath() + "none/game"));
  EXPECT_EQ(kept, "none/game");
}

TEST(Pictures, TheIconNeedsNoPluginOfTheToolkit) {
  const QIcon icon = platform::qt::IconOf(windows::kProgramIcon, windows::kSmallProgramIcon);
  for (const QSize size : icon.availableSizes())
    EXPECT_NE(icon.pixmap(size).toImage().pixelColor(size.width() / 2, size.height() / 2).alpha(), 0);
  EXPECT_EQ(icon.availableSizes().size(), 7);
}

}  // namespace
