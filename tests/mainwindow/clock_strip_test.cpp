// The lower strip of the main window, compared as a drawing after a tick of the timer.
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

TEST_F(MainWindowTest, StripShowsTotalsAndTheClocksOrThePause) {
  const Lines pause{"4292,8000 'PAUSE' 8 FFFFFF"};
  const Lines whole{"200,7600 'Gesamtspieldauer:' 8 FFFFFF", "200,7800 '1:01:01' 16 FFFFFF"};
  const Lines turn{"7385,7600 'Spielzug:' 8 FFFFFF", "7385,7800 '01:00' 16 FFFFFF"};
  const Lines both{whole[0], whole[1], turn[0], turn[1]};
  // Kind of game, running, clock of the game, clock of the turn, what stands behind the totals.
  const std::tuple<std::int16_t, bool, bool, bool, Lines> cases[] = {
      {2, true, true, true, both}, {3, true, true, false, whole},  {2, true, false, true, turn},
      {2, true, false, false, {}}, {2, false, true, false, pause}, {3, false, false, true, pause},
      {2, false, false, false, {}}};
  // Outer size 9585 by 9000: half of the width is rounded down.
  window.F1.FrameWidth = 90;
  window.F1.MenuBarHeight = 300;
  window.F1.FrameHeight = 345;
  game.NumPlayers = 2;
  game.Players[1] = {.Name = "", .Settlements = 3, .Cities = 1, .TradeMetropolis = true};
  game.Players[2] = {.Name = "", .Settlements = 4, .Cities = 9, .PoliticsMetropolis = true};
  game.ClockRunning = true;
  window.F1.timSpielzeit.Elapsed();  // the size of the first text of all is the design's
  for (const auto& [gameType, running, gameTime, playerTime, behind] : cases) {
    game.GameType = gameType;
    game.Clock = {3660, 59};
    game.ClockRunning = running;
    settings.ShowGameTime = gameTime;
    settings.ShowPlayerTime = playerTime;
    Lines expected{"8585,6650 '7 x' 8 FFFFFF", "8985,6600 imlIcons/01.svg", "8585,6950 '10 x' 8 FFFFFF",
                   "8985,6900 imlIcons/02.svg"};
    if (gameType == 3) expected.insert(expected.end(), {"8585,7250 '2 x' 8 FFFFFF", "8985,7200 imlIcons/11.svg"});
    expected.insert(expected.end(), behind.begin(), behind.end());
    window.F1.timSpielzeit.Elapsed();
    EXPECT_EQ(Drawn(window.F1.Drawing), expected);
    EXPECT_EQ(game.Clock[0], running ? 3661 : 3660);
  }
}

}  // namespace
}  // namespace tests
