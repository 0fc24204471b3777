// A game for tests of the rules: six seats, each with a name of its own.
#pragma once

#include <array>
#include <string>

#include "../../core/game_state.h"

namespace tests {

inline constexpr std::array<bool core::TPlayer::*, 6> kTitles{
    &core::TPlayer::LongestRoad,     &core::TPlayer::LargestArmy,       &core::TPlayer::PoliticsMetropolis,
    &core::TPlayer::TradeMetropolis, &core::TPlayer::ScienceMetropolis, &core::TPlayer::Merchant};

/// Seats "P1" to "P6", of which the first ones play. `titles`: whether every seat holds every title.
inline core::Game SeatedGame(int players = core::kSeats, bool titles = false) {
  core::Game game;
  game.NumPlayers = static_cast<std::int16_t>(players);
  for (int seat = 1; core::TPlayer & player : core::WithoutPlaceZero(game.Players)) {
    for (const auto title : kTitles) player.*title = titles;
    player.Name = "P" + std::to_string(seat);
    player.Active = seat++ <= players;
  }
  return game;
}

}  // namespace tests
