// Games and settings to files and back, through the commands; files that are none, and a save that fails.
#include <sys/stat.h>
#include <unistd.h>

#include "../../storage/game_file.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using mainwindow::MainWindow;
using mainwindow::Started;
using std::filesystem::path;

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

TEST_F(FilesTest, OfALongTextTheBeginningIsShownWithAMark) {
  const std::string line(40000, 'x');
  Put(Folder / "tastatur.txt", "tw\xF6\n" + line + "\n" + line);
  Choose("mnuHelpKeys");
  EXPECT_EQ(window.F2.txtInfo.Text.Get(), "\r\ntwö\r\n" + line + "\r\n[…]");
}

}  // namespace
}  // namespace tests
