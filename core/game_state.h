// The one game in memory, the settings, the roll being entered and the language: plain records, grouped by how long
// they live. Every rule and every drawing starts from them; nothing is notified of a change. Numbers are 16 bits and
// signed; a game file may bring any such number, so whoever uses one as an index checks it.
#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "texts.h"

namespace core {

inline constexpr int kSeats = 6;  ///< seats 1 to 6
inline constexpr int kFewestPlayers = 2;
inline constexpr int kDefaultPlayers = 4;
inline constexpr int kDieFaces = 6;   ///< of the black and the red die
inline constexpr int kLowestSum = 2;  ///< of two dice
inline constexpr int kHighestSum = 12;
inline constexpr int kEventFaces = 4;
inline constexpr int kShipFace = 4;       ///< the face of the event die that brings the barbarians nearer
inline constexpr int kLoggedRolls = 500;  ///< entries 1 to 500 of the log
inline constexpr int kTexts = 118;        ///< texts 1 to 118, which every language has
inline constexpr int kTextRoom = 200;

/// The kind of game; its number is the victory points with which a player starts. Files may bring others.
inline constexpr std::int16_t kBaseGame = 2;
inline constexpr std::int16_t kFirstExpansion = 3;

/// What `Languages[0]` holds as long as no language was chosen.
inline constexpr const char* kNoLanguageYet = "Select";

/// An array whose elements bear numbers of the game: seats, sums of two dice, faces, entries of the log. Any integer is
/// an index.
template <typename Element, std::size_t Size>
struct Numbered : std::array<Element, Size> {
  /// Throws std::out_of_range where there is no such element.
  constexpr Element& operator[](std::integral auto number) { return this->at(static_cast<std::size_t>(number)); }
  constexpr const Element& operator[](std::integral auto number) const {
    return this->at(static_cast<std::size_t>(number));
  }
};

/// Elements 1 and up of an array whose element 0 holds no game data.
template <typename Elements>
auto WithoutPlaceZero(Elements& elements) {
  return std::span(elements).template subspan<1>();
}

/// The state of a check box as a number. Unlike a boolean it is stored as 0 or 1, and a file may bring any number.
struct CheckValue {
  std::int16_t Value = 0;

  constexpr CheckValue() = default;
  constexpr explicit CheckValue(std::int16_t value) : Value(value) {}
  bool operator==(const CheckValue&) const = default;
  constexpr bool IsOn() const { return Value == 1; }
  constexpr bool IsOff() const { return Value == 0; }
};

inline constexpr CheckValue kOff{0};
inline constexpr CheckValue kOn{1};

struct TPlayer {
  std::string Name;
  std::int16_t Settlements = 0;
  std::int16_t Cities = 0;
  bool LongestRoad = false;
  bool LargestArmy = false;
  bool PoliticsMetropolis = false;
  bool TradeMetropolis = false;
  bool ScienceMetropolis = false;
  std::int16_t BonusPoints = 0;
  bool Merchant = false;
  bool Active = false;

  bool operator==(const TPlayer&) const = default;
};

/// One logged roll; all zero is an unused entry.
struct TRoll {
  std::int16_t Die1 = 0;
  std::int16_t Die2 = 0;
  std::int16_t EventDie = 0;

  bool operator==(const TRoll&) const = default;
};

/// What a game file holds, and the clocks. Index 0 of the arrays holds no game data.
struct Game {
  Numbered<TPlayer, kSeats + 1> Players;
  Numbered<std::int16_t, kHighestSum + 1> DiceCount{};   ///< by sum
  Numbered<std::int16_t, kEventFaces + 1> EventCount{};  ///< by face; 0 counts the rolls without event die
  Numbered<TRoll, kLoggedRolls + 1> DiceLog;
  Numbered<TRoll, kSeats + 1> LegacyRolls;  ///< six records of old game files, at 0 to 5
  Numbered<std::int16_t, 2> Clock{};        ///< seconds: 0 the game, 1 since the last roll
  std::int16_t GameType = 0;
  std::int16_t NumPlayers = 0;
  std::int16_t WinPoints = 0;
  CheckValue OptFlottillen;
  CheckValue OptScenario;
  std::string GameTitle;
  std::string GameInfo;
  bool ClockRunning = false;
  std::string FileVersion;  ///< first line of the game file being loaded
};

/// What is worked out from the game before it is drawn.
struct Figures {
  Numbered<std::int16_t, kSeats + 1> PlayerPoints{};
  Numbered<bool, kSeats + 1> LeaderFlag{};
  Numbered<float, kHighestSum + 1> DicePercent{};  ///< measured share of each sum
  std::int16_t TotalRolls = 0;
  std::int16_t MaxDiceCount = 0;
};

/// What a dialog was asked for.
struct Asked {
  std::int16_t CurrentPlayer = 0;  ///< seat of the action dialog
  std::int16_t DataPlayer = 0;     ///< seat of the data dialog
  std::int16_t ActionCode = 0;
  bool GameWon = false;  ///< the standing names a winner
};

/// What the settings file holds beside names, title and info line.
struct Settings {
  bool ShowLast6 = false;
  bool ShowWinner = false;
  bool ShowBarbarians = false;
  CheckValue AutoHG;
  std::int16_t HG = 0;     ///< background theme, 1 to 3
  CheckValue SiegAnzeige;  ///< the standing shows: 0 points, 1 counts
  bool ShowGameTime = false;
  bool ShowPlayerTime = false;
  CheckValue Contrast;
  Numbered<std::int16_t, kEventFaces + 1> EventHotkey{};  ///< character code of each face's key
};

/// The roll being entered, or the last one entered.
struct Entry {
  std::int16_t Die1 = 0;
  std::int16_t Die2 = 0;
  std::int16_t EventDie = 0;        ///< 0: none chosen
  std::int16_t DiceEntryStage = 0;  ///< dice entered by key: 0, 1 (`Die1`) or 2 (`Die2` too)
};

struct Language {
  Numbered<std::string, kTextRoom + 1> Text;
  std::vector<std::string> Languages{kNoLanguageYet};  ///< 0 the chosen one, from 1 on the file's
};

struct State {
  core::Game game;
  core::Figures figures;
  core::Asked asked;
  core::Settings settings;
  core::Entry entry;
  core::Language language;
  std::int16_t AboutFrame = 0;  ///< step of the about window's running list

  const std::string& Text(int number) const { return language.Text[number]; }
  /// The text or, where the language does not have it, another.
  const std::string& TextOr(int number, int other) const { return Text(Text(number).empty() ? other : number); }
};

/// Whether the number names a seat, 1 to 6.
inline bool IsSeat(int number) { return number >= 1 && number <= kSeats; }

/// `NumPlayers`, at least 0 and at most the six seats: an old game file may hold any number.
inline int SeatsPlayed(const Game& game) { return std::clamp<int>(game.NumPlayers, 0, kSeats); }

/// The players of the seats 1 to `NumPlayers`, whether or not they are marked as playing.
inline std::span<const TPlayer> PlayersAtTheTable(const Game& game) {
  return WithoutPlaceZero(game.Players).first(static_cast<std::size_t>(SeatsPlayed(game)));
}

/// Whether the event die is part of the game.
inline bool HasEventDie(const Game& game) { return game.GameType != kBaseGame; }

}  // namespace core
