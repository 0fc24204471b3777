#include "settings_file.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "../core/numbers.h"
#include "code_page.h"
#include "text_lines.h"

namespace storage {
namespace {

/// The words that stand for the numbers from `First`, or for false and true, of a one-line entry.
struct Words {
  std::array<std::string_view, 3> Word;
  int First = 0;
};

constexpr Words kNoOrYes{{"NEIN", "JA"}};
constexpr Words kThemes{{"1", "2", "3"}, 1};
constexpr Words kPointsOrCounts{{"SP", "MENGE"}};
constexpr std::array<std::string_view, core::kSeats> kPlayerMarks{"#PLR1", "#PLR2", "#PLR3", "#PLR4", "#PLR5", "#PLR6"};

/// The entries in the order in which they are written, once for the writer and the reader. `Entries` has an operation
/// for each kind of entry.
template <typename Entries, typename State>
void SettingsEntries(Entries& entries, State& state) {
  auto& settings = state.settings;
  entries.Choice("Last6", kNoOrYes, settings.ShowLast6);
  entries.Choice("Sieg", kNoOrYes, settings.ShowWinner);
  entries.Choice("Barbaren", kNoOrYes, settings.ShowBarbarians);
  entries.Choice("AutoHG", kNoOrYes, settings.AutoHG.Value);
  entries.Choice("HG", kThemes, settings.HG);
  entries.Choice("SiegAnzeige", kPointsOrCounts, settings.SiegAnzeige.Value);
  for (std::size_t i = 0; i < kPlayerMarks.size(); ++i) entries.Text(kPlayerMarks[i], state.game.Players[i + 1].Name);
  entries.Text("#TITEL", state.game.GameTitle);
  entries.Text("#TEXT", state.game.GameInfo);
  entries.Text("#LANGUAGE", state.language.Languages[0]);
  entries.Hotkeys("#HOTKEYS", settings.EventHotkey);
  entries.Clocks("#TIME", settings.ShowGameTime, settings.ShowPlayerTime);
  entries.Contrast("#CONTRAST", settings.Contrast);
}

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

std::string SettingsText(const core::State& state) {
  WrittenEntries entries;
  entries.Header();
  SettingsEntries(entries, state);
  return entries.Bytes();
}

WriteOutcome WriteSettings(const std::filesystem::path& file, const core::State& state) {
  std::error_code ignored;  // without the folder the write fails and says why
  std::filesystem::create_directories(file.parent_path(), ignored);
  return WriteWhole(file, SettingsText(state));
}

bool ReadSettings(std::istream& file, core::State& state) {
  ReadEntries entries(file);
  while (!entries.Failed() && entries.NextLine()) SettingsEntries(entries, state);
  return !entries.Failed();
}

}  // namespace storage
