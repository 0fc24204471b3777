#include "replay.h"

#include <QFontMetricsF>

#include "convert.h"
#include "pictures.h"

namespace platform::qt {

void StepPainter::operator()(const TextStep& step) {
  UseFace(step);
  const double ascent = painter_.fontMetrics().ascent();
  painter_.drawText(measure_.At(step.X, step.Y) + QPointF(0, ascent), Fitting(step));
}

void StepPainter::operator()(const LineStep& step) {
  if (step.X1 == step.X2 || step.Y1 == step.Y2) {
    painter_.fillRect(measure_.Between(step.X1, step.Y1, step.X2, step.Y2), ToQt(step.Ink));
  } else {
    painter_.setPen(ToQt(step.Ink));
    painter_.drawLine(measure_.At(step.X1, step.Y1), measure_.At(step.X2, step.Y2));
  }
}

void StepPainter::operator()(const BoxStep& step) {
  const QRectF box = measure_.Between(step.X1, step.Y1, step.X2, step.Y2);
  if (step.Filled) {
    painter_.fillRect(box, ToQt(step.Ink));
  } else {
    const double inside = measure_.lineWidth / 2;
    painter_.setPen(QPen(ToQt(step.Ink), measure_.lineWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(box.adjusted(inside, inside, -inside, -inside));
  }
}

void StepPainter::operator()(const PictureStep& step) {
  if (measure_.pictureScale == 1) {
    Draw(painter_, step.Image, measure_.At(step.X, step.Y));
  } else {
    DrawScaled(painter_, step.Image, measure_.At(step.X, step.Y), measure_.pictureScale);
  }
}

void StepPainter::UseFace(const TextStep& step) {
  painter_.setPen(ToQt(step.Ink));
  if (face_ && *face_ == step.Face) return;
  face_ = &step.Face;
  painter_.setFont(measure_.FaceOf(step));
}

QString StepPainter::Fitting(const TextStep& step) const {
  const QString text = ToQt(step.Text);
  if (measure_.rightEdge == 0) return text;
  const double room = measure_.rightEdge - measure_.Pixel(step.X);
  return QFontMetricsF(painter_.font(), painter_.device()).elidedText(text, Qt::ElideRight, room);
}

void Replay(QPainter& painter, const Surface& surface, const Measure& measure) {
  StepPainter paint(painter, measure);
  for (const DrawingStep& step : surface.Steps()) std::visit(paint, step);
}

}  // namespace platform::qt
