// Game files of all versions: written, read, and read damaged. The state after a load is compared as the file that it
// would give, so that no field is left out.
#include "../../storage/game_file.h"

#include <gmock/gmock.h>

#include <sstream>

#include "random_state.h"

namespace {

using Lines = std::vector<std::string>;
using storage::GameFileOutcome;
using testing::ElementsAre;

Lines LinesOf(const core::State& state) {
  Lines lines;
  std::istringstream file(storage::GameFileText(state));
  for (std::string line; std::getline(file, line, '\r'); file.ignore()) lines.push_back(line);
  return lines;
}

/// The first lines of one file and the rest of another.
Lines Mixed(Lines first, int count, const Lines& rest) {
  std::copy(rest.begin() + count, rest.end(), first.begin() + count);
  return first;
}

/// The game as a file of the version holds it.
Lines FileOf(const std::string& version, const core::State& state) {
  Lines lines = LinesOf(state);
  lines[0] = version;
  if (version == "OBGV30") lines.back() = "more";
  if (version >= "OBGV30") return lines;
  const std::string gameType = lines[1583], winPoints = lines[1587];
  lines.resize(83);
  lines.push_back(gameType);
  for (int i = 1; i <= 18; ++i) lines.push_back(std::to_string(i));
  if (version == "OBGV24") lines.insert(lines.end(), {winPoints, "dropped", ""});
  return lines;
}

struct GameFileTest : testing::Test, storage::GameFileEvents {
  GameFileOutcome Read(const Lines& lines) {
    std::stringstream file;
    for (const std::string& line : lines) file << line << "\r\n";
    Events.clear();
    State = Before;
    return storage::ReadGame(file, State, *this);
  }
  void TellNotAGameFile() override { Events.push_back("no game"); }
  void TellOlderVersion() override { Events.push_back("older"); }
  void ShowEventDie() override { Events.push_back("event die"); }
  bool ChooseBackground() override { return HasBackground; }

