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
      {"clocks", {choose("mnuExtraClock"), tick}, 0},
      {"windows", {choose("mnuExtraZS"), choose("mnuFileSaveAs"), choose("mnuExtraSettings"), tick}, 0}};
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
