// Games and settings to files and back, through the commands; files that are none, and a save that fails.
#include <sys/stat.h>
#include <unistd.h>

#include "../../storage/game_file.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using mainwindow::MainWindow;
using mainwindow::Started;
using platform::Buttons;
using std::filesystem::path;
using Box = ScriptedServices::Box;

struct FilesTest : MainWindowTest {
  FilesTest() { services.ChosenFile = File; }
  /// Starts the program once more and loads the game that was saved last, by a user who chooses the themes or not.
  std::unique_ptr<MainWindow> Loaded(core::CheckValue automatic = core::kOn) {
    auto later = std::make_unique<MainWindow>(services);
    later->Load();
    later->State.settings.AutoHG = automatic;
    later->F1.ClickMenu((*later->F1.MenuBar)["mnuFileLoad"]);
    return later;
  }

  const std::string File = Folder / "evening.obg";
};

TEST_F(FilesTest, AGameComesBackWithPanelsChartAndEventDie) {
  PlayExpansion();
  game.Players[5] = {.Name = "Zoë", .Cities = 3, .Active = true};
  Press(platform::FunctionKey(9));
  Choose("mnuFileSaveAs");
  const auto later = Loaded();
  EXPECT_EQ(storage::GameFileText(later->State), storage::GameFileText(window.State));
  EXPECT_TRUE(later->State.game.NumPlayers == 5 && later->State.figures.TotalRolls == 1);
  EXPECT_TRUE(later->State.figures.LeaderFlag[5] && later->F1.picSP(4).Visible && later->F1.picWurfel(2).Visible);
}

TEST_F(FilesTest, ALoadBringsTheThemeOfItsGameUnlessTheUserChoosesIt) {
  // The second expansion brings its own all the same. Second expansion, who chooses, theme.
  const std::tuple<core::CheckValue, core::CheckValue, const char*> cases[] = {
      {core::kOff, core::kOn, "img/bw_back.jpg"},
      {core::kOff, core::kOff, "img/basis_back.jpg"},
      {core::kOn, core::kOff, "img/flo_back.jpg"}};
  PlayExpansion();
  for (const auto& [flottillen, automatic, theme] : cases) {
    game.OptFlottillen = flottillen;
    Choose("mnuFileSaveAs");
    EXPECT_EQ(Loaded(automatic)->F1.Image.Get().Name, theme);
  }
}

TEST_F(FilesTest, DialogsAskForTheFileAndWhatIsNoGameLeavesTheGame) {
  const std::string games = "T109 (*.obg)|*.obg";
  for (const auto& [command, title, filter] :
       {std::tuple("mnuFileSaveAs", "T4", games), {"mnuFileLoad", "T3", games + "|T110 (*.*)|*.*"}}) {
    Choose(command);
    const platform::FileDialog shown = services.FileDialogs.back();
    EXPECT_EQ(shown.DialogTitle + shown.Filter + shown.InitDir, title + filter + Folder.string());
  }
  EXPECT_EQ(services.FileDialogs.back().FileName, File) << "the name chosen last";
  game.Players[1].Name = "Anna";
  for (const auto& [bytes, text, title] : {std::tuple("obgv31\r\n", "T102", "T103"), {"OBGV21\r\n", "T104", "T105"}}) {
    Put(File, bytes);
    Choose("mnuFileLoad");
    EXPECT_EQ(services.Boxes.back(), (Box{text, title, Buttons::Ok, platform::Icon::Critical}));
    EXPECT_EQ(game.Players[1].Name, "Anna");
  }
}

TEST_F(FilesTest, ASaveThatFailsLeavesTheGameAndNoFile) {
  services.ChosenFile = Folder / "gone/evening.obg";
  Choose("mnuFileSaveAs");
  EXPECT_FALSE(exists(Folder / "gone"));
  Press(platform::FunctionKey(9));
  EXPECT_EQ(Rolls(), 1);
}

TEST_F(FilesTest, QuitAsksAndStoresTheSettingsAndTellsWhereItCannot) {
  game.Players[3].Name = "Çelik";
  Choose("mnuFileQuit");
  EXPECT_EQ(services.Boxes.back(), (Box{"T101", "T7", Buttons::YesNo, platform::Icon::None}));
  EXPECT_EQ(services.QuitStatus, -1);
  services.Answers = {platform::Answer::Yes};
  Choose("mnuFileQuit");
  EXPECT_TRUE(services.QuitStatus == 0 && services.Boxes.size() == 2);
  services.WhileVisible = [](platform::Form&) { FAIL() << "asked for a language again"; };
  EXPECT_EQ(Loaded()->State.game.Players[3].Name, "Çelik");
  remove(Folder / "orvanbeg.ini");
  create_directory(Folder / "orvanbeg.ini");
  Put(Folder / "config", "no folder either");
  services.Answers = {platform::Answer::Yes};
  Choose("mnuFileQuit");
  EXPECT_THAT(services.Boxes.back().Text, testing::HasSubstr(Folder / "config/orvanbeg/orvanbeg.ini"));
}

TEST_F(FilesTest, WhatIsNoFileIsLeftAloneInThePlaceOfAny) {
  const std::pair<const char*, std::function<void(const path&)>> kinds[] = {
      {"folder", [](const path& at) { create_directory(at); }},
      {"pipe", [](const path& at) { mkfifo(at.c_str(), 0600); }},
      {"loop", [](const path& at) { create_symlink(at.filename(), at); }},
      {"endless device", [](const path& at) { create_symlink("/dev/zero", at); }},
      {"100 MB", [](const path& at) { Put(at, "#PLR1\r\n"), resize_file(at, 100'000'000); }}};
  alarm(60);  // who opens a pipe waits for ever
  for (const auto& [kind, make] : kinds) {
    for (const char* name : {"orvanbeg.ini", "readme.txt", "evening.obg"}) remove(Folder / name), make(Folder / name);
    const auto later = Loaded();
    EXPECT_TRUE(later->F1.AcceptsInput()) << kind;
    EXPECT_EQ(storage::GameFileText(later->State), storage::GameFileText(window.State)) << kind;
    later->F3.ShowReadme();
    rename(Folder / "language.ini", Folder / "kept");
    make(Folder / "language.ini");
    EXPECT_EQ(MainWindow(services).Load(), Started::NoLanguage) << kind;
    remove(Folder / "language.ini");
    rename(Folder / "kept", Folder / "language.ini");
  }
  alarm(0);
}

}  // namespace
}  // namespace tests
