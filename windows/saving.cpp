#include "saving.h"

#include "../core/texts.h"
#include "../storage/path_text.h"

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

std::string ObjectionToSaving(const core::State& state, const std::filesystem::path& file, bool inPlace) {
  const std::filesystem::path folder = file.parent_path();
  std::error_code unknown;
  if (!is_directory(folder, unknown)) return state.Text(core::text::NoSuchFolder) + "\n\n" + storage::TextOf(folder);
  if (!storage::CanWriteWhole(file) && !(inPlace && storage::CanWriteInPlace(file))) {
    return state.Text(core::text::NotAllowed) + "\n\n" + storage::TextOf(file);
  }
  return {};
}

std::string TextOfFailure(const core::State& state, int failure, const std::filesystem::path& file,
                          const storage::WriteOutcome& outcome) {
  return state.Text(failure) + "\n" + storage::TextOf(file) + "\n\n" + state.Text(TextOfCause(outcome.Failure));
}

std::string TextOfUnopened(const core::State& state, int failure, const std::filesystem::path& file) {
  std::error_code unknown;
  const auto found = std::filesystem::status(file, unknown);
  const auto folder = std::filesystem::status(file.parent_path(), unknown);
  storage::WriteOutcome cause;
  if (folder.type() == std::filesystem::file_type::not_found) cause.Failure = storage::WriteFailure::NoSuchFolder;
  if (exists(found) && !is_regular_file(found)) cause.Failure = storage::WriteFailure::NotAFile;
  return cause ? state.Text(failure) + "\n" + storage::TextOf(file) : TextOfFailure(state, failure, file, cause);
}

}  // namespace windows
