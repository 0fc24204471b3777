// What a player can report from the board: ten numbered actions, the limits of the pieces and the titles that only one
// seat holds. The rules show nothing; a refusal is handed back as the numbers of its texts.
#pragma once

#include <cstdint>
#include <optional>

#include "game_state.h"

namespace core {

/// The actions by their number, `ActionCode`, which is also the number of their button.
enum Action {
  kBuildSettlement = 1,
  kBuildCity = 2,
  kBonusPoint = 3,
  kLongestRoad = 4,
  kLargestArmy = 5,
  kPoliticsMetropolis = 6,
  kTradeMetropolis = 7,
  kScienceMetropolis = 8,
  kMerchant = 9,
  kLoseCity = 10
};

/// Why an action was refused, as numbers of the language's texts. The message stands behind the player's name and a
/// blank.
struct Refusal {
  int MessageText = 0;
  int TitleText = 0;

  bool operator==(const Refusal&) const = default;
};

/// Carries out `ActionCode` on the player of seat `CurrentPlayer`, in any kind of game. A refusal changes nothing; nor
/// does an unknown code or seat, which is no refusal. A limit refuses at exactly its number: a player above it, as a
/// file can bring one, is not refused. Points are not computed.
std::optional<Refusal> ApplyPlayerAction(Game& game, const Asked& asked);

/// Whether a kind of game has this action, 1 to 10: the base game lacks all of the expansion, the expansion lacks the
/// army, a kind that only a file can bring lacks nothing.
bool ActionOffered(std::int16_t gameType, int actionCode);

/// Nobody holds the longest road any more, which no action can say.
void TakeLongestRoad(Game& game);

}  // namespace core
