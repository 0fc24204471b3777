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

std::string TextOfUnopened(const core::State& state, int failure, const std::string& file) {
  std::error_code unknown;
  const auto found = std::filesystem::status(file, unknown);
  const auto folder = std::filesystem::status(std::filesystem::path(file).parent_path(), unknown);
  storage::WriteOutcome cause;
  if (folder.type() == std::filesystem::file_type::not_found) cause.Failure = storage::WriteFailure::NoSuchFolder;
  if (exists(found) && !is_regular_file(found)) cause.Failure = storage::WriteFailure::NotAFile;
  return cause ? state.Text(failure) + "\n" + file : TextOfFailure(state, failure, file, cause);
}

}  // namespace windows
