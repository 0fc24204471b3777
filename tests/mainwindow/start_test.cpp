// The start-up and the end: what stands on the screen, what happens without a usable language file, and what comes back
// from games and settings.
#include "../main_window_fixture.h"

namespace tests {
namespace {

using mainwindow::MainWindow;
using mainwindow::Started;
using testing::HasSubstr;

struct StartTest : TemporaryFolder {
  /// Starts the program as shipped, in a folder where it may write.
  void LoadFromAFolder() {
    std::filesystem::copy(ORVANBEG_RUN_FOLDER, Folder, std::filesystem::copy_options::recursive);
    services.Folder = Folder;
    ASSERT_EQ(window.Load(), Started::Yes);
  }
  /// Adds a block to a language file in a folder of its own; its texts are the name and their number.
  void WriteLanguage(const std::string& name, int texts = 118) {
    services.Folder = Folder;
    std::ofstream file(Folder / "language.ini", std::ios::binary | std::ios::app);
    file << "#LANGUAGE\r\n" << name << "\r\n";
    for (int i = 1; i <= texts; ++i) file << name << ' ' << i << "\r\n";
  }
  void Choose(const std::string& name) { services.ChosenFile = (Folder / name).string(); }
  std::string Caption(const char* menuItem) { return (*window.F1.MenuBar)[menuItem].Caption.Get(); }

