#include "saving.h"

#include <filesystem>

#include "../core/texts.h"
#include "../storage/safe_file.h"

namespace windows {

std::string ObjectionToSaving(const core::State& state, const std::string& path) {
  const std::filesystem::path folder = std::filesystem::path(path).parent_path();
  std::error_code unknown;
  if (!is_directory(folder, unknown)) return state.Text(core::text::NoSuchFolder) + "\n\n" + folder.string();
  if (!storage::CanWriteWhole(path)) return state.Text(core::text::NotAllowed) + "\n\n" + path;
  return {};
}

}  // namespace windows
