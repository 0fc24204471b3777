#include "main_window.h"

#include "../core/clock.h"
#include "../core/new_game.h"
#include "../core/points.h"
#include "../core/rolls.h"
#include "../windows/image_lists.h"
#include "clock_strip.h"
#include "dice_chart.h"
#include "last_six.h"
#include "player_panels.h"
#include "themes.h"

namespace mainwindow {

using windows::imlW;

MainWindow::MainWindow(platform::Services& services)
    : F1(Desktop, MakeMenu()),
      context_{State, *this, services, Desktop, lock_},
      F2(context_),
      F3(context_),
      F4(context_),
      F5(context_),
      F6(context_),
      F7(context_),
      F8(context_),
      F9(context_),
      F10(context_),
      F11(context_),
      F20(context_),
      services_(services) {
  WireInput();
  F1.timSpielzeit.Tick = [this] { F1_timSpielzeit_Timer(); };
  F20.OnStart = [this] { FollowNewGame(); };
  F3.ShowReadme = [this] { F2.ShowFile("readme.txt"); };
  F8.LoadThemeImages = [this](int theme) { LoadThemeImages(theme); };
  F8.LoadLanguage = [this] { return LoadLanguage() == Started::Yes; };
  F8.HotkeysChanged = [this] { F7.ShowHotkeys(); };
  // Closing the window ends the process at once: nothing is asked and nothing is stored.
  F1.Close = [this] { services_.Quit(0); };
}

void MainWindow::DrawDiceStats() {
  const std::string separator = services_.DecimalSeparator();
  DrawDiceChart(State, separator, F1.picW.Drawing);
  F1.picW.SpokenName = SpokenChart(State);
  F1.picInfoLine.Visible = State.settings.ShowLast6;
  if (!State.settings.ShowLast6) return;
  DrawLastSix(State, F1.picInfoLine.Drawing);
  F1.picInfoLine.SpokenName = F1.picInfoLine.Drawing.Spoken();
}

/// Looks at the win anew each time: as long as a leader has the points, every redraw opens the winner's window.
void MainWindow::DrawPlayerPanels() {
  core::ClampPoints(State.figures);
  core::FindLeaders(State.figures);
  PaintPanels(State, services_, F1);
  F4.OfferActions();
  if (!core::WinningSeat(State)) return;
  State.asked.GameWon = true;
  F9.ShowStanding();
}

void MainWindow::ShowPlayerPanels() {
  for (int seat = 1; seat <= core::kSeats; ++seat) {
    F1.picSP(seat - 1).Visible = State.game.Players[seat].Active;
  }
}

void MainWindow::ShowRolledDice() {
  F1.picWurfel(0).SpokenName = std::to_string(State.entry.Die1);
  F1.picWurfel(1).SpokenName = std::to_string(State.entry.Die2);
  F1.picWurfel(2).SpokenName = State.entry.EventDie == 0 ? std::string() : State.Text(20 + State.entry.EventDie);
  F1.picWurfel(0).Image = imlW.Image(State.entry.Die1 + windows::kBeforeBlackFaces);
  F1.picWurfel(1).Image = imlW.Image(State.entry.Die2);
  if (State.game.GameType == core::kFirstExpansion) {
    F1.picWurfel(2).Image = imlW.Image(State.entry.EventDie + windows::kBeforeEventFaces);
  }
}

/// The dialog has started a game: dice, theme, clocks, panels and chart are those of the new one.
void MainWindow::FollowNewGame() {
  F1.ShowBlankDice();
  ShowEventDie();
  if (State.settings.AutoHG.IsOn()) {
    F8.ShowTheme(core::ThemeOf(State.game));
    LoadThemeImages(core::ThemeOf(State.game));
  }
  FollowClock();
  ShowPlayerPanels();
  DrawDiceStats();
  core::CalcPoints(State, *this);
}

/// Of a kind of game that only a file can bring nothing is known: the die stays as it is.
void MainWindow::ShowEventDie() {
  if (State.game.GameType == core::kBaseGame) F1.picWurfel(2).Visible = false;
  if (State.game.GameType == core::kFirstExpansion) F1.picWurfel(2).Visible = true;
}

void MainWindow::F1_timSpielzeit_Timer() {
  core::Tick(State.game);
  DrawClockStrip(State, F1);
}

std::vector<windows::Dialog*> MainWindow::Dialogs() { return {&F3, &F4, &F5, &F6, &F7, &F8, &F9, &F10, &F11, &F20}; }

bool MainWindow::LoadThemeImages(int theme) {
  return mainwindow::LoadThemeImages(theme, State.settings, services_, F1);
}

}  // namespace mainwindow
