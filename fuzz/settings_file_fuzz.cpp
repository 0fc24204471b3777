// Any bytes as a settings file, over the defaults of the start-up. What was read can be written, and is read the same.
#include <cstdint>
#include <sstream>

#include "../core/new_game.h"
#include "../storage/settings_file.h"

namespace {

bool Read(const std::string& bytes, core::State& state) {
  std::istringstream file(bytes);
  return storage::ReadSettings(file, state);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  core::State state, again;
  core::SetDefaults(state);
  Read(std::string(data, data + size), state);
  const std::string written = storage::SettingsText(state);
  if (!Read(written, again) || storage::SettingsText(again) != written) __builtin_trap();
  return 0;
}
