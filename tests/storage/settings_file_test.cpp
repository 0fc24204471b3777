// The settings file: its 39 lines, what the reader makes of other files.
#include "../../storage/settings_file.h"

#include <gmock/gmock.h>

#include <sstream>

#include "../../core/new_game.h"

namespace {

TEST(SettingsFileTest, HasAlwaysTheSame39Lines) {
  core::State state;
  core::SetDefaults(state);
  EXPECT_EQ(storage::SettingsText(state),
            "ORVANBEG.INI\r\n*\r\nPlease do NOT change the contents of this file !\r\n"
            "Bitte \xE4ndern Sie diese Zeilen nicht von Hand.\r\n*\r\n"
            "Last6=JA\r\nSieg=JA\r\nBarbaren=JA\r\nAutoHG=JA\r\nHG=1\r\nSiegAnzeige=MENGE\r\n#PLR1\r\n\r\n#PLR2\r\n\r\n"
            "#PLR3\r\n\r\n#PLR4\r\n\r\n#PLR5\r\n\r\n#PLR6\r\n\r\n#TITEL\r\n\r\n#TEXT\r\n\r\n#LANGUAGE\r\nSelect\r\n"
            "#HOTKEYS\r\nP\r\nH\r\nW\r\nB\r\n#TIME\r\nJA\r\nJA\r\n#CONTRAST\r\n1\r\n");
  state.settings = core::Settings();
  state.settings.EventHotkey = {0, 65, 0x80, 255, 90};
  state.settings.SiegAnzeige.Value = 77;
  state.game.Players[6].Name = "Jürgen";
  const std::string other = storage::SettingsText(state);
  EXPECT_THAT(other, testing::HasSubstr("=NEIN\r\nAutoHG=NEIN\r\nHG=1\r\nSiegAnzeige=MENGE\r\n"));
  EXPECT_THAT(other, testing::HasSubstr("#PLR6\r\nJ\xFCrgen\r\n"));
  EXPECT_THAT(other, testing::EndsWith("\nA\r\n\x80\r\n\xFF\r\nZ\r\n#TIME\r\nNEIN\r\nNEIN\r\n#CONTRAST\r\n0\r\n"));
}

/// Each case differs from the start-up's defaults in the lines named; the file that the state would give shows it.
TEST(SettingsFileTest, TakesEntriesInAnyOrderAndCaseAndKeepsWhatStoodBeforeAFault) {
  using Changes = std::vector<std::pair<std::string, std::string>>;  // in the file of the defaults
  const auto no = [](const std::string& key) { return std::pair(key + "=JA", key + "=NEIN"); };
  const std::tuple<std::string, bool, Changes> cases[] = {
      {"", true, {}},
      {"  sieg=nein  \r\nbARBAREN=Nein\rautohg=NEIN", true, {no("Sieg"), no("Barbaren"), no("AutoHG")}},
      {"#contrast\r\n 0 \r\nSieg=NEIN", true, {{"#CONTRAST\r\n1", "#CONTRAST\r\n0"}, no("Sieg")}},
      {"HG=3\r\nHG=4\r\nHG=\r\nHG= 2\r\nHG = 2\r\nHG=02\r\nHG=2x", true, {{"\nHG=1", "\nHG=3"}}},
      {"SiegAnzeige=sp\r\nSieg=\r\nSieg\r\nSieg=JAA", true, {{"=MENGE", "=SP"}}},
      {" #Plr2 \r\nSieg=NEIN\r\n", true, {{"#PLR2\r\n", "#PLR2\r\nSieg=NEIN"}}},
      {"#text\r\n#TITEL\r\n#titel\r\n\r\n", true, {{"#TEXT\r\n", "#TEXT\r\n#TITEL"}}},
      {"#TIME\r\nja\r\nJA \r\n", true, {{"#TIME\r\nJA\r\nJA", "#TIME\r\nNEIN\r\nNEIN"}}},
      {"#HOTKEYS\r\nab\r\n b\r\n\x80\r\n#\r\n", true, {{"P\r\nH\r\nW\r\nB", "a\r\n \r\n\x80\r\n#"}}},
      {"Sieg=NEIN\r\n#PLR1\r\nx\r\n#PLR2", false, {no("Sieg"), {"#PLR1\r\n", "#PLR1\r\nx"}}},
      {"#TIME\r\nNEIN\r\n", false, {{"#TIME\r\nJA", "#TIME\r\nNEIN"}}},
      {"#HOTKEYS\r\nX\r\n\r\nY\r\nZ\r\nSieg=NEIN", false, {{"S\r\nP", "S\r\nX"}}},
      {"#CONTRAST\r\n40000\r\nSieg=NEIN", false, {}},
      {std::string(1'100'000, 'x') + "\r\nLast6=NEIN", false, {}}};
  for (const auto& [bytes, whole, changes] : cases) {
    SCOPED_TRACE(bytes.substr(0, 60));
    core::State state;
    core::SetDefaults(state);
    std::string expected = storage::SettingsText(state);
    for (const auto& [from, to] : changes) expected.replace(expected.find(from), from.size(), to);
    std::istringstream file(bytes);
    EXPECT_EQ(storage::ReadSettings(file, state), whole);
    EXPECT_EQ(storage::SettingsText(state), expected);
  }
}

}  // namespace