  ScriptedServices services;
  MainWindow window{services}, later{services};
  core::Game& game = window.State.game;
};

TEST_F(StartTest, OpensAsABaseGameOfFourWithoutRollsAndDialogsOverItsMiddle) {
  window.F1.FrameHeight = 301;
  ASSERT_EQ(window.Load(), Started::Yes);
  EXPECT_TRUE(window.F1.Visible && !window.F1.picWurfel(2).Visible && services.Boxes.empty());
  EXPECT_TRUE(game.GameType == 2 && game.WinPoints == 10 && game.NumPlayers == 4 && !game.ClockRunning);
  for (int i = 0; i < 6; ++i) EXPECT_EQ(window.F1.picSP(i).Visible, i < 4) << i;
  EXPECT_THAT(game.PlayerPoints, testing::ElementsAre(0, 2, 2, 2, 2, 2, 2));
  EXPECT_EQ(window.F7.lblHotkeyShow(3).Caption.Get(), "B");
  // (9495 - 5160) / 2 and (8355 + 301 + menu bar - 2910) / 2, rests dropped
  const platform::Place place = window.F7.Position;
  EXPECT_EQ(std::pair(place.Left, place.Top), std::pair(2167, (5746 + window.F1.MenuBarHeight) / 2));
}

TEST_F(StartTest, ShortLanguageBlockIsToldByNameAndCount) {
  WriteLanguage("Ours", 117);
  services.FirstLanguage = "Ours";
  ASSERT_EQ(window.Load(), Started::Yes);
  EXPECT_THAT(services.Boxes.at(0).Text, testing::AllOf(HasSubstr("\"Ours\""), HasSubstr("117 / 118")));
  EXPECT_EQ(Caption("mnuFile") + Caption("mnuExtraAutoDice"), "Ours 1");
}

TEST_F(StartTest, WithoutLanguageTheUserIsToldInTwoLanguages) {
  services.Folder = Folder;
  for (const char* next : {"", "#language\r\n", ""}) {  // no file, an empty one, one without a block
    MainWindow fresh(services);
    services.Boxes.clear();
    EXPECT_TRUE(fresh.Load() == Started::NoLanguage && !fresh.F1.Visible);
    ASSERT_EQ(services.Boxes.size(), 1U);
    EXPECT_THAT(services.Boxes[0].Text, testing::AllOf(HasSubstr("Sprachdatei"), HasSubstr("language file")));
    Put(Folder / "language.ini", next);
  }
}

TEST_F(StartTest, FirstRunTakesOnlyALanguageOfTheFile) {
  for (const char* name : {"Deutsch", "English"}) WriteLanguage(name);
  services.WhileVisible = [&](platform::Form& form) {
    EXPECT_TRUE(!window.F8.fraDisplay.Visible && !window.F1.AcceptsInput());
    EXPECT_EQ(window.F8.fraSelectLang.Position.Get().Top, 2250);
    Key(form, platform::kKeyEnter);  // the prompt is no language
    EXPECT_THAT(services.Boxes.back().Text, HasSubstr("Please select language"));
    EXPECT_TRUE(form.Visible);
    form.Pick(window.F8.comSelectLang, 1);
    Key(form, platform::kKeyEnter);
  };
  ASSERT_EQ(window.Load(), Started::Yes);
  EXPECT_EQ(Caption("mnuExtraDelLastW") + Caption("mnuExtraClock") + Caption("mnuExtraLeer"), "English 11English 112-");
  EXPECT_EQ(window.F1.tbrMenu.ToolTip(9) + window.F1.tbrMenu.ToolTip(6), "English 11");
  EXPECT_EQ(window.F1.picSP(5).ToolTipText.Get() + window.F7.Caption.Get(), "English 32English 76");
  EXPECT_EQ(window.F8.fraSelectLang.Position.Get().Top, 5040);
  EXPECT_TRUE(!window.F8.Visible && window.F1.AcceptsInput());
}

TEST_F(StartTest, AGameComesBackWithPanelsChartThemeAndEventDie) {
  LoadFromAFolder();
  Choose("evening.obg");
  game.GameType = core::kFirstExpansion;
  game.Players[5].Active = true;
  game.Players[2].Name = "Zoë";
  window.F1_mnuExtraAutoDice_Click();
  window.F1_mnuFileSaveAs_Click();
  ASSERT_EQ(later.Load(), Started::Yes);
  later.F1_mnuFileLoad_Click();
  EXPECT_EQ(later.State.game.Players, game.Players);
  EXPECT_TRUE(later.State.game.NumPlayers == 5 && later.State.game.TotalRolls == 1);
  EXPECT_TRUE(later.F1.picSP(4).Visible && later.F1.picWurfel(2).Visible);
  EXPECT_EQ(later.F1.Image.Get().Name, "img/bw_back.jpg");
}

TEST_F(StartTest, FileDialogsAskAsToldAndWhatIsNoGameLeavesTheGame) {
  LoadFromAFolder();
  window.F1_mnuFileLoad_Click();
  Choose("typed-without-extension");
  window.F1_mnuFileSaveAs_Click();
  const platform::FileDialog open = services.FileDialogs[0], save = services.FileDialogs[1];
  EXPECT_EQ(open.DialogTitle + open.InitDir, "Öffnen" + Folder.string());
  EXPECT_EQ(open.Filter, save.Filter + "|Alle Dateien (*.*)|*.*");
  EXPECT_EQ(save.Filter, "Orvan-Begleiter-Spiele (*.obg)|*.obg");
  EXPECT_TRUE(open.Flags == 4096 && save.Flags == 2050 && exists(Folder / "typed-without-extension"));
  Put(services.ChosenFile, "obgv31\r\n");
  game.Players[1].Name = "Anna";
  window.F1_mnuFileLoad_Click();
  EXPECT_EQ(services.FileDialogs[2].FileName, services.ChosenFile);
  EXPECT_EQ(services.Boxes.back(), (ScriptedServices::Box{window.State.Text(102), window.State.Text(103),
                                                          platform::Buttons::Ok, platform::Icon::Critical}));
  EXPECT_EQ(game.Players[1].Name, "Anna");
}

TEST_F(StartTest, QuitAsksAndStoresTheSettings) {
  LoadFromAFolder();
  game.Players[3].Name = "Çelik";
  window.State.settings.ShowLast6 = false;
  window.F1_mnuFileQuit_Click();
  EXPECT_TRUE(services.Boxes.back().Title == "Programm beenden" && services.QuitStatus == -1);
  services.Answers = {platform::Answer::Yes};
  window.F1_mnuFileQuit_Click();
  EXPECT_EQ(services.QuitStatus, 0);
  services.WhileVisible = [](platform::Form&) { FAIL() << "asked for a language again"; };
  ASSERT_EQ(later.Load(), Started::Yes);
  EXPECT_EQ(later.State.game.Players[3].Name, "Çelik");
  EXPECT_FALSE(later.F1.picInfoLine.Visible);
}

TEST_F(StartTest, SettingsChooseTheThemeOfTheStart) {
  const std::pair<std::string, const char*> rows[] = {
      {"AutoHG=JA\r\nHG=3\r\n", "img/flo_back.jpg"},
      {"AutoHG=NEIN\r\nHG=3\r\n", "img/basis_back.jpg"},
      {"HG=3\r\n#CONTRAST\r\n", "img/basis_back.jpg"}};  // ends within an entry
  LoadFromAFolder();
  for (const auto& [lines, picture] : rows) {
    Put(Folder / "orvanbeg.ini", "#LANGUAGE\r\nDeutsch\r\n" + lines);
    MainWindow fresh(services);
    ASSERT_EQ(fresh.Load(), Started::Yes);
    EXPECT_EQ(fresh.F1.Image.Get().Name, picture) << lines;
  }
}

}  // namespace
}  // namespace tests
