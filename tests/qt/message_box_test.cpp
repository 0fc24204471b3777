// The message box: Enter takes No where the answer matters, and so does closing it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "../../platform/qt/qt_services.h"

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

/// Shows a box, does something to it, and gives the answer.
template <typename Act>
Answer Ask(Buttons buttons, Act act, QString* title = nullptr) {
  platform::qt::QtServices services;
  QTimer::singleShot(0, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    if (title) *title = box->windowTitle();
    act(*box);
  });
  return services.MessageBox("Wirklich?", title ? "Ein Titel" : "", buttons, Icon::None);
}

TEST(MessageBox, EnterEscAndTheCloseBoxAnswerNo) {
  EXPECT_EQ(Ask(Buttons::YesNo, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }), Answer::No);
  EXPECT_EQ(Ask(Buttons::YesNo, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }), Answer::No);
  EXPECT_EQ(Ask(Buttons::YesNo, [](QMessageBox& box) { box.close(); }), Answer::No);
}

TEST(MessageBox, YesHasToBeChosen) {
  QString title;
  EXPECT_EQ(Ask(
                Buttons::YesNo, [](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); }, &title),
            Answer::Yes);
  EXPECT_EQ(title, "Ein Titel");
  EXPECT_EQ(Ask(Buttons::Ok, [](QMessageBox& box) { box.close(); }), Answer::Ok);
}

}  // namespace
