// The start-up: what stands on the screen after it, and what happens without a usable language file.
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "../main_window_fixture.h"

namespace tests {
namespace {

using mainwindow::MainWindow;
using mainwindow::Started;
using testing::HasSubstr;

class StartTest : public testing::Test {
 protected:
  StartTest() { create_directories(folder); }
  ~StartTest() override {
    std::filesystem::current_path(folder.parent_path());
    remove_all(folder);
  }
  /// Adds a block to a language file in a folder of its own; its texts are the name and their number.
  void WriteLanguage(const std::string& name, int texts = 118) {
    services.Folder = folder;
    std::ofstream file(folder / "language.ini", std::ios::binary | std::ios::app);
    file << "#LANGUAGE\r\n" << name << "\r\n";
    for (int i = 1; i <= texts; ++i) file << name << ' ' << i << "\r\n";
  }

  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() /
      (std::string("orvanbeg-") + testing::UnitTest::GetInstance()->current_test_info()->name() +
       std::to_string(getpid()));
  ScriptedServices services;
  MainWindow window{services};
};

TEST_F(StartTest, OpensAsABaseGameOfFourWithoutRolls) {
  ASSERT_EQ(window.Load(), Started::Yes);
  EXPECT_TRUE(window.F1.Visible);
  for (int i = 0; i < 6; ++i) EXPECT_EQ(window.F1.picSP(i).Visible, i < 4) << i;
  EXPECT_FALSE(window.F1.picWurfel(2).Visible);
  const core::Game& game = window.State.game;
  EXPECT_EQ(game.GameType, 2);
  EXPECT_EQ(game.WinPoints, 10);
  EXPECT_EQ(game.NumPlayers, 4);
  for (std::size_t seat = 1; seat <= 6; ++seat) EXPECT_EQ(game.Players[seat].Settlements, 2);
  EXPECT_FALSE(game.ClockRunning);
  const core::Settings& settings = window.State.settings;
  EXPECT_TRUE(settings.ShowLast6 && settings.ShowWinner && settings.ShowBarbarians && settings.ShowGameTime);
  EXPECT_TRUE(settings.Contrast.IsOn() && settings.AutoHG.IsOn() && settings.SiegAnzeige.IsOn());
  std::string keys;
  for (int i = 0; i < 4; ++i) keys += window.F7.lblHotkeyShow(i).Caption.Get();
  EXPECT_EQ(keys, "PHWB");
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(StartTest, DialogsLieOverTheMiddleOfTheMainWindow) {
  window.F1.FrameHeight = 301;
  ASSERT_EQ(window.Load(), Started::Yes);
  // (9495 - 5160) / 2 and (8355 + 301 + menu bar - 2910) / 2, rests dropped
  const platform::Place place = window.F7.Position;
  EXPECT_EQ(place.Left, 2167);
  EXPECT_EQ(place.Top, (5746 + window.F1.MenuBarHeight) / 2);
}

TEST_F(StartTest, ShortLanguageBlockIsToldByNameAndCount) {
  WriteLanguage("Ours", 117);
  services.FirstLanguage = "Ours";
  ASSERT_EQ(window.Load(), Started::Yes);
  ASSERT_EQ(services.Boxes.size(), 1U);
  EXPECT_THAT(services.Boxes[0].Text, testing::AllOf(HasSubstr("\"Ours\""), HasSubstr("117 / 118")));
  EXPECT_EQ((*window.F1.MenuBar)["mnuFile"].Caption.Get(), "Ours 1");
  EXPECT_EQ((*window.F1.MenuBar)["mnuExtraAutoDice"].Caption.Get(), "");
}

TEST_F(StartTest, WithoutLanguageTheUserIsToldInTwoLanguages) {
  services.Folder = folder;
  for (const char* what : {"missing", "empty", "no block"}) {
    SCOPED_TRACE(what);
    MainWindow fresh(services);
    services.Boxes.clear();
    EXPECT_EQ(fresh.Load(), Started::NoLanguage);
    EXPECT_FALSE(fresh.F1.Visible);
    ASSERT_EQ(services.Boxes.size(), 1U);
    EXPECT_THAT(services.Boxes[0].Text, testing::AllOf(HasSubstr("Sprachdatei"), HasSubstr("language file"),
                                                       HasSubstr((folder / "language.ini").string())));
    std::ofstream(folder / "language.ini", std::ios::app) << (what == std::string("missing") ? "" : "#language\r\n");
  }
}

TEST_F(StartTest, FirstRunTakesOnlyALanguageOfTheFile) {
  for (const char* name : {"Deutsch", "English"}) WriteLanguage(name);
  services.WhileVisible = [&](platform::Form& form) {
    EXPECT_FALSE(window.F8.fraDisplay.Visible);
    EXPECT_EQ(window.F8.fraSelectLang.Position.Get().Top, 2250);
    EXPECT_FALSE(window.F1.AcceptsInput());
    Key(form, platform::kKeyEnter);  // the prompt is no language
    EXPECT_THAT(services.Boxes.back().Text, HasSubstr("Please select language"));
    EXPECT_TRUE(form.Visible);
    form.Pick(window.F8.comSelectLang, 1);
    Key(form, platform::kKeyEnter);
  };
  ASSERT_EQ(window.Load(), Started::Yes);
  auto& menu = *window.F1.MenuBar;
  EXPECT_EQ(menu["mnuExtraDelLastW"].Caption.Get(), "English 11");
  EXPECT_EQ(menu["mnuExtraClock"].Caption.Get(), "English 112");
  EXPECT_EQ(menu["mnuExtraLeer"].Caption.Get(), "-");
  EXPECT_EQ(window.F1.tbrMenu.ToolTip(9), "English 11");
  EXPECT_EQ(window.F1.tbrMenu.ToolTip(6), "");
  EXPECT_EQ(window.F1.picSP(5).ToolTipText.Get(), "English 32");
  EXPECT_EQ(window.F7.Caption.Get(), "English 76");
  EXPECT_EQ(window.F8.fraSelectLang.Position.Get().Top, 5040);
  EXPECT_FALSE(window.F8.Visible);
  EXPECT_TRUE(window.F1.AcceptsInput());
}

}  // namespace
}  // namespace tests
