// The panels of the seats, compared as drawings; what a redraw changes besides: points, buttons of the actions, the
// win.
#include "../../core/points.h"
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using testing::ElementsAre;

struct PanelsTest : MainWindowTest {
  core::TPlayer& ada = game.Players[1];

  void SetUp() override {
    MainWindowTest::SetUp();
    window.State.settings.ShowWinner = false;
  }
  void Draw() { core::CalcPoints(game, window); }
  std::vector<std::string> Panel(int seat) { return Drawn(window.F1.picSP(seat - 1).Drawing); }
  std::string Ground(int seat) { return window.F1.picSP(seat - 1).Image.Get().Name; }
};

TEST_F(PanelsTest, ShowAllThatAPlayerHoldsAndMarkTheLeader) {
  ada = {.Name = "Ada",
         .Settlements = 1,
         .Cities = 3,
         .LongestRoad = true,
         .LargestArmy = true,
         .PoliticsMetropolis = true,
         .ScienceMetropolis = true,
         .BonusPoints = 2,
         .Merchant = true};
  Draw();
  EXPECT_THAT(Panel(1),
              ElementsAre("1,1 imlIcons/03.svg", "17,1 imlIcons/05.svg", "33,1 imlIcons/02.svg", "49,1 imlIcons/01.svg",
                          "65,1 imlIcons/07.svg", "81,1 imlIcons/08.svg", "97,1 imlIcons/06.svg",
                          "113,1 imlIcons/09.svg", "129,1 imlIcons/09.svg", "1,16 'Spieler 1' Arial 8 FFFF00",
                          "1,28 'Ada' Arial 18+ FFFF00", "115,11 ' 18 ' Arial 32+ FFFF00"));
  EXPECT_THAT(Panel(6), ElementsAre("1,1 imlIcons/01.svg", "17,1 imlIcons/01.svg", "1,16 'Spieler 6' Arial 8 CC9900",
                                    "1,28 '' Arial 18+ CC9900", "135,11 ' 2 ' Arial 32+ CC9900"));
}

TEST_F(PanelsTest, PointsKeepToTwoDigitsAndSymbolsToThePanel) {
  struct Case {
    std::int16_t Settlements, BonusPoints, Points;
    const char* Text;
    std::size_t Steps;
  };
  const Case cases[] = {{2, 7, 9, "135,11 ' 9 ' Arial 32+ FFFF00", 12},
                        {2, 8, 10, "115,11 ' 10 ' Arial 32+ FFFF00", 13},
                        {0, 120, 99, "115,11 ' 99 ' Arial 32+ FFFF00", 15},
                        {32767, 0, 99, "115,11 ' 99 ' Arial 32+ FFFF00", 15},
                        {-9, 0, 0, "135,11 ' 0 ' Arial 32+ CC9900", 3}};
  for (const Case& c : cases) {
    ada.Settlements = c.Settlements;
    ada.BonusPoints = c.BonusPoints;
    Draw();
    EXPECT_EQ(game.PlayerPoints[1], c.Points);
    EXPECT_EQ(Panel(1).back(), c.Text);
    EXPECT_EQ(Panel(1).size(), c.Steps);
  }
}

TEST_F(PanelsTest, LeadersHaveAGroundOfTheirOwnOnHiddenSeatsTooAndAMissingOneLeavesTheOld) {
  services.MissingPictures = {"img/basis_s1.jpg"};
  game.Players[2].BonusPoints = game.Players[6].BonusPoints = 3;
  window.State.settings.HG = 3;
  for (const bool theme : {false, true}) {
    if (theme) window.State.settings.HG = 1;
    Draw();
    const std::string prefix = theme ? "img/basis_s" : "img/flo_s";
    EXPECT_EQ(Ground(1), "img/flo_s1.jpg");
    EXPECT_EQ(Ground(2) + Ground(3) + Ground(6), prefix + "2_high.jpg" + prefix + "3.jpg" + prefix + "6_high.jpg");
  }
}

TEST_F(PanelsTest, RedrawOffersTheActionsAndTellsTheWinUnlessSwitchedOff) {
  const std::tuple<std::int16_t, bool, const char*> rows[] = {
      {2, true, "1111100000"}, {3, false, "1111011111"}, {7, true, "1111011111"}, {2, true, "1111100000"}};
  game.Players[2].BonusPoints = 8;
  for (const auto& [gameType, told, expected] : rows) {
    game.GameType = gameType;
    game.GameWon = false;
    window.State.settings.ShowWinner = told;
    Draw();
    std::string offered;
    for (int action = 1; action <= 10; ++action) offered += window.F4.cmdSP(action).Enabled ? '1' : '0';
    EXPECT_EQ(offered, expected);
    EXPECT_THAT((std::vector<bool>{window.F9.Visible, !window.F1.Enabled, game.GameWon}), testing::Each(told));
    if (told) Click(window.F9.cmdOK);
  }
}

}  // namespace
}  // namespace tests
