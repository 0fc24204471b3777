#include "f20_new_game.h"

#include <algorithm>

#include "../core/new_game.h"
#include "../core/numbers.h"
#include "../core/texts.h"
#include "../platform/mnemonic.h"
#include "../windows/form_metrics.h"
#include "../windows/storable_field.h"

namespace dialogs {
namespace {

namespace text = core::text;
using platform::Place;
using windows::Repeat;

constexpr int kClientWidth = 5760;
constexpr int kClientHeight = 6510;

constexpr Place kKindFrame{30, 30, 3975, 2325};
constexpr Place kBasePlace{120, 360, 2295, 255};
constexpr Place kExpansionPlace{150, 720, 3255, 255};
constexpr Place kFlottillenPlace{120, 1170, 3135, 255};
constexpr Place kScenarioPlace{120, 1500, 3135, 255};
constexpr Place kWinLabelPlace{150, 1950, 1845, 285};
constexpr auto kWinButtons = Repeat<2>({2100, 1920, 285, 255}, 900, 0);
constexpr Place kWinPointsPlace{2490, 1890, 435, 285};

constexpr Place kPlayersFrame{30, 2460, 3975, 2865};
constexpr Place kCountLabelPlace{120, 360, 1935, 255};
constexpr std::array<Place, 2> kCountButtons{{{2070, 330, 285, 255}, {3000, 330, 285, 255}}};
constexpr Place kCountPlace{2460, 300, 435, 285};
constexpr auto kNameLabels = Repeat<6>({150, 750, 1005, 255}, 0, 330);
constexpr auto kNames = Repeat<6>({1290, 690, 1095, 285}, 0, 330);

constexpr Place kInfoFrame{30, 5430, 3975, 1035};

constexpr Place kStartPlace{4200, 5550, 1515, 375};
constexpr Place kCancelPlace{4200, 6000, 1515, 375};
constexpr auto kStatusPictures = Repeat<4>({4650, 210, 720, 720}, 0, 780);

constexpr int kFewestWinPoints = 2;
constexpr int kMostWinPoints = 99;

/// Of a read-only field, which always holds a number.
std::int16_t NumberIn(const platform::TextBox& field) { return core::WholeNumberIn(field.Text.Get()).value_or(0); }

/// One more or one fewer than the number in the field, within bounds.
int Stepped(const platform::TextBox& field, int index, int lowest, int highest) {
  return std::clamp(NumberIn(field) + (index == 1 ? 1 : -1), lowest, highest);
}

void MakeNumberField(platform::TextBox& field, const std::string& text) {
  field.ReadOnly = true;
  field.Align = platform::Alignment::Centre;
  field.Text = text;
}

/// For a screen reader: the field bears no caption, and "-" and "+" alone do not say of what.
void NameSteps(const std::string& name, platform::TextBox& field,
               const platform::ControlArray<platform::CommandButton>& buttons) {
  field.SpokenName = name;
  for (int index = 0; index < 2; ++index) buttons(index).SpokenName = name + " " + buttons(index).Caption.Get();
}

core::CheckValue Ticked(const platform::CheckBox& box) {
  return core::CheckValue(static_cast<std::int16_t>(box.Value.Get()));
}

}  // namespace

F20::F20(const windows::Context& context)
    : Dialog(context, "F20", kClientWidth, kClientHeight),
      fraA(this, "fraA", kKindFrame),
      optA(&fraA, "optA", kBasePlace),
      optB(&fraA, "optB", kExpansionPlace),
      chkFlo(&fraA, "chkFlo", kFlottillenPlace),
      chkSzen(&fraA, "chkSzen", kScenarioPlace),
      lblSiegbed(&fraA, "lblSiegbed", kWinLabelPlace),
      cmdA(&fraA, "cmdA", kWinButtons),
      txtneuSPBed(&fraA, "txtneuSPBed", kWinPointsPlace),
      fraSetPlayers(this, "fraSetPlayers", kPlayersFrame),
      lblB(&fraSetPlayers, "lblB", kCountLabelPlace),
      cmdB(&fraSetPlayers, "cmdB", kCountButtons),
      txtNOP(&fraSetPlayers, "txtNOP", kCountPlace),
      lblSpieler(&fraSetPlayers, "lblSpieler", kNameLabels),
      txtSpielername(&fraSetPlayers, "txtSpielername", kNames),
      Info(this, kInfoFrame, state()),
      cmdStart(this, "cmdStart", kStartPlace),
      cmdCancel(this, "cmdCancel", kCancelPlace),
      picGameStatus(this, "picGameStatus", kStatusPictures) {
  Caption = "Neues Spiel erstellen";
  MakeNumberField(txtneuSPBed, std::to_string(core::KindOf(core::kBaseGame)->WinPoints));
  MakeNumberField(txtNOP, std::to_string(core::kDefaultPlayers));
  cmdA(0).Caption = cmdB(0).Caption = "-";
  cmdA(1).Caption = cmdB(1).Caption = "+";
  for (int i = picGameStatus.First(); i <= picGameStatus.Last(); ++i) picGameStatus(i).Opaque = false;
  for (int i = 0; i < core::kSeats; ++i) windows::KeepStorable(txtSpielername(i), state());
  WireEvents();
}

void F20::WireEvents() {
  for (auto* option : {&optA, &optB}) option->Click = [this] { UpdateGameOptions(); };
  for (auto* box : {&chkFlo, &chkSzen}) box->Click = [this] { UpdateGameOptions(); };
  for (int index = 0; index < 2; ++index) {
    cmdA(index).Click = [this, index] { F20_cmdA_Click(index); };
    cmdB(index).Click = [this, index] { F20_cmdB_Click(index); };
  }
  cmdStart.Click = [this] { F20_cmdStart_Click(); };
  cmdCancel.Cancel = true;
  cmdCancel.Click = [this] { Leave(); };
  Close = [this] { Leave(); };
}

void F20::SetCaptions() {
  Caption = platform::WithoutMnemonic(state().Text(text::MenuNewGame));
  fraA.Caption = state().Text(text::ChooseKindOfGame);
  optA.Caption = state().Text(text::BaseGame);
  optB.Caption = state().Text(text::FirstExpansion);
  chkFlo.Caption = state().Text(text::SecondExpansion);
  chkSzen.Caption = state().Text(text::Scenario);
  lblSiegbed.Caption = state().Text(text::NeededToWin);
  fraSetPlayers.Caption = state().Text(text::ChoosePlayers);
  lblB.Caption = state().Text(text::NumberOfPlayers);
  for (int i = 0; i < core::kSeats; ++i) {
    lblSpieler(i).Caption = txtSpielername(i).SpokenName = state().Text(text::Player) + " " + std::to_string(i + 1);
  }
  Info.SetCaptions(state());
  cmdStart.Caption = state().Text(text::StartGame);
  cmdCancel.Caption = state().Text(text::Cancel);
  NameSteps(lblSiegbed.Caption, txtneuSPBed, cmdA);
  NameSteps(lblB.Caption, txtNOP, cmdB);
}

void F20::OpenNewGame() {
  Info.txtSpieltitel.Text = context_.services.Today();
  Info.txtSpielinfo.Text = std::string("Orvan Begleiter");
  if (!optA.Value && !optB.Value) optA.Value = true;
  SetFocus(optB.Value ? optB : optA);
  for (int i = 0; i < core::kSeats; ++i) {
    txtSpielername(i).Text = state().game.Players[i + 1].Name;
  }
  UpdatePlayerFields(std::clamp<int>(state().game.NumPlayers, core::kFewestPlayers, core::kSeats));
  Open();
}

std::int16_t F20::ChosenKind() const { return optB.Value ? core::kFirstExpansion : core::kBaseGame; }

/// A click on any of the four controls brings back the usual points to win of the kind of game.
void F20::UpdateGameOptions() {
  txtneuSPBed.Text = std::to_string(core::KindOf(ChosenKind())->WinPoints);
  ShowStatus();
}

void F20::ShowStatus() {
  windows::ShowGameStatus(picGameStatus,
                          {.BaseGame = !optB.Value,
                           .Flottillen = chkFlo.Value == 1,
                           .Scenario = chkSzen.Value == 1,
                           .Players = NumberIn(txtNOP)},
                          state());
}

void F20::UpdatePlayerFields(int count) {
  txtNOP.Text = std::to_string(count);
  for (int i = 0; i < core::kSeats; ++i) {
    lblSpieler(i).Visible = i < count;
    txtSpielername(i).Visible = i < count;
  }
  ShowStatus();
}

void F20::F20_cmdA_Click(int index) {
  txtneuSPBed.Text = std::to_string(Stepped(txtneuSPBed, index, kFewestWinPoints, kMostWinPoints));
}

void F20::F20_cmdB_Click(int index) { UpdatePlayerFields(Stepped(txtNOP, index, core::kFewestPlayers, core::kSeats)); }

void F20::F20_cmdStart_Click() {
  core::NewGame chosen;
  chosen.NumPlayers = NumberIn(txtNOP);
  chosen.GameType = ChosenKind();
  chosen.WinPoints = NumberIn(txtneuSPBed);
  for (int i = 0; i < core::kSeats; ++i) chosen.Names[i + 1] = txtSpielername(i).Text;
  chosen.Flottillen = Ticked(chkFlo);
  chosen.Scenario = Ticked(chkSzen);
  chosen.Title = Info.txtSpieltitel.Text;
  chosen.Info = Info.txtSpielinfo.Text;
  core::StartGame(state(), chosen);
  Leave(OnStart);
}

}  // namespace dialogs
