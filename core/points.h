// Victory points: what each holding is worth, who leads and who has won. Points are no state of their own; they follow
// from the holdings and are worked out again after every change of them.
#pragma once

#include <optional>

#include "game_state.h"
#include "screen.h"

namespace core {

/// What a holding is worth. A metropolis counts on top of its city.
inline constexpr int kSettlementPoints = 1;
inline constexpr int kCityPoints = 2;
inline constexpr int kBonusPointPoints = 1;
inline constexpr int kTitlePoints = 2;
inline constexpr int kMetropolisPoints = 2;
inline constexpr int kMerchantPoints = 1;

inline constexpr int kHighestPoints = 99;  ///< a panel has room for two digits

/// How many of the three metropolises the player holds, 0 to 3.
int MetropolisCount(const TPlayer& player);

/// `PlayerPoints` of all six seats, playing or not, from their holdings in any kind of game. The panels are to be
/// drawn afterwards.
void ComputePoints(const Game& game, Figures& figures);

/// Works the points out and has the panels drawn.
void CalcPoints(State& state, Screen& screen);

/// Brings `PlayerPoints` of all six seats to 0 to 99. First step of drawing the panels.
void ClampPoints(Figures& figures);

/// Sets `LeaderFlag` for every seat that nobody has more points than; seats that do not play take part.
void FindLeaders(Figures& figures);

/// The first leading seat (1 to 6) that has the points to win, none while the user does not want to know. Uses the
/// points and leaders without working them out anew and remembers nothing: as long as the condition holds it answers
/// the same.
std::optional<int> WinningSeat(const State& state);

}  // namespace core
