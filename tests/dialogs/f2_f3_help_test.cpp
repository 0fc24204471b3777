// The about window with its running list, and the viewer of the text files that come with it.
#include "../../mainwindow/main_window.h"
#include "../drawn.h"
#include "../scripted_services.h"
#include "../storage/temporary_folder.h"

namespace tests {
namespace {

struct HelpTest : TemporaryFolder {
  ScriptedServices services;
  mainwindow::MainWindow window{services};
  dialogs::F2& F2 = window.F2;
  dialogs::F3& F3 = window.F3;

  HelpTest() {
    EXPECT_EQ(window.Load(), mainwindow::Started::Yes);
    services.Folder = Folder;
  }
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
    Key(window.F1, platform::FunctionKey(12));
    EXPECT_EQ(F3.lblFreeware.Caption.Get() + F3.Caption.Get(), std::string(text) + "Info");
    F3.PressCloseBox();
    Key(F3, platform::kKeyEscape);
    EXPECT_TRUE(F3.Visible && !window.F1.Enabled);
    Key(F3, platform::kKeyEnter);
    EXPECT_TRUE(!F3.Visible && window.F1.Enabled);
  }
}

TEST_F(HelpTest, TheViewerShowsAFileBesideTheMainWindowAndEmptiesWhereThereIsNone) {
  const auto keys = [&] { Key(window.F1, platform::FunctionKey(11)); };
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
  EXPECT_TRUE(!F2.Visible && window.F1.Enabled);
}

TEST_F(HelpTest, AFolderIsNoReadme) {
  std::filesystem::create_directory(Folder / "readme.txt");
  window.F1_mnuHelpInfo_Click();
  Click(F3.cmdShowReadme);
  EXPECT_TRUE(!F2.Visible && F3.Visible);
}

}  // namespace
}  // namespace tests
