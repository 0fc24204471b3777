// The reader of the settings file; see settings_file.h.
#include <span>

#include "../core/game_state.h"
#include "../core/numbers.h"
#include "code_page.h"
#include "line_reader.h"
#include "settings_file.h"
#include "settings_file_layout.h"
#include "words.h"

namespace storage {
namespace {

/// Compares the line in hand with one entry after the other and takes over the one that it is.
class ReadEntries {
 public:
  explicit ReadEntries(std::istream& file) : reader_(file, LineFeeds::PartOfLine) {}

  bool NextLine() {
    const bool read = reader_.Next(line_);
    entry_ = core::WithoutBlanks(line_);
    return read;
  }
  /// Whether an entry was broken, so that nothing behind it counts.
  bool Failed() const { return failed_ || reader_.EndedByLength(); }

  template <typename Value>
  void Choice(std::string_view key, const Words& words, Value& value) {
    if (entry_.size() <= key.size() || entry_[key.size()] != '=' || !SameWord(entry_.substr(0, key.size()), key))
      return;
    for (std::size_t i = 0; i < words.Word.size() && !words.Word[i].empty(); ++i) {
      if (SameWord(entry_.substr(key.size() + 1), words.Word[i])) value = static_cast<Value>(words.First + i);
    }
  }
  void Text(std::string_view mark, std::string& text) {
    if (SameWord(entry_, mark) && NextValue()) text = value_;
  }
  template <typename Codes>
  void Hotkeys(std::string_view mark, Codes& codes) {
    if (!SameWord(entry_, mark)) return;
    for (std::int16_t& code : core::WithoutPlaceZero(codes)) {
      if (!NextValue() || FailedIf(value_.empty())) return;
      code = static_cast<unsigned char>(ToCodePage(value_).front());
    }
  }
  void Clocks(std::string_view mark, bool& game, bool& player) {
    if (!SameWord(entry_, mark)) return;
    for (bool* shown : {&game, &player}) {
      if (NextValue()) *shown = value_ == kNoOrYes.Word[1];
    }
  }
  void Contrast(std::string_view mark, core::CheckValue& contrast) {
    if (!SameWord(entry_, mark) || !NextValue()) return;
    const auto number = core::WholeNumberIn(value_);
    if (!FailedIf(!number)) contrast.Value = *number;
  }

 private:
  bool NextValue() { return !FailedIf(!reader_.Next(value_)); }
  bool FailedIf(bool wrong) {
    failed_ = failed_ || wrong;
    return failed_;
  }

  LineReader reader_;
  std::string line_;
  std::string_view entry_;  // the line without the blanks around it
  std::string value_;
  bool failed_ = false;
};

}  // namespace

bool ReadSettings(std::istream& file, core::State& state) {
  ReadEntries entries(file);
  while (!entries.Failed() && entries.NextLine()) SettingsEntries(entries, state);
  return !entries.Failed();
}

}  // namespace storage
