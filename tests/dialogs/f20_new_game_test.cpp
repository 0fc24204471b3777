// Setting up a new game: what the dialog shows, what cancelling leaves, and how the main window follows a start.
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using testing::ElementsAre;

struct NewGameTest : MainWindowTest {
  dialogs::F20& F20 = window.F20;
  mainwindow::F1& F1 = window.F1;

  void Open() {
    Press('N', {.Control = true});
    ASSERT_TRUE(Locking(F20));
  }
  static void Clicks(int times, platform::Control& control) {
    for (int i = 0; i < times; ++i) Click(control);
  }
  /// Points to win, players, and the numbers of the four status pictures, "-" for none.
  std::string Shown() const {
    std::string text = F20.txtneuSPBed.Text.Get() + "/" + F20.txtNOP.Text.Get() + "/";
    for (int i = 0; i < 4; ++i) {
      const platform::Picture picture = F20.picGameStatus(i).Image;
      text += picture.Empty() ? "-" : picture.Name.substr(picture.Name.find('/') + 2, 1);
    }
    return text;
  }
  std::vector<int> Rules() {
    return {game.GameType, game.NumPlayers, game.WinPoints, game.OptFlottillen.Value, game.OptScenario.Value, Rolls()};
  }
};

TEST_F(NewGameTest, ClicksStayInTheirBoundsAndTheKindOfGameBringsItsPointsBack) {
  game.Players[6].Name = "Zoë";
  Open();
  EXPECT_EQ(F20.txtSpieltitel.Text.Get() + "/" + F20.txtSpielinfo.Text.Get(), "22.11.2026/Orvan Begleiter");
  EXPECT_EQ(F20.Focus(), &F20.optA);
  const std::tuple<int, platform::Control*, const char*> clicks[] = {
      {1, &F20.cmdA(1), "11/4/1---"}, {1, &F20.chkFlo, "10/4/13--"},   {1, &F20.optB, "13/4/23--"},
      {5, &F20.cmdA(1), "18/4/23--"}, {1, &F20.chkSzen, "13/4/235-"},  {1, &F20.chkFlo, "13/4/2-5-"},
      {12, &F20.cmdA(0), "2/4/2-5-"}, {98, &F20.cmdA(1), "99/4/2-5-"}, {1, &F20.cmdB(1), "99/5/2-54"},
      {2, &F20.cmdB(1), "99/6/2-54"}, {2, &F20.cmdB(0), "99/4/2-5-"},  {3, &F20.cmdB(0), "99/2/2-5-"},
      {1, &F20.optA, "10/2/1-5-"}};
  for (const auto& [times, control, shown] : clicks) {
    Clicks(times, *control);
    EXPECT_EQ(Shown(), shown) << control->Name;
    const int players = std::stoi(F20.txtNOP.Text.Get());
    for (int i = 0; i < 6; ++i)
      EXPECT_TRUE(F20.txtSpielername(i).Visible == (i < players) && F20.lblSpieler(i).Visible == (i < players));
  }
  EXPECT_EQ(F20.txtSpielername(5).Text.Get(), "Zoë") << "a hidden field keeps its name";
}

TEST_F(NewGameTest, CancelLeavesTheRunningGame) {
  Type("43\r");
  const auto players = game.Players;
  Open();
  Click(F20.optB);
  Click(F20.cmdB(1));
  F20.Type(F20.txtSpielername(0), "Eve");
  Press(platform::kKeyEscape);
  EXPECT_TRUE(Closed(F20) && game.Players == players && game.GameTitle.empty());
  EXPECT_THAT(Rules(), ElementsAre(2, 4, 10, 0, 0, 1));
  Open();
  EXPECT_EQ(Shown() + F20.txtSpielername(0).Text.Get(), "13/4/2---") << "only the kind of game chosen last stays";
}

TEST_F(NewGameTest, StartTakesEveryFieldAndTheMainWindowFollows) {
  Type("43\r");
  game.Players[4].Name = "kept";
  Open();
  Click(F20.optB);
  const std::pair<platform::TextBox*, const char*> texts[] = {{&F20.txtSpielername(0), "Ada"},
                                                              {&F20.txtSpielername(3), "edited, then hidden"},
                                                              {&F20.txtSpieltitel, "title"},
                                                              {&F20.txtSpielinfo, "info"}};
  for (const auto& [field, text] : texts) F20.Type(*field, text);
  Click(F20.cmdB(0));
  Click(F20.chkSzen);
  Click(F20.cmdA(0));
  Click(F20.cmdStart);
  EXPECT_TRUE(Closed(F20));
  EXPECT_EQ(game.Players[1].Name + game.Players[4].Name + game.GameTitle + game.GameInfo, "Adakepttitleinfo");
  EXPECT_THAT(Rules(), ElementsAre(3, 3, 12, 0, 1, 0));
  EXPECT_EQ(Faces(F1.picWurfel), "18 17 19");
  EXPECT_EQ(F1.Image.Get().Name + F1.picSP(0).Image.Get().Name, "img/bw_back.jpgimg/bw_s1_high.jpg");
  EXPECT_EQ((*F1.MenuBar)["mnuExtraClock"].Caption.Get(), "&Uhr anhalten");
  EXPECT_TRUE(F1.picSP(2).Visible && !F1.picSP(3).Visible && F1.picWurfel(2).Visible && window.F4.cmdSP(10).Enabled);
  EXPECT_THAT(Drawn(F1.picSP(0).Drawing), testing::Contains("135,11 ' 3 ' Arial 32+ FFFF00"));
  EXPECT_THAT(Drawn(F1.picW.Drawing).back(), testing::HasSubstr("'0x'"));
  F1.timSpielzeit.Elapsed();
  EXPECT_EQ(game.Clock[0], 1);
  settings.AutoHG = core::kOff;
  Open();
  Click(F20.optA);
  Clicks(8, F20.cmdA(0));
  Click(F20.cmdStart);
  EXPECT_TRUE(!F20.Visible && Locking(window.F9)) << "all have the points at the start";
  EXPECT_FALSE(F1.picWurfel(2).Visible);
  EXPECT_EQ(F1.Image.Get().Name, "img/bw_back.jpg") << "the user chooses the theme";
}

}  // namespace
}  // namespace tests
