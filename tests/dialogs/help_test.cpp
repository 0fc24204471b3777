// The about window with its running list, and the viewer of the text files that come with the program.
#include "../main_window_fixture.h"

namespace tests {
namespace {

struct HelpTest : MainWindowTest {
  dialogs::F2& F2 = window.F2;
  dialogs::F3& F3 = window.F3;

  /// The number of texts in the list after so many ticks.
  std::size_t ListedAfter(int ticks) {
    for (int i = 0; i < ticks; ++i) F3.timClock.Elapsed();
    return F3.picFlash.Drawing.Steps().size();
  }
};

TEST_F(HelpTest, TheListGoesOnWhereTheWindowWasClosedAndBeginsAnewAfterItsEnd) {
  EXPECT_EQ(ListedAfter(2), 2U) << "it runs before the window was ever opened";
  Press(platform::FunctionKey(12));
  Key(F3, platform::kKeyEnter);
  EXPECT_EQ(ListedAfter(3), 2U) << "stopped while closed";
  Press(platform::FunctionKey(12));
  EXPECT_EQ(ListedAfter(6), 9U);
  EXPECT_EQ(ListedAfter(1), 0U);
  EXPECT_EQ(ListedAfter(8), 9U);
}

TEST_F(HelpTest, AboutShowsTheVersionAndEscDoesNotCloseIt) {
  for (const auto& [revision, text] : {std::pair(7, "V2.0.7"), {0, "V2.0"}}) {
    services.Version = {2, 0, revision};
    Press(platform::FunctionKey(12));
    EXPECT_EQ(F3.lblFreeware.Caption.Get(), text);
    Key(F3, platform::kKeyEscape);
    EXPECT_TRUE(Locking(F3));
    Click(F3.cmdOK);
    EXPECT_TRUE(Closed(F3));
  }
}

TEST_F(HelpTest, TheViewerShowsAFileBesideTheMainWindowAndEmptiesWhereThereIsNone) {
  const Act keys = [&] { Press(platform::FunctionKey(11)); };
  keys();
  EXPECT_FALSE(F2.Visible);
  for (const auto& [bytes, text] : {std::pair("\r\ntw\xF6", "\r\n\r\ntwö"), {"by hand\n2\n", "\r\nby hand\r\n2"}}) {
    Put(Folder / "tastatur.txt", bytes);
    keys();
    EXPECT_TRUE(F2.Visible && window.F1.Enabled);
    EXPECT_EQ(F2.txtInfo.Text.Get(), text);
  }
  const std::string line(40000, 'x');
  Put(Folder / "tastatur.txt", line + "\n" + line);
  keys();
  EXPECT_EQ(F2.txtInfo.Text.Get(), "\r\n" + line + "\r\n[…]");
  remove(Folder / "tastatur.txt");
  keys();
  EXPECT_TRUE(F2.Visible && F2.txtInfo.Text.Get().empty());
  Put(Folder / "readme.txt", "read me");
  Press(platform::FunctionKey(12));
  Click(F3.cmdShowReadme);
  EXPECT_EQ(F2.txtInfo.Text.Get(), "\r\nread me");
  F2.PressCloseBox();
  EXPECT_TRUE(!F2.Visible && F3.Visible);
}

}  // namespace
}  // namespace tests
