// What stands in the place of the program's files: what is none, and texts too long to be shown.
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

TEST_F(FilesTest, WhatWasReadOfACutGameIsShownAndTheRestTold) {
  game.Players[2] = {.Name = "Zoë", .Settlements = 5, .LongestRoad = true, .Active = true};
  Choose("mnuFileSaveAs");
  resize_file(path(File), 200);
  const auto later = Loaded();
  EXPECT_EQ(later->State.figures.PlayerPoints[2], 7);
  EXPECT_THAT(services.Boxes.back().Text, testing::EndsWith("\n" + File));
}

TEST_F(FilesTest, WhatChangesTheGameIsKeptAtOnceAndNothingElse) {
  // What is done in a fresh program, and how many games it keeps.
  const auto tick = [](MainWindow& fresh) { fresh.F1.timSpielzeit.Elapsed(), fresh.F1.timCopy.Elapsed(); };
  const auto choose = [](const char* item) {
    return [item](MainWindow& fresh) { fresh.F1.ClickMenu((*fresh.F1.MenuBar)[item]); };
  };
  const auto roll = choose("mnuExtraAutoDice");
  const auto begin = [](MainWindow& fresh) {
    fresh.F20.OpenNewGame();
    Click(fresh.F20.cmdStart);
  };
  const std::tuple<const char*, std::vector<std::function<void(MainWindow&)>>, std::size_t> cases[] = {
      {"start", {tick}, 0},
      {"roll", {roll}, 1},
      {"roll and undo", {roll, choose("mnuExtraDelLastW")}, 1},
      {"longest road", {choose("mnuSpecialLHS")}, 0},
      {"action", {[](MainWindow& fresh) { fresh.F4.OpenActionDialog(1), Key(fresh.F4, '1'); }}, 1},
      {"title",
       {choose("mnuGameInfo"),
        [](MainWindow& fresh) { fresh.F6.Type(fresh.F6.Info.txtSpieltitel, "x"), Click(fresh.F6.cmdOK); }, tick},
       1},
      {"name as it is typed",
       {[](MainWindow& fresh) {
          Key(fresh.F1, platform::FunctionKey(1), kShift), fresh.F5.Type(fresh.F5.txtData(0), "x");
        },
        tick},
       1},
      {"new game", {begin}, 1},
      {"new game after a roll", {roll, begin}, 2},
      {"load", {choose("mnuFileLoad")}, 1},
      {"load of an empty file after a roll",
       {roll,
        [&](MainWindow& fresh) {
          services.ChosenFile = Folder / "empty.obg";
          choose("mnuFileLoad")(fresh);
          services.ChosenFile = File;
        }},
       1},
      {"clocks", {choose("mnuExtraClock"), tick}, 0},
      {"windows", {choose("mnuExtraZS"), choose("mnuFileSaveAs"), choose("mnuExtraSettings"), tick}, 0}};
  Put(Folder / "empty.obg", "");
  game.GameTitle = "Abend";
  Choose("mnuFileSaveAs");
  services.State = Folder / "state";
  services.Answers.assign(9, platform::Answer::Yes);
  for (const auto& [what, steps, kept] : cases) {
    create_directories(services.State / "orvanbeg");
    auto fresh = std::make_unique<MainWindow>(services);
    fresh->Load();
    for (const auto& step : steps) step(*fresh);
    const auto last = storage::GameFileText(fresh->State);
    const auto isKept = [&] {
      const auto names = Names("state/orvanbeg");
      return std::ranges::any_of(names,
                                 [&](const auto& name) { return Bytes(services.State / "orvanbeg" / name) == last; });
    };
    for (int i = 0; i < 5000 && kept > 0 && !isKept(); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    EXPECT_EQ(isKept(), kept > 0) << what;
    fresh.reset();
    EXPECT_EQ(Names("state/orvanbeg").size(), kept) << what;
    remove_all(services.State);
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
    MainWindow later(services);
    later.Load();
    later.F1.ClickMenu((*later.F1.MenuBar)["mnuFileLoad"]);
    later.F3.ShowReadme();
    EXPECT_TRUE(later.F1.AcceptsInput()) << kind;
    EXPECT_EQ(storage::GameFileText(later.State), storage::GameFileText(window.State)) << kind;
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
  EXPECT_EQ(window.F2.txtInfo.Text.Get(), "\r\ntwö\r\n" + line + "\r\n" + window.State.Text(177));
}

}  // namespace
}  // namespace tests
