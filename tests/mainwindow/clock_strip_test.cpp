// The lower strip of the main window, compared as a drawing after a tick of the timer.
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using Lines = std::vector<std::string>;

TEST_F(MainWindowTest, StripShowsTotalsAndTheClocksOrThePause) {
  struct Case {
    const char* What;
    std::int16_t GameType;
    bool Running, GameTime, PlayerTime;
    Lines Behind;  // the totals
  };
  const std::string pause = "4292,8000 'PAUSE' 8 FFFFFF";
  const Lines game1{"200,7600 'Gesamtspieldauer:' 8 FFFFFF", "200,7800 '1:01:01' 16 FFFFFF"};
  const Lines turn{"7385,7600 'Spielzug:' 8 FFFFFF", "7385,7800 '01:00' 16 FFFFFF"};
  const Lines both{game1[0], game1[1], turn[0], turn[1]};
  const Case cases[] = {{"running", 2, true, true, true, both},
                        {"running, in the expansion", 3, true, true, true, both},
                        {"game clock only", 2, true, true, false, game1},
                        {"clock of the turn only", 2, true, false, true, turn},
                        {"running unseen", 2, true, false, false, {}},
                        {"pause", 2, false, true, true, {pause}},
                        {"pause, in the expansion", 3, false, true, false, {pause}},
                        {"pause with the clock of the turn", 2, false, false, true, {pause}},
                        {"pause unseen", 2, false, false, false, {}}};
  // Outer size 9585 by 9000: half of the width is rounded down.
  window.F1.FrameWidth = 90;
  window.F1.MenuBarHeight = 300;
  window.F1.FrameHeight = 345;
  game.NumPlayers = 2;
  game.Players[1] = {.Name = "", .Settlements = 3, .Cities = 1, .TradeMetropolis = true};
  game.Players[2] = {.Name = "", .Settlements = 4, .Cities = 9, .PoliticsMetropolis = true};
  game.ClockRunning = true;
  window.F1_timSpielzeit_Timer();  // the size of the first text of all is the design's
  for (const Case& c : cases) {
    game.GameType = c.GameType;
    game.Clock = {3660, 59};
    game.ClockRunning = c.Running;
    window.State.settings.ShowGameTime = c.GameTime;
    window.State.settings.ShowPlayerTime = c.PlayerTime;
    Lines expected{"8585,6650 '7 x' 8 FFFFFF", "8985,6600 imlIcons/01.svg", "8585,6950 '10 x' 8 FFFFFF",
                   "8985,6900 imlIcons/02.svg"};
    if (c.GameType == 3) expected.insert(expected.end(), {"8585,7250 '2 x' 8 FFFFFF", "8985,7200 imlIcons/11.svg"});
    expected.insert(expected.end(), c.Behind.begin(), c.Behind.end());
    window.F1.timSpielzeit.Elapsed();
    EXPECT_EQ(Drawn(window.F1.Drawing), expected) << c.What;
    EXPECT_EQ(game.Clock[0], c.Running ? 3661 : 3660) << c.What;
  }
}

}  // namespace
}  // namespace tests
