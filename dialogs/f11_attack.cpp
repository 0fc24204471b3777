#include "f11_attack.h"

#include "../core/game_state.h"
#include "../core/points.h"
#include "../core/standing.h"
#include "../core/texts.h"
#include "../windows/form_metrics.h"
#include "../windows/image_lists.h"

namespace dialogs {
namespace {

namespace text = core::text;
using platform::Place;

constexpr int kClientWidth = 3855;
constexpr int kClientHeight = 2985;
constexpr Place kTablePlace{120, 330, 3645, 2205};
constexpr std::array<Place, 3> kHeads{{{2640, 30, 285, 285}, {2910, 30, 285, 285}, {3330, 30, 285, 285}}};
constexpr Place kOkPlace{1290, 2580, 1275, 375};

// Pixels of the table.
constexpr int kRowHeight = 18;
constexpr int kNameX = 1;
constexpr int kCitiesX = 167;
constexpr int kTwoDigitCitiesX = 153;  // so that the stroke behind the number stays in its column
constexpr int kMetropolisesX = 187;
constexpr int kSettlementsX = 215;
constexpr int kLineY = 108;
constexpr int kTotalsY = 110;

constexpr platform::Colour kSpared{130, 130, 130};  // a player who has no city to lose

}  // namespace

F11::F11(const windows::Context& context)
    : Dialog(context, "F11", kClientWidth, kClientHeight),
      picShowPlayers(this, "picShowPlayers", kTablePlace),
      picSymbol(this, "picSymbol", kHeads),
      cmdOK(this, "cmdOK", kOkPlace) {
  Caption = "Barbaren greifen an !";
  picShowPlayers.Ground = windows::kPaper;
  picShowPlayers.Drawing.FontSize = 12;
  picShowPlayers.Drawing.FontBold = true;
  picSymbol(0).Image = windows::imlIcons.Image(core::kCitySymbol);
  picSymbol(1).Image = windows::kMetropolis;
  picSymbol(2).Image = windows::imlIcons.Image(core::kSettlementSymbol);
  cmdOK.Caption = "OK";
  cmdOK.Default = true;
  cmdOK.Click = [this] { Leave(); };
  Close = [this] { Leave(); };
}

void F11::SetCaptions() {
  Caption = state().Text(text::BarbariansAttack);
  picSymbol(0).SpokenName = state().Text(text::Cities);
  picSymbol(2).SpokenName = state().Text(text::Settlements);
  std::string metropolises;
  for (const int name : {text::PoliticsMetropolis, text::TradeMetropolis, text::ScienceMetropolis}) {
    metropolises += state().Text(name) + " ";
  }
  picSymbol(1).SpokenName = metropolises;
}

void F11::ShowAttack() {
  Show();
  if (context_.lock.IsTaken()) context_.lock.Take(*this);
  picShowPlayers.Drawing.Cls();
  picShowPlayers.Drawing.PaintPicture(windows::kShips, 0, 0);
  const int seats = core::SeatsPlayed(state().game);
  for (int seat = 1; seat <= seats; ++seat) {
    DrawRow(state().game.Players[seat], (seat - 1) * kRowHeight);
  }
  DrawTotals();
  picShowPlayers.SpokenName = picShowPlayers.Drawing.Spoken();
}

void F11::DrawRow(const core::TPlayer& player, int y) {
  platform::Surface& table = picShowPlayers.Drawing;
  const int metropolises = core::MetropolisCount(player);
  table.ForeColor = player.Cities == 0 || metropolises == player.Cities ? kSpared : platform::kBlack;
  table.Halo.reset();
  table.PrintAt(kNameX, y, player.Name);
  table.Halo = windows::kPaper;  // a long name passes beneath the figures
  table.PrintAt(kCitiesX, y, std::to_string(player.Cities) + "/");
  table.PrintAt(kMetropolisesX, y, std::to_string(metropolises));
  table.PrintAt(kSettlementsX, y, std::to_string(player.Settlements));
}

/// Line and totals keep the colour of the last row.
void F11::DrawTotals() {
  platform::Surface& table = picShowPlayers.Drawing;
  const core::BoardTotals totals = core::CountBoard(state().game);
  const int right = platform::ToPixels(kTablePlace.Width);
  table.Halo.reset();
  table.Line(kNameX, kLineY, right, kLineY, table.ForeColor);
  table.PrintAt(totals.Cities < 10 ? kCitiesX : kTwoDigitCitiesX, kTotalsY, std::to_string(totals.Cities) + "/");
  table.PrintAt(kMetropolisesX, kTotalsY, std::to_string(totals.Metropolises));
  table.PrintAt(kSettlementsX, kTotalsY, std::to_string(totals.Settlements));
}

}  // namespace dialogs
