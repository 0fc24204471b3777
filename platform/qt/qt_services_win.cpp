// The services that are of Windows: what it calls the user's folders.
#include <shlobj.h>

#include <QApplication>

#include "convert.h"
#include "qt_services.h"

namespace platform::qt {
namespace {

/// Empty if there is none.
std::filesystem::path KnownFolder(const KNOWNFOLDERID& folder) {
  wchar_t* name = nullptr;
  const bool found = SHGetKnownFolderPath(folder, KF_FLAG_DEFAULT, nullptr, &name) == S_OK;
  const std::filesystem::path path = found ? name : L"";
  CoTaskMemFree(name);
  return path;
}

}  // namespace

std::filesystem::path QtServices::ProgramFolder() { return ToPath(QApplication::applicationDirPath()); }

std::filesystem::path QtServices::ConfigurationFolder() { return KnownFolder(FOLDERID_RoamingAppData); }

std::filesystem::path QtServices::StateFolder() { return KnownFolder(FOLDERID_LocalAppData); }

/// What the spooler refuses cannot be drawn on either.
bool QtServices::LastJobWasTaken() { return true; }

}  // namespace platform::qt
