// What hangs on the height of the window's frame, and a text too long to be shown.
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using StartTest = MainWindowTest;

TEST_F(StartTest, DialogsStandOverTheMiddleOfTheWindowWithItsFrame) {
  mainwindow::MainWindow later(services);
  later.F1.FrameHeight = 301;
  later.Load();
  // (9495 - 5160) / 2 and (8355 + 301 + menu bar - 2910) / 2, rests dropped
  const platform::Place place = later.F7.Position;
  EXPECT_EQ(std::pair(place.Left, place.Top), std::pair(2167, (5746 + later.F1.MenuBarHeight) / 2));
}

TEST_F(StartTest, ATallFrameLeavesTheClocksInTheWindow) {
  for (const auto& [frame, y] : {std::pair(600, "7955"), {2000, "8105"}}) {
    window.F1.FrameHeight = frame;
    window.F1.timSpielzeit.Elapsed();
    EXPECT_THAT(Drawn(window.F1.Drawing).back(), testing::HasSubstr(std::string(",") + y + " 'PAUSE'"));
  }
}

TEST_F(StartTest, OfALongTextTheBeginningIsShownWithAMark) {
  const std::string line(40000, 'x');
  Put(Folder / "tastatur.txt", "tw\xF6\n" + line + "\n" + line);
  Choose("mnuHelpKeys");
  EXPECT_EQ(window.F2.txtInfo.Text.Get(), "\r\ntwö\r\n" + line + "\r\n" + window.State.Text(177));
}

}  // namespace
}  // namespace tests
