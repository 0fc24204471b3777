#include "measure.h"

#include <algorithm>
#include <cmath>

namespace platform::qt {

double Measure::Pixel(double unit) const { return std::clamp(unit / unitsPerPixel, -30000.0, 30000.0); }

QRectF Measure::Between(double x1, double y1, double x2, double y2) const {
  const QPointF low = At(std::min(x1, x2), std::min(y1, y2));
  return {low, QSizeF(std::max(1.0, std::abs(Pixel(x2) - Pixel(x1))), std::max(1.0, std::abs(Pixel(y2) - Pixel(y1))))};
}

}  // namespace platform::qt
