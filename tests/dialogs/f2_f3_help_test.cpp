// The about window with its running list, and the viewer of the text files that come with it.
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

struct HelpTest : MainWindowTest {
  dialogs::F2& F2 = window.F2;
  dialogs::F3& F3 = window.F3;

  HelpTest() { services.Folder = Folder; }
  void Ticks(int count) {
    for (int i = 0; i < count; ++i) F3.timClock.Elapsed();
  }
  std::size_t Listed() const { return F3.picFlash.Drawing.Steps().size(); }
};

TEST_F(HelpTest, TheListGoesOnWhereTheWindowWasClosed) {
  Ticks(2);  // it runs before the window was ever opened
  window.F1_mnuHelpInfo_Click();
  Ticks(3);
  Click(F3.cmdOK);
  Ticks(1);
  EXPECT_EQ(Listed(), 5U) << "stopped while closed";
  window.F1.ClickTool(window.F1.tbrMenu, 13);
  Ticks(3);
  const std::vector<std::string> whole = Drawn(F3.picFlash.Drawing);
  EXPECT_EQ(whole, (Lines{"0,0 'Orvan Begleiter Homepage:' 8.25 000000", "162,0 'orvan-begleiter.example' 8.25 000000",
                          "0,12 'Private Homepage:' 8.25 000000", "162,12 'orvan-begleiter.example' 8.25 000000",
                          "0,24 'e-mail:' 8.25 000000", "162,24 'hi@orvan-begleiter.example' 8.25 000000",
                          "0,36 'Danke / Thanks to:' 8.25 000000", "162,36 'all who play' 8.25 000000",
                          "162,48 '(beta-testing & support)' 8.25 000000"}));
  Ticks(1);
  EXPECT_EQ(Listed(), 0U);
  Ticks(8);
  EXPECT_EQ(Drawn(F3.picFlash.Drawing), whole);
}

TEST_F(HelpTest, AboutShowsTheVersionAndOnlyOkClosesIt) {
  const std::pair<platform::Version, const char*> versions[] = {
      {{3, 1, 302}, "V3.1.302"}, {{3, 1, 0}, "V3.1"}, {{2, 0, 7}, "V2.0.7"}};
  for (const auto& [version, text] : versions) {
    services.Version = version;
    Press(platform::FunctionKey(12));
    EXPECT_EQ(F3.lblFreeware.Caption.Get() + F3.Caption.Get(), std::string(text) + "Info");
    F3.PressCloseBox();
    Key(F3, platform::kKeyEscape);
    EXPECT_TRUE(Locking(F3));
    Key(F3, platform::kKeyEnter);
    EXPECT_TRUE(Closed(F3));
  }
}

TEST_F(HelpTest, TheViewerShowsAFileBesideTheMainWindowAndEmptiesWhereThereIsNone) {
  const Act keys = [&] { Press(platform::FunctionKey(11)); };
  keys();
  EXPECT_FALSE(F2.Visible);
  Put(Folder / "tastatur.txt", "");
  keys();
  EXPECT_TRUE(F2.Visible && F2.txtInfo.Text.Get().empty() && window.F1.Enabled);
  EXPECT_EQ(F2.Caption.Get(), "Orvan Begleiter Readme");
  const std::pair<const char*, const char*> files[] = {
      {"one\r\ntw\xF6", "\r\none\r\ntwö"}, {"\r\nlast\r\n", "\r\n\r\nlast"}, {"by hand\n2\n", "\r\nby hand\r\n2"}};
  for (const auto& [bytes, text] : files) {
    Put(Folder / "tastatur.txt", bytes);
    window.F1.ClickTool(window.F1.tbrMenu, 12);
    EXPECT_EQ(F2.txtInfo.Text.Get(), text);
    EXPECT_EQ(F2.Focus(), &F2.txtInfo);
    Click(F2.cmdOK);
  }
  keys();
  std::filesystem::remove(Folder / "tastatur.txt");
  keys();
  EXPECT_TRUE(F2.Visible && F2.txtInfo.Text.Get().empty() && services.Boxes.empty());
  F2.PressCloseBox();
  EXPECT_TRUE(Closed(F2));
}

}  // namespace
}  // namespace tests
