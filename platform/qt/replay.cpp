#include "replay.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "convert.h"
#include "fonts.h"
#include "pictures.h"

namespace platform::qt {
namespace {

class Player {
 public:
  Player(QPainter& painter, const Measure& measure) : painter_(painter), measure_(measure) {}

  void operator()(const TextStep& step) {
    painter_.setFont(ToQt(step.Face, measure_.pixelsPerPoint));
    painter_.setPen(ToQt(step.Ink));
    const double ascent = painter_.fontMetrics().ascent();
    painter_.drawText(At(step.X, step.Y) + QPointF(0, ascent), Fitting(step));
  }

  void operator()(const LineStep& step) {
    if (step.X1 == step.X2 || step.Y1 == step.Y2) {
      painter_.fillRect(Between(step.X1, step.Y1, step.X2, step.Y2), ToQt(step.Ink));
    } else {
      painter_.setPen(ToQt(step.Ink));
      painter_.drawLine(At(step.X1, step.Y1), At(step.X2, step.Y2));
    }
  }

  void operator()(const BoxStep& step) {
    const QRectF box = Between(step.X1, step.Y1, step.X2, step.Y2);
    if (step.Filled) {
      painter_.fillRect(box, ToQt(step.Ink));
    } else {
      const double inside = measure_.lineWidth / 2;
      painter_.setPen(QPen(ToQt(step.Ink), measure_.lineWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
      painter_.setBrush(Qt::NoBrush);
      painter_.drawRect(box.adjusted(inside, inside, -inside, -inside));
    }
  }

  void operator()(const PictureStep& step) {
    if (measure_.pictureScale == 1) {
      Draw(painter_, step.Image, At(step.X, step.Y));
    } else {
      DrawScaled(painter_, step.Image, At(step.X, step.Y), measure_.pictureScale);
    }
  }

 private:
  QString Fitting(const TextStep& step) const {
    const QString text = ToQt(step.Text);
    if (measure_.rightEdge == 0) return text;
    const double room = measure_.rightEdge - Pixel(step.X);
    return QFontMetricsF(painter_.font(), painter_.device()).elidedText(text, Qt::ElideRight, room);
  }

  /// Counts from a file can put a step anywhere; what lies this far outside is never seen.
  double Pixel(double unit) const { return std::clamp(unit / measure_.unitsPerPixel, -30000.0, 30000.0); }
  QPointF At(double x, double y) const { return {Pixel(x), Pixel(y)}; }

  /// From one corner up to the other without it, at least one pixel each way.
  QRectF Between(double x1, double y1, double x2, double y2) const {
    const QPointF low(Pixel(std::min(x1, x2)), Pixel(std::min(y1, y2)));
    return {low,
            QSizeF(std::max(1.0, std::abs(Pixel(x2) - Pixel(x1))), std::max(1.0, std::abs(Pixel(y2) - Pixel(y1))))};
  }

  QPainter& painter_;
  const Measure& measure_;
};

}  // namespace

void Replay(QPainter& painter, const Surface& surface, const Measure& measure) {
  Player player(painter, measure);
  for (const DrawingStep& step : surface.Steps()) std::visit(player, step);
}

}  // namespace platform::qt
