#include "qt_services.h"

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QEventLoop>
#include <QLocale>
#include <QStandardPaths>
#include <QTimer>
#include <chrono>

#include "../form.h"
#include "file_chooser.h"
#include "message_box.h"
#include "pictures.h"
#include "printers.h"

namespace platform::qt {

QtServices::QtServices()
    : generator_(static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count())) {}

Answer QtServices::MessageBox(const std::string& text, const std::string& title, Buttons buttons, Icon icon) {
  return ShowMessageBox(text, title, buttons, icon);
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

bool QtServices::ChooseFile(FileDialog& dialog) { return ShowFileChooser(dialog); }

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
