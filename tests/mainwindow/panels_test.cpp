// The panels of the seats, compared as drawings; the pictures of a theme, and what a missing one leaves; what a redraw
// changes besides: points, buttons of the actions, the win.
#include "../../core/points.h"
#include "../../mainwindow/themes.h"
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using testing::ElementsAre;

struct PanelsTest : MainWindowTest {
  core::TPlayer& ada = game.Players[1];

  PanelsTest() { settings.ShowWinner = false; }
  void Draw() { core::CalcPoints(game, window); }
  Lines Panel(int seat) { return Drawn(window.F1.picSP(seat - 1).Drawing); }
  std::string Ground(int seat) { return window.F1.picSP(seat - 1).Image.Get().Name; }
  /// Loads a theme; tells what is seen then, in the order in which the pictures are loaded.
  Lines Load(int theme, bool whole = true) {
    mainwindow::F1& F1 = window.F1;
    EXPECT_EQ(mainwindow::LoadThemeImages(theme, settings, services, F1), whole);
    Lines names{F1.Image.Get().Name, F1.picW.Image.Get().Name};
    for (int i = 0; i < 6; ++i) names.push_back(F1.picSP(i).Image.Get().Name);
    names.push_back(F1.picInfoLine.Image.Get().Name);
    return names;
  }
  static Lines Theme(const std::string& prefix) {
    Lines names{"_back", "_picw", "_s1", "_s2", "_s3_high", "_s4", "_s5", "_s6", "_last6"};
    for (std::string& name : names) name = "img/" + prefix + name + ".jpg";
    return names;
  }
};

TEST_F(PanelsTest, ShowAllThatAPlayerHoldsAndMarkTheLeader) {
  ada = {.Name = "Ada", .Settlements = 1, .Cities = 3, .LargestArmy = true, .PoliticsMetropolis = true};
  Draw();
  EXPECT_THAT(Panel(1), ElementsAre("1,1 imlIcons/03.svg", "17,1 imlIcons/02.svg", "33,1 imlIcons/02.svg",
                                    "49,1 imlIcons/01.svg", "65,1 imlIcons/08.svg", "1,16 'Spieler 1' Arial 8 FFFF00",
                                    "1,28 'Ada' Arial 18+ FFFF00", "115,11 ' 11 ' Arial 32+ FFFF00"));
  EXPECT_THAT(Panel(6), ElementsAre("1,1 imlIcons/01.svg", "17,1 imlIcons/01.svg", "1,16 'Spieler 6' Arial 8 CC9900",
                                    "1,28 '' Arial 18+ CC9900", "135,11 ' 2 ' Arial 32+ CC9900"));
}

TEST_F(PanelsTest, PointsKeepToTwoDigitsAndSymbolsToThePanel) {
  const std::tuple<std::int16_t, int, const char*, std::size_t> cases[] = {
      {7, 9, "135,11 ' 9 ' Arial 32+ FFFF00", 12},
      {8, 10, "115,11 ' 10 ' Arial 32+ FFFF00", 13},
      {120, 99, "115,11 ' 99 ' Arial 32+ FFFF00", 15},
      {-9, 0, "135,11 ' 0 ' Arial 32+ CC9900", 5}};
  for (const auto& [bonusPoints, points, text, steps] : cases) {
    ada.BonusPoints = bonusPoints;
    Draw();
    EXPECT_EQ(game.PlayerPoints[1], points);
    EXPECT_EQ(Panel(1).back(), text);
    EXPECT_EQ(Panel(1).size(), steps);
  }
}

TEST_F(PanelsTest, LeadersHaveAGroundOfTheirOwnOnHiddenSeatsTooAndAMissingOneLeavesTheOld) {
  services.MissingPictures = {"img/basis_s1.jpg"};
  game.Players[2].BonusPoints = game.Players[6].BonusPoints = 3;
  for (const auto& [theme, prefix] : {std::pair<int, std::string>(3, "img/flo_s"), {1, "img/basis_s"}}) {
    settings.HG = static_cast<std::int16_t>(theme);
    Draw();
    EXPECT_EQ(Ground(1), "img/flo_s1.jpg");
    EXPECT_EQ(Ground(2) + Ground(3) + Ground(6), prefix + "2_high.jpg" + prefix + "3.jpg" + prefix + "6_high.jpg");
  }
}

TEST_F(PanelsTest, OnlyThreeThemesChangeAnythingAndAMissingPictureStopsThere) {
  const std::tuple<int, int, const char*> cases[] = {{2, 2, "bw"},  {0, 2, "bw"},   {4, 2, "bw"},
                                                     {3, 3, "flo"}, {-1, 3, "flo"}, {1, 1, "basis"}};
  for (const auto& [theme, chosen, prefix] : cases) {
    EXPECT_EQ(Load(theme), Theme(prefix)) << theme;
    EXPECT_EQ(settings.HG, chosen) << theme;
  }
  Lines expected = Theme("basis");
  const Lines wanted = Theme("bw");
  for (std::size_t missing = 0; missing < 9; ++missing) {
    services.MissingPictures = {wanted[missing]};
    EXPECT_EQ(Load(2, false), expected) << wanted[missing];
    expected[missing] = wanted[missing];
  }
  EXPECT_EQ(settings.HG, 2);
}

TEST_F(PanelsTest, RedrawOffersTheActionsAndTellsTheWinUnlessSwitchedOff) {
  const std::tuple<std::int16_t, bool, const char*> rows[] = {
      {2, true, "1111100000"}, {3, false, "1111011111"}, {7, true, "1111011111"}};
  game.Players[2].BonusPoints = 8;
  for (const auto& [gameType, told, expected] : rows) {
    game.GameType = gameType;
    game.GameWon = false;
    settings.ShowWinner = told;
    Draw();
    std::string offered;
    for (int action = 1; action <= 10; ++action) offered += window.F4.cmdSP(action).Enabled ? '1' : '0';
    EXPECT_EQ(offered, expected);
    EXPECT_TRUE(window.F9.Visible == told && window.F1.Enabled == !told && game.GameWon == told);
    if (told) Click(window.F9.cmdOK);
  }
}

}  // namespace
}  // namespace tests
