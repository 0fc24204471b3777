// Any bytes as a game file. Whatever state they lead to can be written, and what was written is read as the same state.
#include <cstdint>
#include <sstream>

#include "../storage/game_file.h"

namespace {

class AnyWindow : public storage::GameFileEvents {
 public:
  void TellNotAGameFile() override {}
  void TellOlderVersion() override {}
  bool ChooseBackground() override { return true; }
  void ShowEventDie() override {}
};

storage::GameFileOutcome Read(const std::string& bytes, core::State& state) {
  std::istringstream file(bytes);
  AnyWindow window;
  return storage::ReadGame(file, state, window);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  core::State state, again;
  Read(std::string(data, data + size), state);
  const std::string written = storage::GameFileText(state);
  if (Read(written, again) != storage::GameFileOutcome::Whole || storage::GameFileText(again) != written)
    __builtin_trap();
  return 0;
}
