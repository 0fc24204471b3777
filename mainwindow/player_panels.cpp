#include "player_panels.h"

#include "../core/numbers.h"
#include "../core/standing.h"
#include "../core/texts.h"
#include "../windows/image_lists.h"
#include "themes.h"

namespace mainwindow {
namespace {

using core::State;
using platform::Colour;
using platform::Surface;

constexpr Colour kLeading = Colour::FromBgr(0x00FFFF);
constexpr Colour kFollowing = Colour::FromBgr(0x0099CC);

/// The grounds of the seats around the points, in all themes: of a follower and of a leader.
constexpr Colour kGrounds[core::kSeats][2] = {{{65, 13, 18}, {139, 25, 31}}, {{12, 28, 81}, {27, 60, 161}},
                                              {{7, 40, 19}, {19, 89, 39}},   {{58, 27, 5}, {122, 60, 7}},
                                              {{41, 15, 77}, {85, 35, 153}}, {{31, 33, 38}, {70, 77, 85}}};

// Pixels of a panel, 185 by 57.
constexpr int kPanelWidth = 185;
constexpr int kSymbolPitch = 16;
constexpr int kTextX = 1;
constexpr int kLabelY = 16;
constexpr int kNameY = 28;
constexpr int kPointsY = 11;
constexpr int kOneDigitX = 135;
constexpr int kTwoDigitsX = 115;

void Write(Surface& panel, double size, bool bold, int x, int y, const std::string& text) {
  panel.FontSize = size;
  panel.FontBold = bold;
  panel.PrintAt(x, y, text);
}

void PaintSymbols(const core::TPlayer& player, Surface& panel) {
  int x = 1;
  for (const int symbol : core::SymbolsOf(player, kPanelWidth / kSymbolPitch + 1)) {
    panel.PaintPicture(windows::imlIcons.Image(symbol), x, 1);
    x += kSymbolPitch;
  }
}

void PaintPanel(const State& state, int seat, Surface& panel) {
  const int points = state.figures.PlayerPoints[seat];
  panel.ForeColor = state.figures.LeaderFlag[seat] ? kLeading : kFollowing;
  panel.Cls();
  PaintSymbols(state.game.Players[seat], panel);
  Write(panel, 8, false, kTextX, kLabelY, state.Text(core::text::Player) + " " + std::to_string(seat));
  Write(panel, 18, true, kTextX, kNameY, state.game.Players[seat].Name);
  panel.Halo = kGrounds[seat - 1][state.figures.LeaderFlag[seat] ? 1 : 0];  // a long name passes beneath
  Write(panel, 32, true, points <= 9 ? kOneDigitX : kTwoDigitsX, kPointsY, core::PrintedNumber(points));
  panel.Halo.reset();
}

/// Seat, name and points; a leader by the rank.
std::string SpokenPanel(const State& state, int seat) {
  const std::string rank = state.figures.LeaderFlag[seat] ? " (1.)" : "";
  return state.Text(core::text::Player) + " " + std::to_string(seat) + ": " + state.game.Players[seat].Name + ", " +
         std::to_string(state.figures.PlayerPoints[seat]) + " " + state.Text(core::text::VictoryPoints) + rank;
}

}  // namespace

void PaintPanels(const State& state, platform::Services& services, F1& f1) {
  for (int seat = 1; seat <= core::kSeats; ++seat) {
    platform::PictureBox& panel = f1.picSP(seat - 1);
    const auto ground = PanelPicture(state.settings.HG, seat, state.figures.LeaderFlag[seat]);
    if (services.CanShow(ground)) panel.Image = ground;
    PaintPanel(state, seat, panel.Drawing);
    panel.SpokenName = SpokenPanel(state, seat);
  }
}

}  // namespace mainwindow
