#include "f6_game_info.h"

#include "../platform/mnemonic.h"
#include "../storage/code_page.h"
#include "../windows/form_metrics.h"
#include "../windows/game_status.h"

namespace dialogs {
namespace {

using platform::Place;

constexpr int kClientWidth = 5175;
constexpr int kClientHeight = 3840;
constexpr Place kInfoFrame{120, 120, 3975, 1035};
constexpr Place kTitleLabelPlace{180, 360, 945, 255};
constexpr Place kTitlePlace{1290, 300, 2475, 285};
constexpr Place kInfoLabelPlace{180, 690, 945, 255};
constexpr Place kInfoPlace{1290, 630, 2475, 285};
constexpr Place kKindFrame{150, 1230, 3945, 1965};
constexpr Place kSummaryPlace{120, 240, 3735, 1605};
constexpr auto kPictures = windows::Repeat<4>({4260, 150, 720, 720}, 0, 780);
constexpr Place kOkPlace{1770, 3390, 1755, 375};

constexpr const char* kLineBreak = "\r\n";

}  // namespace

F6::F6(const windows::Context& context)
    : Dialog(context, "F6", kClientWidth, kClientHeight),
      fraSpielInfo(this, "fraSpielInfo", kInfoFrame),
      lblC(&fraSpielInfo, "lblC", kTitleLabelPlace),
      txtSpieltitel(&fraSpielInfo, "txtSpieltitel", kTitlePlace),
      lblD(&fraSpielInfo, "lblD", kInfoLabelPlace),
      txtSpielinfo(&fraSpielInfo, "txtSpielinfo", kInfoPlace),
      fraSpielart(this, "fraSpielart", kKindFrame),
      lblGameInfo(&fraSpielart, "lblGameInfo", kSummaryPlace),
      picGameStatus(this, "picGameStatus", kPictures),
      cmdOK(this, "cmdOK", kOkPlace) {
  lblC.Align = lblD.Align = platform::Alignment::Right;
  txtSpieltitel.Filter = txtSpielinfo.Filter = storage::Storable;
  for (int i = picGameStatus.First(); i <= picGameStatus.Last(); ++i) picGameStatus(i).Opaque = false;
  cmdOK.Caption = "OK";
  cmdOK.Default = true;
  cmdOK.Click = [this] { F6_cmdOK_Click(); };
  Close = [this] { F6_cmdOK_Click(); };
}

void F6::SetCaptions() {
  Caption = platform::WithoutMnemonic(state().Text(5));
  fraSpielInfo.Caption = state().Text(72);
  lblC.Caption = txtSpieltitel.SpokenName = state().Text(73);
  lblD.Caption = txtSpielinfo.SpokenName = state().Text(74);
  fraSpielart.Caption = state().Text(75);
}

void F6::PrepareGameInfo() {
  lblGameInfo.Caption = Summary();
  ShowPictures();
  txtSpieltitel.Text = state().game.GameTitle;
  txtSpielinfo.Text = state().game.GameInfo;
  SetFocus(txtSpieltitel);
  Open();
}

std::string F6::Summary() {
  const core::Game& game = state().game;
  std::string text = state().Text(game.GameType == core::kBaseGame ? 66 : 67);
  text += kLineBreak + std::to_string(game.NumPlayers) + " " + state().Text(16);
  if (!game.OptFlottillen.IsOff()) text += kLineBreak + state().Text(68);
  if (!game.OptScenario.IsOff()) text += kLineBreak + state().Text(69);
  return text + kLineBreak + state().Text(70) + ": " + std::to_string(game.WinPoints) + " " + state().Text(71);
}

void F6::ShowPictures() {
  const core::Game& game = state().game;
  windows::ShowGameStatus(picGameStatus,
                          {.BaseGame = game.GameType == core::kBaseGame,
                           .Flottillen = !game.OptFlottillen.IsOff(),
                           .Scenario = !game.OptScenario.IsOff(),
                           .Players = game.NumPlayers},
                          state());
}

void F6::F6_cmdOK_Click() {
  state().game.GameTitle = txtSpieltitel.Text;
  state().game.GameInfo = txtSpielinfo.Text;
  Leave();
}

}  // namespace dialogs
