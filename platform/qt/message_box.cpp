#include "message_box.h"

#include <QApplication>
#include <QGridLayout>
#include <QMessageBox>
#include <QPointer>

#include "convert.h"

namespace platform::qt {
namespace {

constexpr int kLeastBoxWidth = 260;  // pixels

}  // namespace

QWidget* WindowBelow() {
  static QPointer<QWidget> last;
  if (QWidget* active = QApplication::activeWindow()) last = active;
  while (last && !last->isVisible()) last = last->parentWidget();
  return last;
}

Answer ShowMessageBox(const std::string& text, const std::string& title, Buttons buttons, Icon icon) {
  QMessageBox box(WindowBelow());
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQt(text));
  box.setWindowTitle(title.empty() ? QApplication::applicationName() : ToQt(title));
  // A short text must not make a box that is too narrow for its title.
  if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
    grid->addItem(new QSpacerItem(kLeastBoxWidth, 0), grid->rowCount(), 0, 1, grid->columnCount());
  }
  if (icon == Icon::Critical) box.setIcon(QMessageBox::Critical);
  if (buttons == Buttons::YesNo) {
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? Answer::Yes : Answer::No;
  }
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
  return Answer::Ok;
}

}  // namespace platform::qt
