// The commands that save, load and quit, as the user meets them.
#include "../../mainwindow/main_window.h"
#include "../scripted_services.h"
#include "../storage/temporary_folder.h"

namespace tests {
namespace {

class FilesTest : public TemporaryFolder {
 protected:
  FilesTest() {
    std::filesystem::copy(ORVANBEG_RUN_FOLDER, Folder, std::filesystem::copy_options::recursive);
    services.Folder = Folder;
    EXPECT_EQ(window.Load(), mainwindow::Started::Yes);
  }
  void Choose(const std::string& name) { services.ChosenFile = (Folder / name).string(); }

  ScriptedServices services;
  mainwindow::MainWindow window{services};
  core::Game& game = window.State.game;
};

TEST_F(FilesTest, AGameComesBackWithPanelsChartThemeAndEventDie) {
  Choose("evening.obg");
  game.GameType = core::kFirstExpansion;
  game.Players[5].Active = true;
  game.Players[2].Name = "Zoë";
  window.F1_mnuExtraAutoDice_Click();
  window.F1_mnuFileSaveAs_Click();
  mainwindow::MainWindow later(services);
  ASSERT_EQ(later.Load(), mainwindow::Started::Yes);
  later.F1_mnuFileLoad_Click();
  EXPECT_EQ(later.State.game.Players, game.Players);
  EXPECT_EQ(later.State.game.NumPlayers, 5);
  EXPECT_EQ(later.State.game.TotalRolls, 1);
  EXPECT_TRUE(later.F1.picSP(4).Visible);
  EXPECT_TRUE(later.F1.picWurfel(2).Visible);
  EXPECT_EQ(later.F1.Image.Get().Name, "img/bw_back.jpg");
}

TEST_F(FilesTest, TheFileDialogsAskAsTold) {
  window.F1_mnuFileLoad_Click();
  Choose("typed-without-extension");
  window.F1_mnuFileSaveAs_Click();
  const auto& open = services.FileDialogs[0];
  EXPECT_EQ(open.Filter, "Orvan Begleiter Spiele (*.obg)|*.obg|Alle Dateien (*.*)|*.*");
  EXPECT_EQ(open.DialogTitle, "Öffnen...");
  EXPECT_EQ(open.Flags, 4096);
  EXPECT_EQ(open.InitDir, Folder.string());
  EXPECT_EQ(services.FileDialogs[1].Filter, "Orvan Begleiter Spiele (*.obg)|*.obg");
  EXPECT_EQ(services.FileDialogs[1].Flags, 2050);
  EXPECT_TRUE(exists(Folder / "typed-without-extension"));
  window.F1_mnuFileLoad_Click();
  EXPECT_EQ(services.FileDialogs[2].FileName, services.ChosenFile);
}

TEST_F(FilesTest, WhatIsNoGameIsToldAndLeavesTheGame) {
  Put(Folder / "letter.obg", "obgv31\r\n");
  Choose("letter.obg");
  game.Players[1].Name = "Anna";
  window.F1_mnuFileLoad_Click();
  const ScriptedServices::Box told{window.State.Text(102), window.State.Text(103), platform::Buttons::Ok,
                                   platform::Icon::Critical};
  EXPECT_EQ(services.Boxes.back(), told);
  EXPECT_EQ(game.Players[1].Name, "Anna");
}

TEST_F(FilesTest, TheQuitAsksAndStoresTheSettings) {
  game.Players[3].Name = "Çelik";
  window.State.settings.ShowLast6 = false;
  window.F1_mnuFileQuit_Click();
  EXPECT_EQ(services.Boxes.back().Title, "Programm beenden");
  EXPECT_EQ(services.QuitStatus, -1);
  services.Answers = {platform::Answer::Yes};
  window.F1_mnuFileQuit_Click();
  EXPECT_EQ(services.QuitStatus, 0);
  services.WhileVisible = [](platform::Form&) { FAIL() << "asked for a language again"; };
  mainwindow::MainWindow later(services);
  ASSERT_EQ(later.Load(), mainwindow::Started::Yes);
  EXPECT_EQ(later.State.game.Players[3].Name, "Çelik");
  EXPECT_FALSE(later.F1.picInfoLine.Visible);
}

TEST_F(FilesTest, SettingsChooseTheThemeOfTheStart) {
  const std::string language = "#LANGUAGE\r\nDeutsch\r\n";
  const std::pair<std::string, const char*> rows[] = {
      {"AutoHG=JA\r\nHG=3\r\n", "img/flo_back.jpg"},
      {"AutoHG=NEIN\r\nHG=3\r\n", "img/basis_back.jpg"},
      {"HG=3\r\n#CONTRAST\r\n", "img/basis_back.jpg"},  // ends within an entry
  };
  for (const auto& [lines, picture] : rows) {
    Put(Folder / "orvanbeg.ini", language + lines);
    mainwindow::MainWindow fresh(services);
    ASSERT_EQ(fresh.Load(), mainwindow::Started::Yes);
    EXPECT_EQ(fresh.F1.Image.Get().Name, picture) << lines;
  }
}

}  // namespace
}  // namespace tests
