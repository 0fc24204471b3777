#include "qt_services.h"

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QEventLoop>
#include <QLocale>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTimer>

#include "../form.h"
#include "pictures.h"

namespace platform::qt {

/// Also returns when the session ends.
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

bool QtServices::CanShow(const Picture& picture) { return Refresh(picture); }

double QtServices::Random() { return QRandomGenerator::global()->generateDouble(); }

/// From the system, whatever bytes the folder's name consists of; otherwise from the toolkit.
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

/// The toolkit names this folder from 6.7 on.
std::filesystem::path QtServices::StateFolder() {
  const QString named = qEnvironmentVariable("XDG_STATE_HOME");
  return (QDir::isAbsolutePath(named) ? named : QDir::homePath() + "/.local/state").toStdString();
}

/// Some languages write dates in letters or digits of their own, which no file of the program can hold.
std::string QtServices::Today() {
  const QDate today = QDate::currentDate();
  const QString text = QLocale::system().toString(today, QLocale::ShortFormat);
  const bool plain = std::all_of(text.begin(), text.end(), [](QChar c) { return c >= ' ' && c <= '~'; });
  return (plain ? text : today.toString(Qt::ISODate)).toStdString();
}

std::string QtServices::DecimalSeparator() { return QLocale::system().decimalPoint().toStdString(); }

void QtServices::Quit(int status) { QApplication::exit(status); }

}  // namespace platform::qt
