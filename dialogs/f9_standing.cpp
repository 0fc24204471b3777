#include "f9_standing.h"

#include "../core/new_game.h"
#include "../core/standing.h"
#include "../core/texts.h"
#include "../windows/form_metrics.h"
#include "../windows/image_lists.h"
#include "standing_table.h"

namespace dialogs {
namespace {

namespace text = core::text;
using platform::Place;
using windows::Repeat;

constexpr int kClientWidth = 8895;
constexpr int kClientHeight = 3600;
constexpr Place kHeadlinePlace{990, 240, 7005, 405};
constexpr std::array<Place, 2> kWinnerPictures{{{60, 30, 825, 825}, {8040, 30, 825, 825}}};
constexpr auto kHeads = [] {
  auto places = Repeat<8>({4530, 840, 285, 285}, 450, 0);
  places[4].Width = places[4].Height = 300;
  return places;
}();
constexpr Place kTablePlace{870, 1170, 7215, 1725};
constexpr std::array<Place, 2> kOptions{{{900, 3300, 4155, 315}, {900, 2940, 4185, 315}}};
constexpr Place kOkPlace{6930, 3180, 1935, 375};

}  // namespace

F9::F9(const windows::Context& context)
    : Dialog(context, "F9", kClientWidth, kClientHeight),
      lblSiegertext(this, "lblSiegertext", kHeadlinePlace),
      picSieger(this, "picSieger", kWinnerPictures),
      picSymbol(this, "picSymbol", kHeads),
      picRanking(this, "picRanking", kTablePlace),
      optWinOrder(this, "optWinOrder", kOptions),
      cmdOK(this, "cmdOK", kOkPlace) {
  Caption = "SIEGER !";
  lblSiegertext.Align = platform::Alignment::Centre;
  lblSiegertext.Face = platform::Font{"Verdana", 14.25, true};
  for (int i = picSieger.First(); i <= picSieger.Last(); ++i) {
    picSieger(i).Image = windows::kWinner;
    picSieger(i).Opaque = false;
  }
  picRanking.Ground = windows::kPaper;
  cmdOK.Caption = "OK";
  cmdOK.Default = true;
  cmdOK.Click = [this] { Leave(); };
  Close = [this] { Leave(); };
  optWinOrder(0).Value = true;
  for (int view = optWinOrder.First(); view <= optWinOrder.Last(); ++view) {
    // Not on the click: filling the window sets the options itself, and that must not fill it again.
    optWinOrder(view).MouseUp = [this, view](platform::MouseButton) { F9_optWinOrder_MouseUp(view); };
    optWinOrder(view).KeyUp = [this, view](platform::KeyCode code, platform::Modifiers) {
      const bool arrow = code >= platform::kKeyLeft && code <= platform::kKeyDown;
      if (arrow || code == platform::kKeySpace) F9_optWinOrder_MouseUp(view);
    };
  }
}

void F9::SetCaptions() {
  Caption = state().Text(text::WinnerTitle);
  optWinOrder(1).Caption = state().Text(text::ShowCounts);
  optWinOrder(0).Caption = state().Text(text::ShowPoints);
}

void F9::ShowStanding() {
  const std::vector<core::RankedPlayer> ranking = core::RankPlayers(state());
  DrawStandingTable(state(), ranking, picRanking.Drawing);
  picRanking.SpokenName = SpokenStanding(state(), ranking);
  ShowHeadline(ranking.empty() ? std::string() : ranking.front().Name);
  ShowColumnHeads();
  optWinOrder(state().settings.SiegAnzeige.IsOff() ? 0 : 1).Value = true;
  Open();
}

void F9::ShowHeadline(const std::string& firstName) {
  lblSiegertext.Caption =
      state().asked.GameWon ? firstName + " " + state().Text(text::HasWon) : state().Text(text::StandingTitle);
}

void F9::ShowColumnHeads() {
  const std::int16_t gameType = state().game.GameType;
  if (!core::KindOf(gameType)) return;
  const std::span<const core::Symbol> symbols = StandingColumns(gameType);
  for (int column = picSymbol.First(); column <= picSymbol.Last(); ++column) {
    platform::PictureBox& head = picSymbol(column);
    head.Visible = static_cast<std::size_t>(column) < symbols.size();
    if (!head.Visible) continue;
    const core::Symbol symbol = symbols[static_cast<std::size_t>(column)];
    head.Image = windows::imlIcons.Image(symbol);
    head.SpokenName = state().Text(windows::TextOf(symbol));
  }
}

void F9::F9_optWinOrder_MouseUp(int index) {
  state().settings.SiegAnzeige = core::CheckValue(static_cast<std::int16_t>(index));
  ShowStanding();
}

}  // namespace dialogs
