// The settings dialog: what waits for OK, and what it refuses.
#include "../main_window_fixture.h"

namespace tests {
namespace {

struct SettingsTest : MainWindowTest {
  dialogs::F8& F8 = window.F8;

  SettingsTest() { F8.OpenSettings(); }
  std::string FileMenu() { return (*window.F1.MenuBar)["mnuFile"].Caption.Get(); }
};

TEST_F(SettingsTest, HotkeysAreOneLetterEachAndWaitForOk) {
  const std::tuple<const char*, const char*, bool> rows[] = {{"Xy", "X", true}, {"1", "1", false}, {"", "", false},
                                                             {"ä", "Ä", false}, {"÷", "÷", false}, {"жb", "B", true},
                                                             {"h", "H", true}};
  for (const auto& [typed, shown, valid] : rows) {
    F8.Type(F8.txtEWHotkey(0), typed);
    EXPECT_EQ(F8.txtEWHotkey(0).Text.Get(), shown);
    EXPECT_EQ(F8.cmdOK.Enabled, valid) << typed;
  }
  Click(F8.cbxBarbarians);
  EXPECT_TRUE(settings.EventHotkey[1] == 'P' && settings.ShowBarbarians);
  Key(F8, platform::kKeyEnter);
  EXPECT_TRUE(settings.EventHotkey[1] == 'H' && !settings.ShowBarbarians);
  EXPECT_EQ(window.F7.lblHotkeyShow(0).Caption.Get(), "H");
}

TEST_F(SettingsTest, WinPointsFollowEachKey) {
  F8.SetFocus(F8.txtSieger);
  const std::tuple<std::int16_t, const char*, const char*, int> rows[] = {
      {2, "12", "12", 12}, {2, "", "10", 10},        {3, "x", "13", 13},     {7, "x", "x", 13},
      {2, "7", "7", 7},    {2, "40000", "40000", 7}, {2, "-2,5", "-2,5", -2}};
  for (const auto& [gameType, typed, shown, points] : rows) {
    game.GameType = gameType;
    F8.Type(F8.txtSieger, typed);
    Key(F8, platform::kKeyRight);
    EXPECT_EQ(F8.txtSieger.Text.Get(), shown);
    EXPECT_EQ(game.WinPoints, points) << typed;
  }
}

TEST_F(SettingsTest, OpeningLoadsTheThemeAnew) {
  window.F1.picSP(2).Image = platform::Picture{};
  F8.OpenSettings();
  EXPECT_EQ(window.F1.picSP(2).Image.Get().Name, "img/basis_s3_high.jpg");
}

TEST_F(SettingsTest, OnlyALanguageOfTheListClosesAndALostFileLeavesTheTexts) {
  F8.Type(F8.comSelectLang, "english");
  Key(F8, platform::kKeyEnter);
  EXPECT_EQ(services.Boxes.back().Text, "Bitte Sprache auswählen\nPlease select language");
  F8.PressCloseBox();
  EXPECT_TRUE(F8.Visible);
  F8.Type(F8.comSelectLang, "English");
  Key(F8, platform::kKeyEnter);
  EXPECT_EQ(FileMenu(), "&Game");
  F8.OpenSettings();
  services.Folder = "/nowhere";
  Key(F8, platform::kKeyEnter);
  EXPECT_TRUE(services.Boxes.size() == 2 && Closed(F8));
  EXPECT_EQ(FileMenu(), "&Game");
}

}  // namespace
}  // namespace tests
