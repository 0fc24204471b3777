// Replays what was drawn on a surface, at the resolution of whatever it is drawn on now.
#pragma once

#include <QPainter>

#include "../surface.h"
#include "../units.h"
#include "fonts.h"

namespace platform::qt {

/// How the units of a surface, the points of its fonts and the pixels of its pictures become the painter's own units.
struct Measure {
  double unitsPerPixel = 1;
  double pixelsPerPoint = kScreenPixelsPerPoint;
  double lineWidth = 1;     ///< of outlines, in the painter's units
  double rightEdge = 0;     ///< in the painter's units: texts are cut off with dots there; 0: never
  double pictureScale = 1;  ///< 1: at natural size; pictures of a page are drawn as vectors at any other
};

inline constexpr Measure kInPixels{};
inline constexpr Measure kInTwips{.unitsPerPixel = kTwipsPerPixel};

/// Where the narrower of the usual papers ends for a printer: A4 without a thin margin.
inline constexpr double kPaperRight = 2440;
/// The painter's unit is 1/300 inch, as the page's; fonts are points on paper, pictures 96 pixels to an inch.
inline constexpr Measure kOnPaper{
    .pixelsPerPoint = 300.0 / 72, .lineWidth = 3, .rightEdge = kPaperRight, .pictureScale = 300.0 / 96};

/// Draws all steps of the surface.
void Replay(QPainter& painter, const Surface& surface, const Measure& measure);

}  // namespace platform::qt