  std::mt19937 Random{2024};
  core::State Before = tests::RandomState(Random), Saved = tests::RandomState(Random), State;
  Lines Events;
  bool HasBackground = true;
};

TEST_F(GameFileTest, LinesAreWrittenAsTheLayoutSays) {
  core::State state;
  state.game.Players[1] = {"Jürgen €", 3, -2, true, false, false, false, false, 7, false, true};
  state.game.DiceCount[1] = 5;
  state.game.EventCount[4] = -5;
  state.game.DiceLog[500] = {1, 2, 3};
  state.game.GameType = 4;
  state.game.GameTitle = "a\rb";
  state.game.Clock = {32767, 9};
  const Lines lines = LinesOf(state);
  ASSERT_EQ(lines.size(), 1591U);
  const char* start =
      "OBGV31\r\nJ\xFCrgen \x80\r\n3\r\n-2\r\nTrue\r\nFalse\r\nFalse\r\nFalse\r\nFalse\r\n7\r\nFalse\r\nTrue\r\n\r\n";
  EXPECT_THAT(storage::GameFileText(state), testing::StartsWith(start));
  EXPECT_THAT(Lines(lines.begin() + 67, lines.begin() + 69), ElementsAre(" 5 ", " 0 "));
  EXPECT_THAT(Lines(lines.begin() + 82, lines.begin() + 84), ElementsAre("-5 ", "0"));
  EXPECT_THAT(Lines(lines.begin() + 1580, lines.end()),
              ElementsAre("1", "2", "3", "4", "0", "0", "0", "0", "a b", "", "32767"));
}

TEST_F(GameFileTest, EveryVersionSetsWhatItHoldsAndLeavesTheRest) {
  for (const std::string version : {"OBGV31", "OBGV30", "OBGV24", "OBGV21"}) {
    for (const int gameType : {2, 3, 99}) {
      SCOPED_TRACE(version + " of kind " + std::to_string(gameType));
      Saved.game.GameType = static_cast<std::int16_t>(gameType);
      const Lines saved = LinesOf(Saved), before = LinesOf(Before), file = FileOf(version, Saved);
      const bool withLog = version >= "OBGV30";
      Lines expected = withLog ? saved : Mixed(saved, 83, before);
      expected[1583] = std::to_string(gameType);
      const std::string usualWinPoints = gameType == 2 ? "10" : gameType == 3 ? "13" : before[1587];
      expected[1587] = version == "OBGV21" ? usualWinPoints : saved[1587];
      if (version == "OBGV30") expected[1590] = "0";
      EXPECT_EQ(Read(file), GameFileOutcome::Whole);
      EXPECT_EQ(LinesOf(State), expected);
      EXPECT_EQ(Events, withLog ? Lines{"event die"} : Lines({"older", "event die"}));
      EXPECT_EQ(State.game.Clock[1], withLog ? 0 : Before.game.Clock[1]);
      EXPECT_EQ(State.game.FileVersion, version);
      EXPECT_EQ(State.game.LegacyRolls[5], withLog ? core::TRoll() : core::TRoll({16, 17, 18}));
      for (auto end = file.begin() + 1; end < file.end(); end += end - file.begin() < 110 ? 1 : 29) {
        EXPECT_EQ(Read({file.begin(), end}), GameFileOutcome::Stopped) << end - file.begin();
      }
    }
  }
}

TEST_F(GameFileTest, ALoadUnderstandsOtherWaysOfWritingAndStopsAtAFaultWithWhatWasReadSoFar) {
  using Ways = std::vector<std::pair<std::string, std::string>>;  // as written, as understood; "" for a fault
  const Ways numbers = {{" 7 ", "7"}, {"+7", "7"},   {"-3,5", "-4"}, {"32767.4", "32767"}, {"", ""},
                        {"x", ""},    {"32768", ""}, {"--1", ""},    {"1E2", ""},          {"True", ""}};
  const Ways flags = {{"true", "True"}, {"wahr", "True"}, {"FALSCH", "False"}, {"-1", "True"}, {" 0 ", "False"},
                      {"0.4", "True"},  {"", ""},         {"True ", ""}};
  const Lines saved = LinesOf(Saved);
  const auto players = std::ranges::count(core::WithoutPlaceZero(Saved.game.Players), true, &core::TPlayer::Active);
  for (const std::ptrdiff_t line : {2, 4, 11, 68, 80, 83, 1583, 1585, 1587, 1590}) {
    for (const auto& [written, understood] : saved.at(line).ends_with("e") ? flags : numbers) {
      SCOPED_TRACE(std::to_string(line) + ": \"" + written + "\"");
      Lines file = saved, stopped = Mixed(saved, static_cast<int>(line), LinesOf(Before));
      file.at(line) = written;
      if (line == 1590) stopped.back() = "0";
      EXPECT_EQ(Read(file), understood.empty() ? GameFileOutcome::Stopped : GameFileOutcome::Whole);
      EXPECT_THAT(LinesOf(State).at(line), testing::HasSubstr(understood));
      if (!understood.empty()) continue;
      EXPECT_EQ(LinesOf(State), stopped);
      EXPECT_TRUE(Events.empty());
      EXPECT_EQ(State.game.NumPlayers, line < 67 ? 0 : players) << "of the seats read";
    }
  }
}

TEST_F(GameFileTest, WhatIsNoGameFileChangesNothingAndAMissingBackgroundStopsTheLoad) {
  const std::string endless(3'000'000, 'O');
  for (const std::string& magic : Lines{"obgv31", "OBGV31 ", "OBGV22", "\xEF\xBB\xBFOBGV31", "OBGV31\n", "", endless}) {
    EXPECT_EQ(Read(FileOf(magic, Saved)), GameFileOutcome::NotAGame) << magic.substr(0, 10);
    EXPECT_EQ(LinesOf(State), LinesOf(Before));
    EXPECT_THAT(Events, ElementsAre("no game"));
  }
  EXPECT_EQ(Read({}), GameFileOutcome::Stopped);
  EXPECT_TRUE(Events.empty());
  HasBackground = false;
  EXPECT_EQ(Read(LinesOf(Saved)), GameFileOutcome::Stopped);
  EXPECT_EQ(LinesOf(State), Mixed(LinesOf(Saved), 1586, LinesOf(Before))) << "of the lines before it";
}

}  // namespace
