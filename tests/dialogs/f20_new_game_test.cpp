// Setting up a new game: what the dialog shows, what cancelling leaves, and how the main window follows a start.
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using testing::ElementsAre;

struct NewGameTest : MainWindowTest {
  dialogs::F20& F20 = window.F20;

  void Open() {
    Press('N', {.Control = true});
    ASSERT_TRUE(F20.Visible && !window.F1.Enabled);
  }
  static void Clicks(int times, platform::Control& control) {
    for (int i = 0; i < times; ++i) Click(control);
  }
  /// Points to win, players, and the numbers of the four status pictures, "-" for none.
  std::string Shown() const {
    std::string text = F20.txtneuSPBed.Text.Get() + "/" + F20.txtNOP.Text.Get() + "/";
    for (int i = 0; i < 4; ++i) {
      const std::string& name = F20.picGameStatus(i).Image.Get().Name;
      text += name.empty() ? "-" : name.substr(name.find('/') + 2, 1);
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
      {1, &F20.cmdA(1), "11/4/1---"},  {1, &F20.chkFlo, "10/4/13--"},  {1, &F20.optB, "13/4/23--"},
      {5, &F20.cmdA(1), "18/4/23--"},  {1, &F20.chkSzen, "13/4/235-"}, {9, &F20.cmdA(0), "4/4/235-"},
      {1, &F20.chkFlo, "13/4/2-5-"},   {11, &F20.cmdA(0), "2/4/2-5-"}, {1, &F20.cmdA(0), "2/4/2-5-"},
      {97, &F20.cmdA(1), "99/4/2-5-"}, {1, &F20.cmdA(1), "99/4/2-5-"}, {1, &F20.cmdB(1), "99/5/2-54"},
      {2, &F20.cmdB(1), "99/6/2-54"},  {2, &F20.cmdB(0), "99/4/2-5-"}, {3, &F20.cmdB(0), "99/2/2-5-"},
      {1, &F20.chkSzen, "13/2/2---"},  {1, &F20.optA, "10/2/1---"},    {4, &F20.cmdB(1), "10/6/1--4"}};
  for (const auto& [times, control, shown] : clicks) {
    Clicks(times, *control);
    EXPECT_EQ(Shown(), shown) << control->Name;
    std::string names;
    for (int i = 0; i < 6; ++i) names += F20.txtSpielername(i).Visible && F20.lblSpieler(i).Visible ? "*" : "";
    EXPECT_EQ(std::to_string(names.size()), F20.txtNOP.Text.Get());
  }
  EXPECT_EQ(F20.txtSpielername(5).Text.Get(), "Zoë") << "a hidden field keeps its name";
}

TEST_F(NewGameTest, EveryCancelLeavesTheRunningGame) {
  Type("43\r");
  const auto players = game.Players;
  const std::function<void()> waysOut[] = {[&] { Click(F20.cmdCancel); }, [&] { Press(platform::kKeyEscape); },
                                           [&] { F20.PressCloseBox(); }};
  for (const auto& leave : waysOut) {
    Open();
    Click(F20.optB);
    Click(F20.cmdB(1));
    F20.Type(F20.txtSpielername(0), "Eve");
    leave();
    EXPECT_TRUE(!F20.Visible && window.F1.Enabled);
    EXPECT_THAT(Rules(), ElementsAre(2, 4, 10, 0, 0, 1));
    EXPECT_TRUE(game.Players == players && game.GameTitle.empty());
  }
  Open();
  EXPECT_EQ(Shown() + F20.txtSpielername(0).Text.Get(), "13/4/2---") << "only the kind of game chosen last stays";
}

TEST_F(NewGameTest, StartTakesEveryFieldAndTheMainWindowFollows) {
  Type("43\r");
  game.Players[4].Name = "kept";
  Open();
  Click(F20.optB);
  F20.Type(F20.txtSpielername(0), "Ada");
  F20.Type(F20.txtSpielername(3), "edited, then hidden");
  F20.Type(F20.txtSpieltitel, "title");
  F20.Type(F20.txtSpielinfo, "info");
  Click(F20.cmdB(0));
  Click(F20.chkSzen);
  Click(F20.cmdA(0));
  Click(F20.cmdStart);
  auto& F1 = window.F1;
  EXPECT_TRUE(!F20.Visible && F1.Enabled);
  EXPECT_EQ(game.Players[1].Name + game.Players[4].Name + game.GameTitle + game.GameInfo, "Adakepttitleinfo");
  EXPECT_THAT(Rules(), ElementsAre(3, 3, 12, 0, 1, 0));
  EXPECT_EQ(Face(F1.picWurfel(0)) + Face(F1.picWurfel(1)) + Face(F1.picWurfel(2)), "181719");
  EXPECT_EQ((*F1.MenuBar)["mnuExtraClock"].Caption.Get(), "&Uhr anhalten");
  for (int i = 0; i < 6; ++i) EXPECT_EQ(F1.picSP(i).Visible, i < 3) << i;
  EXPECT_THAT(Drawn(F1.picSP(0).Drawing), testing::Contains("135,11 ' 3 ' Arial 32+ FFFF00"));
  EXPECT_THAT(Drawn(F1.picW.Drawing).back(), testing::HasSubstr("'0x'"));
  EXPECT_TRUE(window.F4.cmdSP(10).Enabled);
  F1.timSpielzeit.Elapsed();
  EXPECT_EQ(game.Clock[0], 1);
}

TEST_F(NewGameTest, ThemeAndEventDieFollowTheGame) {
  struct Case {
    bool Auto, Expansion, Flottillen;
    const char* Prefix;
  };
  const Case cases[] = {{true, true, false, "img/bw_"},     {true, false, true, "img/flo_"},
                        {true, false, false, "img/basis_"}, {true, true, true, "img/flo_"},
                        {false, true, false, "img/flo_"},   {false, false, false, "img/flo_"}};
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.Auto << c.Expansion << c.Flottillen);
    window.State.settings.AutoHG = c.Auto ? core::kOn : core::kOff;
    Open();
    Click(c.Expansion ? F20.optB : F20.optA);
    if (F20.chkFlo.Value != int{c.Flottillen}) Click(F20.chkFlo);
    Click(F20.cmdStart);
    EXPECT_THAT(window.F1.Image.Get().Name, testing::StartsWith(c.Prefix));
    EXPECT_THAT(window.F1.picSP(0).Image.Get().Name, testing::StartsWith(c.Prefix));
    EXPECT_EQ(window.F1.picWurfel(2).Visible, c.Expansion);
  }
}

TEST_F(NewGameTest, PointsThatAllHaveAtTheStartOpenTheWinnersWindowAtOnce) {
  Open();
  Clicks(8, F20.cmdA(0));
  Click(F20.cmdStart);
  EXPECT_TRUE(!F20.Visible && window.F9.Visible && !window.F1.Enabled);
}

}  // namespace
}  // namespace tests
