#include "qt_services.h"

#include <QApplication>
#include <QDate>
#include <QFileDialog>
#include <QLocale>
#include <QMessageBox>
#include <QStandardPaths>
#include <chrono>

#include "../form.h"
#include "convert.h"
#include "pictures.h"
#include "printers.h"

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

}  // namespace

QtServices::QtServices()
    : generator_(static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count())) {}

Answer QtServices::MessageBox(const std::string& text, const std::string& title, Buttons buttons, Icon icon) {
  QMessageBox box(QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQt(text));
  box.setWindowTitle(title.empty() ? QApplication::applicationName() : ToQt(title));
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

void QtServices::WaitWhileVisible(Form& form) {
  while (form.Visible) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

bool QtServices::ChooseFile(FileDialog& dialog) {
  QFileDialog chooser(QApplication::activeWindow(), ToQt(dialog.DialogTitle), ToQt(dialog.InitDir));
  const bool open = (dialog.Flags & FileDialog::kFileMustExist) != 0;
  chooser.setAcceptMode(open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
  chooser.setFileMode(open ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  chooser.setNameFilters(NameFilters(dialog.Filter));
  if (!dialog.FileName.empty()) chooser.selectFile(ToQt(dialog.FileName));
  if (chooser.exec() != QDialog::Accepted) return false;
  dialog.FileName = chooser.selectedFiles().value(0).toStdString();
  return true;
}

std::vector<std::string> QtServices::PrinterNames() { return InstalledPrinters(); }

bool QtServices::Print(const std::string& printer, const Surface& page) { return PrintOn(printer, page); }

bool QtServices::PrintToFile(const std::filesystem::path& file, const Surface& page) { return WritePdf(file, page); }

Version QtServices::ProgramVersion() {
  return {ORVANBEG_VERSION_MAJOR, ORVANBEG_VERSION_MINOR, ORVANBEG_VERSION_REVISION};
}

bool QtServices::CanShow(const Picture& picture) { return !SizeOf(picture).isEmpty(); }

double QtServices::Random() {
  // generate_canonical may round up to 1; a face beyond the last must not come of it.
  constexpr double kBits = 9007199254740992.0;  // 2^53
  return static_cast<double>(generator_() >> 11) / kBits;
}

std::filesystem::path QtServices::ProgramFolder() { return QApplication::applicationDirPath().toStdString(); }

std::filesystem::path QtServices::ConfigurationFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toStdString();
}

std::string QtServices::Today() {
  return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
}

std::string QtServices::DecimalSeparator() { return QLocale::system().decimalPoint().toStdString(); }

void QtServices::Quit(int status) { QApplication::exit(status); }

}  // namespace platform::qt
