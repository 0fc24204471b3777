// The services that are of POSIX, of the desktops' folders and of CUPS.
#include <QApplication>
#include <QDir>
#include <QLibrary>
#include <QStandardPaths>

#include "convert.h"
#include "qt_services.h"

namespace platform::qt {

/// From the system, whatever bytes the folder's name consists of; otherwise from the toolkit.
std::filesystem::path QtServices::ProgramFolder() {
  std::error_code unknown;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", unknown);
  return unknown ? ToPath(QApplication::applicationDirPath()) : program.parent_path();
}

std::filesystem::path QtServices::ConfigurationFolder() {
  return ToPath(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
}

/// The toolkit names this folder from 6.7 on.
std::filesystem::path QtServices::StateFolder() {
  const QString named = qEnvironmentVariable("XDG_STATE_HOME");
  return ToPath(QDir::isAbsolutePath(named) ? named : QDir::homePath() + "/.local/state");
}

/// A queue may refuse it. The toolkit does not report that.
bool QtServices::LastJobWasTaken() {
  constexpr int kFirstFailure = 0x0100;
  using LastError = int (*)();
  const auto lastError = reinterpret_cast<LastError>(QLibrary("cups", 2).resolve("cupsLastError"));
  return lastError == nullptr || lastError() < kFirstFailure;
}

}  // namespace platform::qt
