// The settings dialog: what takes effect at once, what waits for OK, and what it refuses.
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

struct SettingsTest : MainWindowTest {
  dialogs::F8& F8 = window.F8;

  SettingsTest() { Choose("mnuExtraSettings"); }
  std::string Theme() const { return window.F1.Image.Get().Name; }
  /// What stands behind the totals of the main window's lower strip: the clocks or the pause.
  std::string Clocks() {
    window.F1.timSpielzeit.Elapsed();
    std::string texts;
    for (const std::string& step : Drawn(window.F1.Drawing)) {
      const std::string text = step.substr(step.find('\'') + 1);
      if (text.find(" x'") == std::string::npos && step.find("imlIcons") == std::string::npos)
        texts += text.substr(0, text.find('\'')) + " ";
    }
    return texts;
  }
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
  for (platform::CheckBox* box : {&F8.cbxBarbarians, &F8.cbxLastSix, &F8.cbxSieger}) Click(*box);
  EXPECT_TRUE(settings.EventHotkey[1] == 'P' && settings.ShowBarbarians);
  EXPECT_TRUE(settings.ShowLast6 && settings.ShowWinner);
  Key(F8, platform::kKeyEnter);
  EXPECT_TRUE(settings.EventHotkey[1] == 'H' && !settings.ShowBarbarians);
  EXPECT_TRUE(!settings.ShowLast6 && !settings.ShowWinner && !window.F1.picInfoLine.Visible);
  EXPECT_EQ(window.F7.lblHotkeyShow(0).Caption.Get(), "H");
}

TEST_F(SettingsTest, WinPointsFollowEachKeyWhileAWinnerIsShown) {
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
  for (const bool shown : {false, true}) {
    Click(F8.cbxSieger);
    EXPECT_EQ(F8.txtSieger.Enabled, shown);
  }
}

TEST_F(SettingsTest, TheThemeIsChosenByItsWholeNameOrLeftToTheKindOfGame) {
  F8.Type(F8.cmbHG, "T68");
  EXPECT_EQ(Theme(), "img/basis_back.jpg") << "the program chooses";
  Click(F8.chkHGAuto);
  EXPECT_TRUE(F8.cmbHG.Enabled && F8.lblHG.Enabled && settings.AutoHG == core::kOff);
  for (const auto& [typed, theme] : {std::pair("T6", "basis"), {"T68", "flo"}, {"T6", "flo"}, {"", "flo"}}) {
    F8.Type(F8.cmbHG, typed);
    EXPECT_EQ(Theme(), std::string("img/") + theme + "_back.jpg") << "\"" << typed << "\"";
  }
  F8.Pick(F8.cmbHG, 1);
  EXPECT_TRUE(Theme() == "img/bw_back.jpg" && settings.HG == 2);
  Click(F8.chkHGAuto);
  EXPECT_TRUE(!F8.cmbHG.Enabled && !F8.lblHG.Enabled && settings.AutoHG == core::kOn && settings.HG == 1);
  EXPECT_EQ(Theme() + F8.cmbHG.Text.Get(), "img/basis_back.jpgT66") << "that of the base game";
}

TEST_F(SettingsTest, ClocksAndContrastTakeEffectAtOnce) {
  game.ClockRunning = true;
  game.Clock = {3659, 58};
  const std::tuple<platform::CheckBox*, bool, const char*> clicks[] = {{nullptr, true, "T113 1:01:00 T114 00:59 "},
                                                                       {&F8.cbxShowGameTime, true, "T114 01:00 "},
                                                                       {&F8.cbxShowPlayerTime, true, ""},
                                                                       {nullptr, false, ""},
                                                                       {&F8.cbxShowPlayerTime, false, "PAUSE "},
                                                                       {&F8.cbxShowGameTime, false, "PAUSE "},
                                                                       {&F8.cbxShowPlayerTime, true, "T113 1:01:03 "}};
  for (const auto& [box, running, shown] : clicks) {
    game.ClockRunning = running;
    if (box) Click(*box);
    EXPECT_EQ(Clocks(), shown);
  }
  for (const core::CheckValue contrast : {core::kOff, core::kOn}) {
    Click(F8.cbxRedGreen);
    EXPECT_EQ(settings.Contrast, contrast);
  }
}

TEST_F(SettingsTest, OpeningLoadsTheThemeAnewAndStartsAtTheFirstBox) {
  window.F1.picSP(2).Image = platform::Picture{};
  F8.SetFocus(F8.comSelectLang);
  F8.OpenSettings();
  EXPECT_EQ(F8.Focus(), &F8.cbxLastSix);
  EXPECT_EQ(window.F1.picSP(2).Image.Get().Name, "img/basis_s3_high.jpg");
}

TEST_F(SettingsTest, OnlyALanguageOfTheListClosesAndALostFileLeavesTheTexts) {
  for (const char* language : {"numbers", "Deutsch", ""}) {
    F8.Type(F8.comSelectLang, language);
    Key(F8, platform::kKeyEnter);
    EXPECT_THAT(services.Boxes.back().Text, testing::HasSubstr("Please select language"));
  }
  F8.Pick(F8.comSelectLang, 0);
  F8.Type(F8.txtEWHotkey(0), "");
  F8.PressCloseBox();
  EXPECT_TRUE(Locking(F8)) << "OK could not be pressed either";
  F8.Type(F8.txtEWHotkey(0), "P");
  remove(Folder / "language.ini");
  Key(F8, platform::kKeyEnter);
  EXPECT_TRUE(services.Boxes.size() == 4 && Closed(F8));
  EXPECT_EQ(Caption("mnuFile") + window.State.language.Languages[0], "&T1Numbers");
}

}  // namespace
}  // namespace tests
