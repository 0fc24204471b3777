#include "main_window.h"

#include <filesystem>

#include "../core/clock.h"
#include "../core/game_state.h"
#include "../core/new_game.h"
#include "../core/player_actions.h"
#include "../core/points.h"
#include "../core/rolls.h"
#include "../core/texts.h"
#include "../platform/mnemonic.h"
#include "../windows/image_lists.h"
#include "clocks.h"
#include "dice_chart.h"
#include "player_panels.h"
#include "themes.h"

namespace mainwindow {

namespace text = core::text;
using platform::MouseButton;

MainWindow::MainWindow(platform::Services& services)
    : F1(Desktop, MakeMenu(), ToolPictures()),
      places_(services.ProgramFolder(), services.ConfigurationFolder(), services.DocumentsFolder(),
              services.StateFolder()),
      context_{State, *this, services, Desktop, lock_, places_},
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
  F1.timCopy.Tick = [this] { keeper_.Look(); };
  F20.OnStart = [this] { ShowNewGame(); };
  F3.ShowReadme = [this] { F2.ShowFile("readme.txt"); };
  F8.LoadThemeImages = [this](int theme) { LoadThemeImages(theme, State.settings, services_, F1); };
  F8.LoadLanguage = [this] { return LoadLanguage(); };
  F8.HotkeysChanged = [this] { F7.ShowHotkeys(); };
  // Closing the window ends the process at once: nothing is asked and nothing is stored.
  F1.Close = [this] { services_.Quit(0); };
}

/// Each step relies on those before it.
Started MainWindow::Load() {
  SetWorkingFolder();
  F1.MoveTo(0, 0);
  core::SetDefaults(State);
  F8.ShowStartValues();
  LoadSettings();
  F7.ShowHotkeys();
  F8.ShowHotkeys();
  core::BeginWithoutGame(State);
  ShowEventDie();
  if (!LoadLanguage()) return Started::NoLanguage;
  F4.SetPictures();
  F7.SetPictures();
  CentreDialogs();
  core::StopClocks(State);
  core::CalcPoints(State, *this);
  ShowPlayerPanels();
  DrawDiceStats();
  keeper_.Start(context_.places.Copies());
  F1.Visible = true;
  return Started::Yes;
}

void MainWindow::SetWorkingFolder() {
  std::error_code ignored;  // where it cannot be entered, the program's files cannot be read either
  std::filesystem::current_path(context_.places.ProgramFiles(), ignored);
}

void MainWindow::CentreDialogs() {
  for (windows::Dialog* dialog : Dialogs()) {
    dialog->MoveTo((F1.Width() - dialog->Width()) / 2, (F1.Height() - dialog->Height()) / 2);
  }
}

std::vector<windows::Dialog*> MainWindow::Dialogs() { return {&F3, &F4, &F5, &F6, &F7, &F8, &F9, &F10, &F11, &F20}; }

void MainWindow::SetCaptions() {
  for (const Command& command : Commands()) {
    if (command.Text != 0) (*F1.MenuBar)[command.Menu.Name].Caption = State.Text(command.Text);
  }
  for (int index = 0; const Command* command : ToolButtons()) {
    ++index;
    if (command) F1.tbrMenu.SetToolTip(index, platform::WithoutMnemonic(State.Text(command->Text)));
  }
  ShowWhetherClocksRun(State, services_, F1);
  for (int i = F1.picSP.First(); i <= F1.picSP.Last(); ++i)
    F1.picSP(i).ToolTipText = State.Text(text::Seat1ToolTip + i);
  for (int i = F1.picWurfel.First(); i <= F1.picWurfel.Last(); ++i) {
    F1.picWurfel(i).ToolTipText = State.Text(text::DiceToolTip);
  }
  NameDice(namedFaces_);
  F1.picInfoLine.ToolTipText = State.Text(text::LastSixToolTip);
  for (windows::Dialog* dialog : Dialogs()) dialog->SetCaptions();
}

void MainWindow::DrawDiceStats() {
  const std::string separator = services_.DecimalSeparator();
  DrawDiceChart(State, separator, F1.picW.Drawing);
  F1.picW.SpokenName = SpokenChart(State);
  keeper_.Look();
  F1.picInfoLine.Visible = State.settings.ShowLast6;
  if (!State.settings.ShowLast6) return;
  DrawLastSix(State, F1.picInfoLine.Drawing);
  F1.picInfoLine.SpokenName = F1.picInfoLine.Drawing.Spoken();
}

/// Tests for a win each time: as long as a leader has the points, every redraw opens the winner's window.
void MainWindow::DrawPlayerPanels() {
  core::ClampPoints(State.figures);
  core::FindLeaders(State.figures);
  PaintPanels(State, services_, F1);
  keeper_.Look();
  F4.OfferActions();
  if (!core::WinningSeat(State)) return;
  State.asked.GameWon = true;
  F9.ShowStanding();
}

void MainWindow::ShowPlayerPanels() {
  for (int seat = 1; seat <= core::kSeats; ++seat) F1.picSP(seat - 1).Visible = State.game.Players[seat].Active;
}

void MainWindow::NameDice(std::array<int, 3> faces) {
  namedFaces_ = faces;
  for (int row = 0; row < 3; ++row) {
    F1.picWurfel(row).SpokenName = windows::SpokenDie(State, row, faces[static_cast<std::size_t>(row)]);
  }
}

