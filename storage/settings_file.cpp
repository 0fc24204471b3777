#include "settings_file.h"

#include <algorithm>

#include "../core/game_state.h"
#include "code_page.h"
#include "line_writer.h"
#include "settings_file_layout.h"

namespace storage {
namespace {

constexpr const char* kHeader[] = {"ORVANBEG.INI", "*", "Please do NOT change the contents of this file !",
                                   "Bitte ändern Sie diese Zeilen nicht von Hand.", "*"};

class WrittenEntries {
 public:
  void Header() {
    for (const char* line : kHeader) writer_.Add(line);
  }
  /// A number that has no word, as game files can bring one in, gets the nearest.
  void Choice(const std::string& key, const Words& words, int number) {
    const auto last = std::find(words.Word.begin(), words.Word.end(), "") - words.Word.begin() - 1;
    const auto word = std::clamp<std::ptrdiff_t>(number - words.First, 0, last);
    writer_.Add(key + "=" + std::string(words.Word[static_cast<std::size_t>(word)]));
  }
  void Text(std::string_view mark, const std::string& text) {
    writer_.Add(mark);
    writer_.Add(text);
  }
  template <typename Codes>
  void Hotkeys(std::string_view mark, const Codes& codes) {
    writer_.Add(mark);
    for (const int code : core::WithoutPlaceZero(codes)) writer_.Add(CharacterOf(code));
  }
  void Clocks(std::string_view mark, bool game, bool player) {
    writer_.Add(mark);
    for (const bool shown : {game, player}) writer_.Add(kNoOrYes.Word[shown ? 1 : 0]);
  }
  void Contrast(std::string_view mark, core::CheckValue contrast) { Text(mark, contrast.IsOn() ? "1" : "0"); }
  const std::string& Bytes() const { return writer_.Bytes(); }

 private:
  LineWriter writer_;
};

}  // namespace

std::string SettingsText(const core::State& state) {
  WrittenEntries entries;
  entries.Header();
  SettingsEntries(entries, state);
  return entries.Bytes();
}

WriteOutcome WriteSettings(const std::filesystem::path& file, const core::State& state) {
  std::error_code toldByTheWrite;
  std::filesystem::create_directories(file.parent_path(), toldByTheWrite);
  return WriteWhole(file, SettingsText(state));
}

}  // namespace storage
