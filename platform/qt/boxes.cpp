// Message boxes and the file dialog.
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QMessageBox>
#include <QPointer>
#include <QScopeGuard>
#include <QTreeView>

#include "convert.h"
#include "qt_services.h"

namespace platform::qt {
namespace {

constexpr int kLeastBoxWidth = 260;  // pixels

/// The window below a new box: the active one or, between two boxes, the last one that is still visible. Null before
/// there is any window.
QWidget* WindowBelow() {
  static QPointer<QWidget> last;
  if (QWidget* active = QApplication::activeWindow()) last = active;
  while (last && !last->isVisible()) last = last->parentWidget();
  return last;
}

/// From "name|pattern|name|pattern" to the toolkit's filters. "*.*" means all files here, also those without a dot.
QStringList NameFilters(const std::string& filter) {
  const QStringList parts = ToQt(filter).split('|');
  QStringList filters;
  for (int i = 0; i + 1 < parts.size(); i += 2) {
    const QString name = parts[i].section(" (", 0, 0);
    filters += name + " (" + (parts[i + 1] == "*.*" ? "*" : parts[i + 1]) + ")";
  }
  return filters;
}

/// The toolkit's columns are too narrow for a date. The names get the room that size and date leave; the type is seen
/// from the name.
void FitColumns(const QFileDialog& chooser) {
  auto* files = chooser.findChild<QTreeView*>("treeView");
  if (!files) return;
  constexpr int kTypeColumn = 2;
  files->setColumnHidden(kTypeColumn, true);
  files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

}  // namespace

Answer QtServices::MessageBox(const std::string& text, const std::string& title, Buttons buttons, Icon icon) {
  QMessageBox box(WindowBelow());
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQt(text));
  box.setWindowTitle(title.empty() ? QApplication::applicationName() : ToQt(title));
  // A box with a short text would be too narrow for its title.
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

/// The toolkit's own dialog on every desktop: only the extension that was asked for is ever added to a name.
bool QtServices::ChooseFile(FileDialog& dialog) {
  // Some window managers lose the keyboard when a box and the dialog below it close at the same time.
  const auto activateBelow = qScopeGuard([to = QPointer<QWidget>(WindowBelow())] {
    if (to) to->activateWindow();
  });
  QFileDialog chooser(WindowBelow(), ToQt(dialog.DialogTitle), ToQt(dialog.InitDir));
  chooser.setOption(QFileDialog::DontUseNativeDialog);
  chooser.setAcceptMode(dialog.OpensFile ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
  chooser.setFileMode(dialog.OpensFile ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  chooser.setNameFilters(NameFilters(dialog.Filter));
  chooser.setDefaultSuffix(ToQt(dialog.DefaultExt));
  FitColumns(chooser);
  if (QFileInfo(ToQt(dialog.FileName)).dir().exists() && !dialog.FileName.empty())
    chooser.selectFile(ToQt(dialog.FileName));
  while (chooser.exec() == QDialog::Accepted) {
    const QFileInfo chosen(chooser.selectedFiles().value(0));
    if (chosen.dir().exists()) {
      dialog.FileName = chosen.filePath().toStdString();
      return true;
    }
    MessageBox(dialog.NoSuchFolder + "\n\n" + chosen.path().toStdString(), {}, Buttons::Ok, Icon::None);
  }
  return false;
}

}  // namespace platform::qt
