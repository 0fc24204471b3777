// The settings dialog: what takes effect at once, what at OK, and what it refuses.
#include "../main_window_fixture.h"

namespace tests {
namespace {

class SettingsTest : public MainWindowTest {
 protected:
  void SetUp() override {
    MainWindowTest::SetUp();
    window.F8.OpenSettings();
  }
  dialogs::F8& f8 = window.F8;
  core::Settings& settings = window.State.settings;
};

TEST_F(SettingsTest, BoxesTakeEffectAtOnceOrAtOk) {
  for (auto* box : {&f8.cbxLastSix, &f8.cbxSieger, &f8.cbxBarbarians, &f8.cbxShowGameTime, &f8.cbxRedGreen}) {
    Click(*box);
  }
  EXPECT_FALSE(settings.ShowGameTime);
  EXPECT_TRUE(settings.Contrast.IsOff());
  EXPECT_FALSE(f8.txtSieger.Enabled);
  EXPECT_TRUE(settings.ShowLast6 && settings.ShowWinner && settings.ShowBarbarians);
  Key(f8, platform::kKeyEnter);
  EXPECT_FALSE(settings.ShowLast6 || settings.ShowWinner || settings.ShowBarbarians);
  EXPECT_FALSE(window.F1.picInfoLine.Visible);
  EXPECT_TRUE(window.F1.AcceptsInput());
}

TEST_F(SettingsTest, HotkeysAreOneLetterEachAndWaitForOk) {
  const struct {
    const char *typed, *shown;
    bool valid;
  } rows[] = {{"x", "X", true}, {"Xy", "X", true}, {"1", "1", false},
              {"", "", false},  {"ä", "ä", false}, {"H", "H", true}};
  for (const auto& row : rows) {
    f8.Type(f8.txtEWHotkey(0), row.typed);
    EXPECT_EQ(f8.txtEWHotkey(0).Text.Get(), row.shown);
    EXPECT_EQ(f8.cmdOK.Enabled, row.valid) << row.typed;
  }
  EXPECT_EQ(settings.EventHotkey[1], 'P');
  Key(f8, platform::kKeyEnter);
  EXPECT_EQ(settings.EventHotkey[1], 'H');
  EXPECT_EQ(window.F7.lblHotkeyShow(0).Caption.Get(), "H");
}

TEST_F(SettingsTest, WinPointsFollowEachKey) {
  f8.SetFocus(f8.txtSieger);
  const struct {
    std::int16_t gameType;
    const char *typed, *shown;
    int points;
  } rows[] = {{2, "1", "1", 1},        {2, "12", "12", 12}, {2, "", "10", 10},        {3, "x", "13", 13},
              {2, "-2,5", "-2,5", -2}, {2, "7", "7", 7},    {2, "40000", "40000", 7}, {2, "1e999", "10", 10}};
  for (const auto& row : rows) {
    game.GameType = row.gameType;
    f8.Type(f8.txtSieger, row.typed);
    Key(f8, platform::kKeyRight);
    EXPECT_EQ(f8.txtSieger.Text.Get(), row.shown);
    EXPECT_EQ(game.WinPoints, row.points) << row.typed;
  }
}

TEST_F(SettingsTest, TheThemeFollowsTheGameOrTheList) {
  game.GameType = core::kFirstExpansion;
  Click(f8.chkHGAuto);
  EXPECT_EQ(settings.HG, 1);
  f8.Type(f8.cmbHG, window.State.Text(68));
  EXPECT_EQ(settings.HG, 3);
  f8.Type(f8.cmbHG, "flo");
  EXPECT_EQ(settings.HG, 3);
  EXPECT_EQ(window.F1.Image.Get().Name, "img/flo_back.jpg");
  Click(f8.chkHGAuto);
  EXPECT_EQ(settings.HG, 2);
  EXPECT_EQ(f8.cmbHG.Text.Get(), window.State.Text(67));
  EXPECT_FALSE(f8.cmbHG.Enabled);
}

TEST_F(SettingsTest, OnlyALanguageOfTheListCloses) {
  f8.Type(f8.comSelectLang, "english");
  Key(f8, platform::kKeyEnter);
  EXPECT_EQ(services.Boxes.back().Text, "Bitte Sprache auswählen\nPlease select language");
  EXPECT_TRUE(f8.Visible);
  f8.PressCloseBox();
  EXPECT_TRUE(f8.Visible);
  f8.Type(f8.comSelectLang, "English");
  Key(f8, platform::kKeyEnter);
  EXPECT_FALSE(f8.Visible);
  EXPECT_EQ((*window.F1.MenuBar)["mnuFile"].Caption.Get(), "&Game");
}

TEST_F(SettingsTest, ALanguageFileThatHasGoneLeavesTheTexts) {
  services.Folder = "/nowhere";
  Key(f8, platform::kKeyEnter);
  EXPECT_EQ(services.Boxes.size(), 1U);
  EXPECT_EQ((*window.F1.MenuBar)["mnuFile"].Caption.Get(), "&Spiel");
  EXPECT_TRUE(window.F1.AcceptsInput());
}

}  // namespace
}  // namespace tests
