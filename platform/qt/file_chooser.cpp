#include "file_chooser.h"

#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QPointer>
#include <QScopeGuard>
#include <QTreeView>

#include "convert.h"
#include "message_box.h"

namespace platform::qt {
namespace {

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

/// The toolkit's own columns are too narrow for a date. The names get the room that size and date leave; of what type a
/// file is its name tells.
void FitColumns(const QFileDialog& chooser) {
  auto* files = chooser.findChild<QTreeView*>("treeView");
  if (!files) return;
  constexpr int kTypeColumn = 2;
  files->setColumnHidden(kTypeColumn, true);
  files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

}  // namespace

/// The toolkit's own dialog on every desktop: only the extension that was asked for is ever added to a name.
bool ShowFileChooser(FileDialog& dialog) {
  // Window managers lose the keyboard now and then when a box and the dialog below it go in the same moment.
  const auto goesBack = qScopeGuard([to = QPointer<QWidget>(WindowBelow())] {
    if (to) to->activateWindow();
  });
  QFileDialog chooser(WindowBelow(), ToQt(dialog.DialogTitle), ToQt(dialog.InitDir));
  const bool open = (dialog.Flags & FileDialog::kFileMustExist) != 0;
  chooser.setOption(QFileDialog::DontUseNativeDialog);
  chooser.setOption(QFileDialog::DontConfirmOverwrite, (dialog.Flags & FileDialog::kAskBeforeOverwriting) == 0);
  chooser.setAcceptMode(open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
  chooser.setFileMode(open ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  chooser.setNameFilters(NameFilters(dialog.Filter));
  chooser.setDefaultSuffix(ToQt(dialog.DefaultExt));
  FitColumns(chooser);
  if (QFileInfo(ToQt(dialog.FileName)).dir().exists() && !dialog.FileName.empty())
    chooser.selectFile(ToQt(dialog.FileName));
  while (chooser.exec() == QDialog::Accepted) {
    const QString chosen = chooser.selectedFiles().value(0);
    const bool pathNeeded = (dialog.Flags & FileDialog::kPathMustExist) != 0;
    if (!pathNeeded || QFileInfo(chosen).dir().exists()) {
      dialog.FileName = chosen.toStdString();
      return true;
    }
    ShowMessageBox(
        "Diesen Ordner gibt es nicht.\nThere is no such folder.\n\n" + QFileInfo(chosen).path().toStdString(), {},
        Buttons::Ok, Icon::None);
  }
  return false;
}

}  // namespace platform::qt
