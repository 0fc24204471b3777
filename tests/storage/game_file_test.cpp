// Game files of all versions: written, read, and read damaged. The state after a load is compared as the file that it
// would give, so that no field is left out.
#include "../../storage/game_file.h"

#include <gmock/gmock.h>

#include <sstream>

#include "../../storage/game_file_reader.h"
#include "random_state.h"

namespace tests {
namespace {

using Lines = std::vector<std::string>;
using storage::GameFileOutcome;
using testing::ElementsAre;

constexpr std::size_t kBackgroundLines = 1586;  // read when the background is chosen
const Lines kTheDieShown = {"background", "event die"};

Lines LinesOf(const core::State& state) {
  Lines lines;
  const std::string bytes = storage::GameFileText(state);
  for (std::size_t at = 0, end = 0; (end = bytes.find("\r\n", at)) != std::string::npos; at = end + 2) {
    lines.push_back(bytes.substr(at, end - at));
  }
  return lines;
}

std::string BytesOf(const Lines& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

/// The first lines of one file and the rest of another.
Lines Mixed(const Lines& first, std::size_t count, const Lines& rest) {
  Lines mixed(first.begin(), first.begin() + static_cast<std::ptrdiff_t>(count));
  mixed.insert(mixed.end(), rest.begin() + static_cast<std::ptrdiff_t>(count), rest.end());
  return mixed;
}

/// The game as a file of the version holds it.
Lines FileOf(const std::string& version, const core::State& state) {
  Lines lines = LinesOf(state);
  lines[0] = version;
  if (version == "OBGV30") lines.pop_back();
  if (version == "OBGV31" || version == "OBGV30") return lines;
  const std::string gameType = lines[1583], winPoints = lines[1587];
  lines.resize(83);
  lines.push_back(gameType);
  for (int i = 1; i <= 18; ++i) lines.push_back(std::to_string(i));
  if (version == "OBGV24") lines.insert(lines.end(), {winPoints, "dropped", ""});
  return lines;
}

class GameFileTest : public testing::Test, public storage::GameFileEvents {
 protected:
  GameFileOutcome Read(const std::string& bytes) {
    std::istringstream file(bytes);
    Events.clear();
    AtBackground.clear();
    State = Before;
    return storage::ReadGame(file, State, *this);
  }
  void TellNotAGameFile() override { Events.push_back("no game"); }
  void TellOlderVersion() override { Events.push_back("older"); }
  void ShowEventDie() override { Events.push_back("event die"); }
  bool ChooseBackground() override {
    Events.push_back("background");
    AtBackground = LinesOf(State);
    return HasBackground;
  }

  RandomState Random{2024};
  core::State Before = Random.Next();
  core::State Saved = Random.Next();
  core::State State;
  Lines Events, AtBackground;
  bool HasBackground = true;
};

TEST_F(GameFileTest, LinesAreWrittenAsTheLayoutSays) {
  core::State state;
  state.game.Players[1] = {"Jürgen €", 3, -2, true, false, false, false, false, 7, false, true};
  state.game.DiceCount[1] = 5;
  state.game.EventCount[4] = -5;
  state.game.DiceLog[500] = {1, 2, 3};
  state.game.GameType = 3;
  state.game.GameTitle = "a\rb";
  state.game.Clock = {32767, 9};
  const Lines lines = LinesOf(state);
  ASSERT_EQ(lines.size(), 1591U);
  EXPECT_THAT(Lines(lines.begin(), lines.begin() + 13),
              ElementsAre("OBGV31", "J\xFCrgen \x80", "3", "-2", "True", "False", "False", "False", "False", "7",
                          "False", "True", ""));
  EXPECT_THAT(Lines(lines.begin() + 67, lines.begin() + 69), ElementsAre(" 5 ", " 0 "));
  EXPECT_THAT(Lines(lines.begin() + 81, lines.begin() + 84), ElementsAre(" 0 ", "-5 ", "0"));
  EXPECT_THAT(Lines(lines.begin() + 1580, lines.end()),
              ElementsAre("1", "2", "3", "3", "0", "0", "0", "0", "a b", "", "32767"));
}

TEST_F(GameFileTest, EveryVersionSetsWhatItHoldsAndLeavesTheRest) {
  struct Case {
    const char* Version;
    std::size_t Lines;
    bool Log, WinPoints, Clock;
  };
  const Case cases[] = {{"OBGV31", 1591, true, true, true},
                        {"OBGV30", 1590, true, true, false},
                        {"OBGV24", 105, false, true, false},
                        {"OBGV21", 102, false, false, false}};
  for (const Case& c : cases) {
    for (const std::int16_t gameType : std::initializer_list<std::int16_t>{2, 3, 99}) {
      SCOPED_TRACE(c.Version + std::to_string(gameType));
      Saved.game.GameType = gameType;
      const Lines saved = LinesOf(Saved), file = FileOf(c.Version, Saved);
      Lines expected = c.Log ? saved : Mixed(saved, 83, LinesOf(Before));
      expected[1583] = std::to_string(gameType);
      const int usual = gameType == 2 ? 10 : gameType == 3 ? 13 : Before.game.WinPoints;
      expected[1587] = std::to_string(c.WinPoints ? Saved.game.WinPoints : usual);
      if (c.Log && !c.Clock) expected[1590] = "0";
      ASSERT_EQ(file.size(), c.Lines);
      EXPECT_EQ(Read(BytesOf(file) + "more\r\n"), GameFileOutcome::Whole);
      EXPECT_EQ(LinesOf(State), expected);
      EXPECT_EQ(Events, c.Log ? kTheDieShown : Lines({"older", "event die"}));
      EXPECT_EQ(State.game.Clock[1], c.Log ? 0 : Before.game.Clock[1]);
      EXPECT_EQ(State.game.NumPlayers, std::ranges::count(Saved.game.Players.begin() + 1, Saved.game.Players.end(),
                                                          true, &core::TPlayer::Active));
      EXPECT_EQ(State.game.FileVersion, c.Version);
      EXPECT_EQ(AtBackground, c.Log ? Mixed(saved, kBackgroundLines, LinesOf(Before)) : Lines());
      EXPECT_EQ(State.game.LegacyRolls[5], c.Log ? core::TRoll() : core::TRoll({16, 17, 18}));
      for (std::size_t kept = 1; kept < c.Lines; kept += kept < 110 ? 1 : 29) {
        EXPECT_EQ(Read(BytesOf({file.begin(), file.begin() + static_cast<std::ptrdiff_t>(kept)})),
                  GameFileOutcome::Stopped)
            << kept;
      }
    }
  }
}

TEST_F(GameFileTest, WhatWasWrittenIsReadByteForByte) {
  for (int game = 0; game < 100; ++game) {
    Saved = Random.Next();
    const std::string bytes = storage::GameFileText(Saved);
    ASSERT_EQ(Read(bytes), GameFileOutcome::Whole);
    ASSERT_EQ(storage::GameFileText(State), bytes);
  }
}

TEST_F(GameFileTest, ALoadStopsAtTheFirstFaultAndWhatWasReadStays) {
  const Lines numberFaults = {"", " ", "x", "1 2", "32768", "-32769", "32767.5", "1.2.3", "--1", "1E2", "True", "."};
  const Lines flagFaults = {"", "yes", "True ", "Tru", "1x"};
  const struct {
    std::size_t Line;
    const Lines& Faults;
    std::ptrdiff_t Players;  // seats whose flag was read
  } cases[] = {{3, numberFaults, 0},    {4, numberFaults, 0},    {5, flagFaults, 0},      {10, numberFaults, 0},
               {11, flagFaults, 0},     {12, flagFaults, 0},     {67, flagFaults, 5},     {68, numberFaults, 6},
               {79, numberFaults, 6},   {80, numberFaults, 6},   {84, numberFaults, 6},   {1583, numberFaults, 6},
               {1584, numberFaults, 6}, {1585, numberFaults, 6}, {1586, numberFaults, 6}, {1587, numberFaults, 6},
               {1588, numberFaults, 6}, {1591, numberFaults, 6}};
  const Lines saved = LinesOf(Saved);
  for (const auto& c : cases) {
    for (const std::string& fault : c.Faults) {
      SCOPED_TRACE(std::to_string(c.Line) + ": \"" + fault + "\"");
      Lines file = saved;
      file[c.Line - 1] = fault;
      Lines expected = Mixed(saved, c.Line - 1, LinesOf(Before));
      if (c.Line == 1591) expected.back() = "0";
      EXPECT_EQ(Read(BytesOf(file)), GameFileOutcome::Stopped);
      EXPECT_EQ(LinesOf(State), expected);
      EXPECT_EQ(Events, c.Line > kBackgroundLines ? Lines{"background"} : Lines{});
      EXPECT_EQ(State.game.NumPlayers,
                std::ranges::count(Saved.game.Players.begin() + 1, Saved.game.Players.begin() + 1 + c.Players, true,
                                   &core::TPlayer::Active));
    }
  }
}

TEST_F(GameFileTest, ABackgroundThatIsMissingStopsTheLoad) {
  HasBackground = false;
  EXPECT_EQ(Read(storage::GameFileText(Saved)), GameFileOutcome::Stopped);
  EXPECT_EQ(LinesOf(State), Mixed(LinesOf(Saved), kBackgroundLines, LinesOf(Before)));
  EXPECT_EQ(State.game.Clock, Before.game.Clock);
}

TEST_F(GameFileTest, NumbersAndFlagsMayBeWrittenInOtherWays) {
  const std::pair<const char*, int> numbers[] = {{" 7 ", 7}, {"+7", 7},    {"007", 7},         {"2.5", 2},
                                                 {"3.5", 4}, {"-2,5", -2}, {"32767.4", 32767}, {"-32768.5", -32768}};
  for (const auto& [line, number] : numbers) {
    Lines file = LinesOf(Saved);
    file[1587] = line;
    EXPECT_EQ(Read(BytesOf(file)), GameFileOutcome::Whole) << line;
    EXPECT_EQ(State.game.WinPoints, number) << line;
  }
  const std::pair<const char*, bool> flags[] = {{"true", true}, {"FALSE", false}, {"wahr", true},  {"Falsch", false},
                                                {"-1", true},   {" 0 ", false},   {"70000", true}, {"0.4", true}};
  for (const auto& [line, flag] : flags) {
    Lines file = LinesOf(Saved);
    file[4] = line;
    EXPECT_EQ(Read(BytesOf(file)), GameFileOutcome::Whole) << line;
    EXPECT_EQ(State.game.Players[1].LongestRoad, flag) << line;
  }
}

TEST_F(GameFileTest, WhatIsNoGameFileChangesNothing) {
  const std::string rest = storage::GameFileText(Saved).substr(6);
  for (const std::string& magic : {std::string("obgv31"), std::string("OBGV31 "), std::string(" OBGV31"),
                                   std::string("OBGV22"), std::string("\xEF\xBB\xBFOBGV31"), std::string("OBGV31\n"),
                                   std::string(), std::string(100'000, 'O'), std::string(3'000'000, 'O')}) {
    EXPECT_EQ(Read(magic + rest), GameFileOutcome::NotAGame) << magic.substr(0, 10);
    EXPECT_EQ(LinesOf(State), LinesOf(Before));
    EXPECT_THAT(Events, ElementsAre("no game"));
  }
  EXPECT_EQ(Read(""), GameFileOutcome::Stopped);
  EXPECT_TRUE(Events.empty());
}

TEST_F(GameFileTest, ALongNameIsReadAndAnEndlessOneIsAFault) {
  Saved.game.Players[1].Name = std::string(100'000, 'n');
  EXPECT_EQ(Read(storage::GameFileText(Saved)), GameFileOutcome::Whole);
  EXPECT_EQ(State.game.Players[1].Name, Saved.game.Players[1].Name);
  Saved.game.Players[2].Name = std::string(3'000'000, 'n');
  EXPECT_EQ(Read(storage::GameFileText(Saved)), GameFileOutcome::Stopped);
  EXPECT_EQ(State.game.Players[2].Name, Before.game.Players[2].Name);
}

}  // namespace
}  // namespace tests
