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
#include <functional>

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

/// The toolkit's own dialog on every desktop: only the extension that was asked for is ever added to a name. It stays
/// open below an objection to the name.
class Chooser : public QFileDialog {
 public:
  Chooser(Services& services, const FileDialog& dialog)
      : QFileDialog(WindowBelow(), ToQt(dialog.DialogTitle), ToQt(dialog.InitDir)),
        services_(services),
        objection_(dialog.Objection) {
    setOption(QFileDialog::DontUseNativeDialog);
    setAcceptMode(dialog.OpensFile ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    setFileMode(dialog.OpensFile ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    setNameFilters(NameFilters(dialog.Filter));
    setDefaultSuffix(ToQt(dialog.DefaultExt));
    FitColumns(*this);
    const QString before = ToQt(dialog.FileName);
    if (!before.isEmpty() && QFileInfo(before).dir().exists()) selectFile(before);
  }
  std::string Chosen() const { return selectedFiles().value(0).toStdString(); }

  void accept() override {
    const bool goesThere = QFileInfo(ToQt(Chosen())).isDir();
    const std::string objection = objection_ && !goesThere ? objection_(Chosen()) : std::string();
    if (objection.empty()) return QFileDialog::accept();
    services_.MessageBox(objection);
  }

 private:
  Services& services_;
  const std::function<std::string(const std::string&)> objection_;
};

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

bool QtServices::ChooseFile(FileDialog& dialog) {
  // Some window managers lose the keyboard when a box and the dialog below it close at the same time.
  const auto activateBelow = qScopeGuard([to = QPointer<QWidget>(WindowBelow())] {
    if (to) to->activateWindow();
  });
  Chooser chooser(*this, dialog);
  if (chooser.exec() != QDialog::Accepted) return false;
  dialog.FileName = chooser.Chosen();
  return true;
}

}  // namespace platform::qt
