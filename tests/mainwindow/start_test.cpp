// The start-up: what stands on the screen, the language and its file, the theme, and what a missing picture leaves.
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using mainwindow::MainWindow;
using mainwindow::Started;
using testing::HasSubstr;

struct StartTest : MainWindowTest {
  /// Starts once more with a language file of these blocks, whose texts are the name and their number.
  Started StartWith(const std::vector<std::string>& languages, int texts = 118) {
    std::ofstream file(Folder / "language.ini", std::ios::binary);
    for (const std::string& name : languages) {
      file << "#LANGUAGE\r\n" << name << "\r\n";
      for (int i = 1; i <= texts; ++i) file << name << ' ' << i << "\r\n";
    }
    file.close();
    services.Boxes.clear();
    return later.Load();
  }
  MainWindow later{services};
};

TEST_F(StartTest, OpensAsABaseGameOfFourWithoutRollsAndDialogsOverItsMiddle) {
  later.F1.FrameHeight = 301;
  ASSERT_EQ(later.Load(), Started::Yes);
  const core::Game& fresh = later.State.game;
  EXPECT_TRUE(later.F1.Visible && services.Boxes.empty() && !fresh.ClockRunning && fresh.Clock[0] == 0);
  EXPECT_TRUE(fresh.GameType == 2 && fresh.WinPoints == 10 && fresh.NumPlayers == 4);
  EXPECT_THAT(later.State.figures.PlayerPoints, testing::ElementsAre(0, 2, 2, 2, 2, 2, 2));
  // (9495 - 5160) / 2 and (8355 + 301 + menu bar - 2910) / 2, rests dropped
  const platform::Place place = later.F7.Position;
  EXPECT_EQ(std::pair(place.Left, place.Top), std::pair(2167, (5746 + later.F1.MenuBarHeight) / 2));
}

TEST_F(StartTest, AShortLanguageBlockIsToldByNameAndCount) {
  ASSERT_EQ(StartWith({"Ours"}, 117), Started::Yes);
  EXPECT_THAT(services.Boxes.at(0).Text, HasSubstr("Ours, 117 / 118"));
  EXPECT_EQ((*later.F1.MenuBar)["mnuFile"].Caption.Get() + (*later.F1.MenuBar)["mnuExtraAutoDice"].Caption.Get(),
            "Ours 1");
}

TEST_F(StartTest, WithoutLanguageTheUserIsToldInTwoLanguages) {
  EXPECT_TRUE(StartWith({}) == Started::NoLanguage && !later.F1.Visible);
  ASSERT_EQ(services.Boxes.size(), 1U);
  EXPECT_THAT(services.Boxes[0].Text, testing::AllOf(HasSubstr("Sprachdatei"), HasSubstr("language file")));
}

TEST_F(StartTest, TheFirstRunTakesOnlyALanguageOfTheFile) {
  services.WhileVisible = [&](platform::Form& form) {
    EXPECT_FALSE(later.F1.AcceptsInput());
    Key(form, platform::kKeyEnter);  // the prompt is no language
    EXPECT_THAT(services.Boxes.back().Text, HasSubstr("Please select language"));
    EXPECT_TRUE(form.Visible);
    form.Pick(later.F8.comSelectLang, 1);
    form.PressCloseBox();
    EXPECT_TRUE(form.Visible);
    Key(form, platform::kKeyEnter);
  };
  ASSERT_EQ(StartWith({"Deutsch", "English"}), Started::Yes);
  EXPECT_EQ((*later.F1.MenuBar)["mnuExtraDelLastW"].Caption.Get() + later.F7.Caption.Get(), "English 11English 76");
  EXPECT_TRUE(!later.F8.Visible && later.F1.AcceptsInput());
}

TEST_F(StartTest, SettingsChooseTheThemeOfTheStart) {
  const std::pair<std::string, const char*> rows[] = {
      {"AutoHG=JA\r\nHG=3\r\n", "img/flo_back.jpg"},
      {"AutoHG=NEIN\r\nHG=3\r\n", "img/basis_back.jpg"},
      {"HG=3\r\n#CONTRAST\r\n", "img/basis_back.jpg"}};  // ends within an entry
  for (const auto& [lines, picture] : rows) {
    Put(Folder / "orvanbeg.ini", std::string("#LANGUAGE\r\n") + kNumbers + "\r\n" + lines);
    MainWindow fresh(services);
    ASSERT_EQ(fresh.Load(), Started::Yes);
    EXPECT_EQ(fresh.F1.Image.Get().Name, picture) << lines;
  }
}

TEST_F(StartTest, LeadersHaveAGroundOfTheirOwnOnHiddenSeatsTooAndAMissingOneLeavesTheOld) {
  services.MissingPictures = {"img/basis_s1.jpg"};
  game.Players[2].BonusPoints = game.Players[6].BonusPoints = 3;
  core::CalcPoints(window.State, window);
  std::string grounds;
  for (const int panel : {0, 1, 2, 5}) grounds += window.F1.picSP(panel).Image.Get().Name + " ";
  EXPECT_EQ(grounds, "img/basis_s1_high.jpg img/basis_s2_high.jpg img/basis_s3.jpg img/basis_s6_high.jpg ");
}

TEST_F(StartTest, ATallFrameLeavesTheClocksInTheWindow) {
  for (const auto& [frame, y] : {std::pair(600, "7955"), {2000, "8105"}}) {
    window.F1.FrameHeight = frame;
    window.F1.timSpielzeit.Elapsed();
    EXPECT_THAT(Drawn(window.F1.Drawing).back(), testing::HasSubstr(std::string(",") + y + " 'PAUSE'"));
  }
}

TEST_F(StartTest, KeysBringThePointsIntoTwoDigitsUnlessNobodyPlaysOnTheSeat) {
  game.Players[3].Active = false;
  for (const auto& [key, points] : {std::pair(3, 32767), {10, 99}}) {
    figures.PlayerPoints[5] = 32767;
    Press(platform::FunctionKey(key));
    EXPECT_EQ(figures.PlayerPoints[5], points);
  }
}

}  // namespace
}  // namespace tests
