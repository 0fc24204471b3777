#include "places.h"

#include <utility>

#include "safe_file.h"

namespace storage {
namespace {

using std::filesystem::path;

constexpr const char* kLanguageFile = "language.ini";
constexpr const char* kSettingsFile = "orvanbeg.ini";
constexpr const char* kViewFile = "orvanbeg-view.ini";
constexpr const char* kOwnFolder = "orvanbeg";  // below the folders of the user's programs

bool Exists(const path& file) {
  std::error_code unknown;
  return std::filesystem::exists(file, unknown);
}

/// Something bears the name, be it a link that leads nowhere.
bool IsTaken(const path& file) {
  std::error_code unknown;
  return std::filesystem::exists(std::filesystem::symlink_status(file, unknown));
}

/// Counted from the executable, so that an installation can be moved as a whole. Step by step: made normal as a whole,
/// a path that begins with the name of a server would lose it.
path InstalledFiles(path program) {
  for (const path& step : path(ORVANBEG_INSTALLED_FILES))
    program = step == ".." ? program.parent_path() : program / step;
  return program;
}

bool IsInstalled(const path& program) {
  std::error_code unknown;
  return !Exists(program / kLanguageFile) && std::filesystem::is_directory(InstalledFiles(program), unknown);
}

}  // namespace

Places::Places(path program, const path& configuration, path documents, const path& state)
    : installed_(IsInstalled(program)),
      files_(installed_ ? InstalledFiles(program) : std::move(program)),
      own_(configuration / kOwnFolder),
      documents_(std::move(documents)),
      copies_(state.empty() ? path() : state / kOwnFolder) {}

path Places::LanguageFile() const {
  const path own = own_ / kLanguageFile;
  return installed_ && IsTaken(own) ? own : files_ / kLanguageFile;
}

path Places::SettingsFile() const {
  const path beside = files_ / kSettingsFile, own = own_ / kSettingsFile;
  const bool writtenElsewhere = !Exists(beside) && Exists(own);
  return !installed_ && !writtenElsewhere && CanWriteWhole(beside) ? beside : own;
}

path Places::ViewFile() const { return SettingsFile().replace_filename(kViewFile); }

path Places::SettingsToRead() const {
  const path written = SettingsFile();
  return Exists(written) ? written : files_ / kSettingsFile;
}

}  // namespace storage
