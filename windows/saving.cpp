#include "saving.h"

#include <filesystem>

#include "../core/texts.h"
#include "../storage/safe_file.h"

namespace windows {
namespace {

/// The cause as a text of the language. The system's own word on it may be in another one.
int TextOfCause(storage::WriteFailure failure) {
  switch (failure) {
    case storage::WriteFailure::NoSuchFolder: return core::text::NoSuchFolder;
    case storage::WriteFailure::NotAFile: return core::text::NotAFile;
    case storage::WriteFailure::NotAllowed: return core::text::NotAllowed;
    case storage::WriteFailure::NoRoom: return core::text::NoRoom;
    default: return core::text::DiskFails;
  }
}

}  // namespace

std::string ObjectionToSaving(const core::State& state, const std::string& path, bool inPlace) {
  const std::filesystem::path folder = std::filesystem::path(path).parent_path();
  std::error_code unknown;
  if (!is_directory(folder, unknown)) return state.Text(core::text::NoSuchFolder) + "\n\n" + folder.string();
  if (!storage::CanWriteWhole(path) && !(inPlace && storage::CanWriteInPlace(path))) {
    return state.Text(core::text::NotAllowed) + "\n\n" + path;
  }
  return {};
}

std::string TextOfFailure(const core::State& state, int failure, const std::string& file,
                          const storage::WriteOutcome& outcome) {
  return state.Text(failure) + "\n" + file + "\n\n" + state.Text(TextOfCause(outcome.Failure));
}

}  // namespace windows
