// How the units of a surface, the points of its fonts and the pixels of its pictures become a painter's own units.
#pragma once

#include <QPointF>
#include <QRectF>

#include "../surface.h"
#include "../units.h"
#include "fonts.h"

namespace platform::qt {

struct Measure {
  double unitsPerPixel = 1;
  double pixelsPerPoint = kScreenPixelsPerPoint;
  double lineWidth = 1;     ///< of outlines, in the painter's units
  double rightEdge = 0;     ///< in the painter's units: no text goes beyond; 0: any may
  double pictureScale = 1;  ///< 1: at natural size; pictures of a page are drawn as vectors at any other

  /// A length or place of the surface in the painter's units. Counts from a file can put a step anywhere; what lies
  /// far outside is never seen.
  double Pixel(double unit) const;
  QPointF At(double x, double y) const { return {Pixel(x), Pixel(y)}; }
  /// From one corner up to the other without it, at least one pixel each way.
  QRectF Between(double x1, double y1, double x2, double y2) const;
  QFont FaceOf(const TextStep& step) const { return ToQt(step.Face, pixelsPerPoint); }
};

inline constexpr Measure kInPixels{};
inline constexpr Measure kInTwips{.unitsPerPixel = kTwipsPerPixel};

/// Where the narrower of the usual papers ends for a printer: A4 without a thin margin.
inline constexpr double kPaperRight = 2440;
/// The painter's unit is 1/300 inch, as the page's; fonts are points on paper, pictures 96 pixels to an inch.
inline constexpr Measure kOnPaper{
    .pixelsPerPoint = 300.0 / 72, .lineWidth = 3, .rightEdge = kPaperRight, .pictureScale = 300.0 / 96};

}  // namespace platform::qt
