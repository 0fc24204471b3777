// The entries of the settings file in the order in which they are written, told once for the writer and the reader.
// `Entries` has an operation for each kind of entry.
#pragma once

#include <array>
#include <string_view>

#include "../core/game_state.h"

namespace storage {

/// The words that stand for the numbers from `First`, or for false and true, of a one-line entry.
struct Words {
  std::array<std::string_view, 3> Word;
  int First = 0;
};

inline constexpr Words kNoOrYes{{"NEIN", "JA"}};
inline constexpr Words kThemes{{"1", "2", "3"}, 1};
inline constexpr Words kPointsOrCounts{{"SP", "MENGE"}};
inline constexpr std::array<std::string_view, core::kSeats> kPlayerMarks{"#PLR1", "#PLR2", "#PLR3",
                                                                         "#PLR4", "#PLR5", "#PLR6"};

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

}  // namespace storage
