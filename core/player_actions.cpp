#include "player_actions.h"

#include <algorithm>
#include <array>

#include "numbers.h"

namespace core {
namespace {

using Pieces = std::int16_t TPlayer::*;
using Title = bool TPlayer::*;

/// The action is refused to a player who has exactly so many pieces.
struct Limit {
  Action Code;
  Pieces Of;
  int RefusedAt;
  Refusal Reason;
};

struct Change {
  Action Code;
  Pieces Of;
  int By;
};

struct TitleMove {
  Action Code;
  Title Of;
};

/// The first limit that is met gives the reason.
constexpr std::array kLimits{
    Limit{kBuildSettlement, &TPlayer::Settlements, 5, {text::AllSettlementsBuilt, text::NoPieceLeft}},
    Limit{kBuildCity, &TPlayer::Settlements, 0, {text::NoSettlementForCity, text::CannotBuildCity}},
    Limit{kBuildCity, &TPlayer::Cities, 4, {text::NoPieceLeft, text::CannotBuildCity}},
    Limit{kLoseCity, &TPlayer::Cities, 0, {text::NoCityToLose, text::NoCity}},
};

constexpr std::array kChanges{
    Change{kBuildSettlement, &TPlayer::Settlements, 1},
    Change{kBuildCity, &TPlayer::Settlements, -1},
    Change{kBuildCity, &TPlayer::Cities, 1},
    Change{kBonusPoint, &TPlayer::BonusPoints, 1},
    Change{kLoseCity, &TPlayer::Settlements, 1},
    Change{kLoseCity, &TPlayer::Cities, -1},
};

constexpr std::array kTitleMoves{
    TitleMove{kLongestRoad, &TPlayer::LongestRoad},
    TitleMove{kLargestArmy, &TPlayer::LargestArmy},
    TitleMove{kPoliticsMetropolis, &TPlayer::PoliticsMetropolis},
    TitleMove{kTradeMetropolis, &TPlayer::TradeMetropolis},
    TitleMove{kScienceMetropolis, &TPlayer::ScienceMetropolis},
    TitleMove{kMerchant, &TPlayer::Merchant},
};

void TakeFromAll(Game& game, Title title) {
  for (TPlayer& player : WithoutPlaceZero(game.Players)) player.*title = false;
}

std::optional<Refusal> RefusalOf(int actionCode, const TPlayer& player) {
  const auto met = std::find_if(kLimits.begin(), kLimits.end(), [&](const Limit& limit) {
    return limit.Code == actionCode && player.*limit.Of == limit.RefusedAt;
  });
  if (met == kLimits.end()) return std::nullopt;
  return met->Reason;
}

}  // namespace

std::optional<Refusal> ApplyPlayerAction(Game& game, const Asked& asked) {
  if (!IsSeat(asked.CurrentPlayer)) return std::nullopt;
  TPlayer& player = game.Players[asked.CurrentPlayer];
  if (const auto refusal = RefusalOf(asked.ActionCode, player)) return refusal;
  for (const Change& change : kChanges) {
    if (change.Code == asked.ActionCode) player.*change.Of = Saturate16(player.*change.Of + change.By);
  }
  for (const TitleMove& move : kTitleMoves) {
    if (move.Code != asked.ActionCode) continue;
    TakeFromAll(game, move.Of);
    player.*move.Of = true;
  }
  return std::nullopt;
}

bool ActionOffered(std::int16_t gameType, int actionCode) {
  if (gameType == kBaseGame) return actionCode < kPoliticsMetropolis;
  return gameType != kFirstExpansion || actionCode != kLargestArmy;
}

void TakeLongestRoad(Game& game) { TakeFromAll(game, &TPlayer::LongestRoad); }

}  // namespace core
