// The panels of the seats, compared as drawings; what a missing picture of a theme leaves.
#include "../../core/points.h"
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

}  // namespace
}  // namespace tests
