#include "qt_services.h"

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QStandardPaths>
#include <QTimer>
#include <QTreeView>
#include <chrono>

#include "../form.h"
#include "convert.h"
#include "pictures.h"
#include "printers.h"

namespace platform::qt {
namespace {

constexpr int kLeastBoxWidth = 260;  // pixels

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

/// The window that a box or dialog stands above: the active one or, where none is just after another box, the last.
QWidget* WindowBelow() {
  static QPointer<QWidget> last;
  if (QWidget* active = QApplication::activeWindow()) last = active;
  return last;
}

/// Window managers lose the keyboard now and then when a box and the dialog below it go in the same moment.
class KeyboardGoesBack {
 public:
  KeyboardGoesBack() = default;
  KeyboardGoesBack(const KeyboardGoesBack&) = delete;
  KeyboardGoesBack& operator=(const KeyboardGoesBack&) = delete;
  ~KeyboardGoesBack() {
    if (to_) to_->activateWindow();
  }

 private:
  QPointer<QWidget> to_ = WindowBelow();
};

}  // namespace

QtServices::QtServices()
    : generator_(static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count())) {}

Answer QtServices::MessageBox(const std::string& text, const std::string& title, Buttons buttons, Icon icon) {
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

/// A loop of its own, which ends with the form, and with the session too.
void QtServices::WaitWhileVisible(Form& form) {
  constexpr int kLook = 20;  // milliseconds
  QEventLoop loop;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &loop, [&] {
    if (!form.Visible) loop.quit();
  });
  look.start(kLook);
  loop.exec();
}

/// The toolkit's own dialog on every desktop: only the extension that was asked for is ever added to a name.
bool QtServices::ChooseFile(FileDialog& dialog) {
  const KeyboardGoesBack goesBack;
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
    MessageBox("Diesen Ordner gibt es nicht.\nThere is no such folder.\n\n" + QFileInfo(chosen).path().toStdString(),
               {}, Buttons::Ok, Icon::None);
  }
  return false;
}

std::vector<std::string> QtServices::PrinterNames() { return InstalledPrinters(); }

bool QtServices::Print(const std::string& printer, const Surface& page) { return PrintOn(printer, page); }

std::string QtServices::PdfOf(const Surface& page) { return PdfBytes(page); }

Version QtServices::ProgramVersion() {
  return {ORVANBEG_VERSION_MAJOR, ORVANBEG_VERSION_MINOR, ORVANBEG_VERSION_REVISION};
}

bool QtServices::CanShow(const Picture& picture) { return LookFor(picture); }

double QtServices::Random() {
  // generate_canonical may round up to 1; a face beyond the last must not come of it.
  constexpr double kBits = 9007199254740992.0;  // 2^53
  return static_cast<double>(generator_() >> 11) / kBits;
}

/// The system's own word, whatever bytes the folder's name is made of; the toolkit's where there is none.
std::filesystem::path QtServices::ProgramFolder() {
  std::error_code unknown;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", unknown);
  return unknown ? std::filesystem::path(QApplication::applicationDirPath().toStdString()) : program.parent_path();
}

std::filesystem::path QtServices::ConfigurationFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toStdString();
}

std::filesystem::path QtServices::DocumentsFolder() {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return (QFileInfo(documents).isDir() ? documents : QDir::homePath()).toStdString();
}

std::string QtServices::Today() {
  return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
}

std::string QtServices::DecimalSeparator() { return QLocale::system().decimalPoint().toStdString(); }

void QtServices::Quit(int status) { QApplication::exit(status); }

}  // namespace platform::qt
