#include "f6_game_info.h"

#include "../core/texts.h"
#include "../platform/mnemonic.h"
#include "../windows/form_metrics.h"

namespace dialogs {
namespace {

namespace text = core::text;
using platform::Place;

constexpr int kClientWidth = 5175;
constexpr int kClientHeight = 3840;
constexpr Place kInfoFrame{120, 120, 3975, 1035};
constexpr Place kKindFrame{150, 1230, 3945, 1965};
constexpr Place kSummaryPlace{120, 240, 3735, 1605};
constexpr auto kPictures = windows::Repeat<4>({4260, 150, 720, 720}, 0, 780);
constexpr Place kOkPlace{1770, 3390, 1755, 375};

constexpr const char* kLineBreak = "\r\n";

}  // namespace

F6::F6(const windows::Context& context)
    : Dialog(context, "F6", kClientWidth, kClientHeight),
      Info(this, kInfoFrame, state()),
      fraSpielart(this, "fraSpielart", kKindFrame),
      lblGameInfo(&fraSpielart, "lblGameInfo", kSummaryPlace),
      picGameStatus(this, "picGameStatus", kPictures),
      cmdOK(this, "cmdOK", kOkPlace) {
  Info.lblC.Align = Info.lblD.Align = platform::Alignment::Right;
  for (int i = picGameStatus.First(); i <= picGameStatus.Last(); ++i) picGameStatus(i).Opaque = false;
  cmdOK.Caption = "OK";
  cmdOK.Default = true;
  cmdOK.Click = [this] { F6_cmdOK_Click(); };
  Close = [this] { F6_cmdOK_Click(); };
}

void F6::SetCaptions() {
  Caption = platform::WithoutMnemonic(state().Text(text::MenuGameInfo));
  Info.SetCaptions(state());
  fraSpielart.Caption = state().Text(text::KindOfGame);
}

void F6::PrepareGameInfo() {
  lblGameInfo.Caption = Summary();
  ShowPictures();
  Info.txtSpieltitel.Text = state().game.GameTitle;
  Info.txtSpielinfo.Text = state().game.GameInfo;
  SetFocus(Info.txtSpieltitel);
  Open();
}

std::string F6::Summary() {
  const core::Game& game = state().game;
  std::string text = state().Text(game.GameType == core::kBaseGame ? text::BaseGame : text::FirstExpansion);
  text += kLineBreak + std::to_string(game.NumPlayers) + " " + state().TextOr(text::PlayersAfterNumber, text::Player);
  if (!game.OptFlottillen.IsOff()) text += kLineBreak + state().Text(text::SecondExpansion);
  if (!game.OptScenario.IsOff()) text += kLineBreak + state().Text(text::Scenario);
  return text + kLineBreak + state().Text(text::NeededToWin) + ": " + std::to_string(game.WinPoints) + " " +
         state().Text(text::VictoryPoints);
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
  state().game.GameTitle = Info.txtSpieltitel.Text;
  state().game.GameInfo = Info.txtSpielinfo.Text;
  Leave();
}

}  // namespace dialogs