void MainWindow::ShowRolledDice() {
  const core::Entry& entry = State.entry;
  NameDice({entry.Die1, entry.Die2, entry.EventDie});
  F1.picWurfel(0).Image = windows::BlackDie(entry.Die1);
  F1.picWurfel(1).Image = windows::RedDie(entry.Die2);
  if (State.game.GameType == core::kFirstExpansion) F1.picWurfel(2).Image = windows::EventDie(entry.EventDie);
}

/// Dice, theme, clocks, panels and chart are those of the game that the dialog has started.
void MainWindow::ShowNewGame() {
  keeper_.BeginGame();
  F1.ShowBlankDice();
  NameDice({});
  ShowEventDie();
  if (State.settings.AutoHG.IsOn()) F8.ShowTheme(core::ThemeOf(State.game));
  ShowWhetherClocksRun(State, services_, F1);
  ShowPlayerPanels();
  DrawDiceStats();
  core::CalcPoints(State, *this);
}

/// In a kind of game that only a file can bring, the die stays as it is.
void MainWindow::ShowEventDie() {
  if (State.game.GameType == core::kBaseGame) F1.picWurfel(2).Visible = false;
  if (State.game.GameType == core::kFirstExpansion) F1.picWurfel(2).Visible = true;
}

/// Nearly all that changes a game is drawn at once; only what is typed into a dialog is not, and has to be looked for.
void MainWindow::F1_timSpielzeit_Timer() {
  keeper_.Look();
  F1.timCopy.Enabled = lock_.IsTaken();
  core::Tick(State.game);
  DrawClockStrip(State, F1);
}

void MainWindow::WireInput() {
  for (const Command& command : Commands()) {
    if (command.Run) (*F1.MenuBar)[command.Menu.Name].Click = [this, run = command.Run] { (this->*run)(); };
  }
  F1.tbrMenu.ButtonClick = [this](int index) { F1_tbrMenu_ButtonClick(index); };
  F1.KeyUp = [this](platform::KeyCode code, platform::Modifiers with) { F1_Form_KeyUp(code, with); };
  for (int i = F1.picSP.First(); i <= F1.picSP.Last(); ++i) {
    F1.picSP(i).MouseUp = [this, i](MouseButton button) { F1_picSP_MouseUp(i, button); };
  }
  for (int i = F1.picWurfel.First(); i <= F1.picWurfel.Last(); ++i) {
    F1.picWurfel(i).MouseUp = [this](MouseButton button) { F1_picWurfel_MouseUp(button); };
  }
}

void MainWindow::F1_tbrMenu_ButtonClick(int index) {
  const std::vector<const Command*> buttons = ToolButtons();
  if (index < 1 || index > static_cast<int>(buttons.size())) return;
  if (const Command* command = buttons[static_cast<std::size_t>(index - 1)]) (this->*command->Run)();
}

/// A function key opens the dialog of its seat, with a modifier that of its data. The plain key of a seat where nobody
/// plays does nothing, but for the first two.
void MainWindow::F1_Form_KeyUp(platform::KeyCode code, platform::Modifiers with) {
  const int seat = code - platform::kKeyF1 + 1;
  const bool isSeat = core::IsSeat(seat);
  if (with.Any()) {
    if (isSeat) PrepareDataDialog(seat);
    return;
  }
  if (isSeat) {
    State.asked.CurrentPlayer = static_cast<std::int16_t>(seat);
    if (seat > core::kFewestPlayers && !State.game.Players[seat].Active) return;
    F4.OpenActionDialog(seat);
  }
  if (const int die = core::DieOfKey(code)) F7.OpenDiceDialogByKey(die);
  core::ClampPoints(State.figures);
}

void MainWindow::PrepareDataDialog(int seat) {
  State.asked.DataPlayer = static_cast<std::int16_t>(seat);
  F5.PrepareDataDialog();
}

void MainWindow::F1_picSP_MouseUp(int index, MouseButton button) {
  const int seat = index + 1;
  if (button == MouseButton::Right) return PrepareDataDialog(seat);
  F4.OpenActionDialog(seat);
}

void MainWindow::F1_picWurfel_MouseUp(MouseButton button) {
  if (button == MouseButton::Left) F7.PrepareDiceDialog();
  if (button == MouseButton::Right) AutoRoll(core::EventDieOf::Mouse);
}

void MainWindow::AutoRoll(core::EventDieOf command) {
  const auto random = [this] { return services_.Random(); };
  core::AutoRoll(State, *this, random, command);
}

void MainWindow::F1_mnuExtraZS_Click() {
  State.asked.GameWon = false;
  F9.ShowStanding();
}

void MainWindow::F1_mnuSpecialLHS_Click() {
  core::TakeLongestRoad(State.game);
  services_.MessageBox(State.Text(text::LongestRoadIsFree));
  core::CalcPoints(State, *this);
}

void MainWindow::F1_mnuExtraDelLastW_Click() {
  const auto answer = services_.MessageBox(State.Text(text::ReallyUndo), {}, platform::Buttons::YesNo);
  if (answer != platform::Answer::No) core::UndoLastRoll(State, *this);
}

void MainWindow::F1_mnuExtraClock_Click() {
  State.game.ClockRunning = !State.game.ClockRunning;
  ShowWhetherClocksRun(State, services_, F1);
}

}  // namespace mainwindow
