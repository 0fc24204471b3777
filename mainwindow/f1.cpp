#include "f1.h"

#include <array>

#include "../windows/image_lists.h"

namespace mainwindow {
namespace {

using platform::Place;

constexpr int kClientWidth = 9495;
constexpr int kClientHeight = 8355;
constexpr Place kToolBarPlace{0, 0, 9495, 420};
constexpr Place kChartPlace{120, 2520, 9135, 3555};
constexpr Place kInfoLinePlace{120, 6240, 9135, 315};

// Three columns of two, filled column by column.
constexpr std::array<Place, 6> kPanelPlaces{{{120, 540, 2775, 855},
                                             {120, 1500, 2775, 855},
                                             {3000, 540, 2775, 855},
                                             {3000, 1500, 2775, 855},
                                             {5880, 540, 2775, 855},
                                             {5880, 1500, 2775, 855}}};
constexpr std::array<Place, 3> kDicePlaces{{{8760, 600, 525, 525}, {8760, 1200, 525, 525}, {8760, 1800, 525, 525}}};

// Grounds for light text where a background picture is missing.
constexpr platform::Colour kWindowGround{24, 36, 48};
constexpr platform::Colour kPanelGround{32, 48, 62};

constexpr int kClockTick = 1000;  // milliseconds
constexpr int kCopyTick = 500;

}  // namespace

F1::F1(platform::Desktop& desktop, std::unique_ptr<platform::Menu> menu, std::vector<platform::Picture> tools)
    : Form(desktop, "F1", kClientWidth, kClientHeight),
      tbrMenu(this, "tbrMenu", kToolBarPlace, std::move(tools)),
      picSP(this, "picSP", kPanelPlaces),
      picWurfel(this, "picWurfel", kDicePlaces),
      picW(this, "picW", kChartPlace),
      picInfoLine(this, "picInfoLine", kInfoLinePlace),
      timSpielzeit(*this, "timSpielzeit", kClockTick),
      timCopy(*this, "timCopy", kCopyTick) {
  timCopy.Enabled = false;
  Caption = "Orvan Begleiter";
  KeyPreview = true;
  MenuBar = std::move(menu);
  picInfoLine.ToolTipText = "Hier werden (v.l.n.r) die letzten 6 Würfelwerte angezeigt";
  for (int i = picWurfel.First(); i <= picWurfel.Last(); ++i) picWurfel(i).Border = 2;
  for (int i = picSP.First(); i <= picSP.Last(); ++i) {
    picSP(i).Drawing.FontName = "Arial";
    picSP(i).Ground = kPanelGround;
  }
  Ground = kWindowGround;
  picW.Ground = picInfoLine.Ground = kPanelGround;
  ShowBlankDice();
}

void F1::ShowBlankDice() {
  picWurfel(0).Image = windows::BlackDie(0);
  picWurfel(1).Image = windows::RedDie(0);
  picWurfel(2).Image = windows::EventDie(0);
}

}  // namespace mainwindow
