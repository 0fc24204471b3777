// The order of the lines of a game file, told once for the writer and the reader. `Lines` has an operation for each
// kind of line, which is false where the file cannot be followed any further; nothing behind it is looked at then.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "../core/game_state.h"

namespace storage {

inline constexpr std::string_view kNewestVersion = "OBGV31";
inline constexpr std::string_view kVersionWithoutClock = "OBGV30";
inline constexpr std::string_view kOldVersion = "OBGV24";  ///< without the log of rolls, as all before it
inline constexpr std::string_view kOldestVersion = "OBGV21";
inline constexpr std::size_t kLegacyRolls = 6;

template <typename Lines, typename Player>
bool PlayerLines(Lines& lines, Player& player) {
  return lines.Text(player.Name) && lines.Number(player.Settlements) && lines.Number(player.Cities) &&
         lines.Flag(player.LongestRoad) && lines.Flag(player.LargestArmy) && lines.Flag(player.PoliticsMetropolis) &&
         lines.Flag(player.TradeMetropolis) && lines.Flag(player.ScienceMetropolis) &&
         lines.Number(player.BonusPoints) && lines.Flag(player.Merchant) && lines.Flag(player.Active);
}

/// How often each sum from 1 and each event face fell.
template <typename Lines, typename Game>
bool CountLines(Lines& lines, Game& game) {
  const auto padded = [&lines](auto& count) { return lines.PaddedNumber(count); };
  return std::ranges::all_of(core::WithoutPlaceZero(game.DiceCount), padded) &&
         std::ranges::all_of(core::WithoutPlaceZero(game.EventCount), padded);
}

template <typename Lines, typename Rolls>
bool RollLines(Lines& lines, Rolls rolls) {
  return std::ranges::all_of(rolls, [&lines](auto& roll) {
    return lines.Number(roll.Die1) && lines.Number(roll.Die2) && lines.Number(roll.EventDie);
  });
}

template <typename Lines, typename Game>
bool KindLines(Lines& lines, Game& game) {
  return lines.Number(game.GameType) && lines.Number(game.OptFlottillen.Value) && lines.Number(game.OptScenario.Value);
}

template <typename Lines, typename State>
bool EndLines(Lines& lines, State& state) {
  return lines.Number(state.settings.SiegAnzeige.Value) && lines.Number(state.game.WinPoints) &&
         lines.Text(state.game.GameTitle) && lines.Text(state.game.GameInfo);
}

}  // namespace storage
