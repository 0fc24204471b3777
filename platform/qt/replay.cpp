#include "replay.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "pictures.h"

namespace platform::qt {

double Measure::Pixel(double unit) const { return std::clamp(unit / unitsPerPixel * scale, -30000.0, 30000.0); }

QRectF Measure::Between(double x1, double y1, double x2, double y2) const {
  const QPointF low = At(std::min(x1, x2), std::min(y1, y2));
  return {low,
          QSizeF(std::max(scale, std::abs(Pixel(x2) - Pixel(x1))), std::max(scale, std::abs(Pixel(y2) - Pixel(y1))))};
}

void StepPainter::operator()(const TextStep& step) {
  UseFace(step);
  const QPointF foot = measure_.At(step.X, step.Y) + QPointF(0, painter_.fontMetrics().ascent());
  DrawHalo(step, foot);
  const double room = RoomFor(step);
  if (room == 0) {
    painter_.drawText(foot, ToQt(step.Text));
  } else {
    DrawWithin(room, foot, ToQt(step.Text));
  }
}

void StepPainter::operator()(const LineStep& step) {
  if (step.X1 == step.X2 || step.Y1 == step.Y2) {
    Fill(measure_.Between(step.X1, step.Y1, step.X2, step.Y2), step.Ink);
  } else {
    painter_.setPen(QPen(ToQt(step.Ink), measure_.scale));
    painter_.drawLine(measure_.At(step.X1, step.Y1), measure_.At(step.X2, step.Y2));
  }
}

void StepPainter::operator()(const BoxStep& step) {
  const QRectF box = measure_.Between(step.X1, step.Y1, step.X2, step.Y2);
  step.Filled ? Fill(box, step.Ink) : Outline(box, step.Ink);
}

void StepPainter::operator()(const PictureStep& step) {
  const double scale = measure_.pictureScale * measure_.scale;
  measure_.onScreen ? Draw(painter_, step.Image, measure_.At(step.X, step.Y), scale)
                    : DrawScaled(painter_, step.Image, measure_.At(step.X, step.Y), scale);
}

/// On a screen the edges are rounded to its pixels, and of a box that is no thicker than a line the thickness, so that
/// rules are equal wherever they are.
QRectF StepPainter::OnWholePixels(const QRectF& box) const {
  const QTransform device = painter_.deviceTransform();
  const QRectF exact = device.mapRect(box);
  const auto end = [this](double from, double to, double length) {
    const int size = length <= measure_.scale ? qRound(to - from) : qRound(to) - qRound(from);
    return qRound(from) + std::max(1, size);
  };
  const QPointF low(qRound(exact.left()), qRound(exact.top()));
  const QPointF high(end(exact.left(), exact.right(), box.width()), end(exact.top(), exact.bottom(), box.height()));
  return device.inverted().mapRect(QRectF(low, high));
}

void StepPainter::Fill(const QRectF& box, Colour ink) {
  painter_.fillRect(measure_.onScreen ? OnWholePixels(box) : box, ToQt(ink));
}

void StepPainter::Outline(const QRectF& box, Colour ink) {
  if (!measure_.onScreen) {
    // The line reaches one unit into the box. What is drawn inside leaves the outline whole.
    const double inside = 1 - measure_.lineWidth / 2;
    painter_.setPen(QPen(ToQt(ink), measure_.lineWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter_.setBrush(Qt::NoBrush);
    return painter_.drawRect(box.adjusted(inside, inside, -inside, -inside));
  }
  const QRectF outer = OnWholePixels(box);
  const QSizeF line = OnWholePixels(QRectF(box.topLeft(), QSizeF(measure_.scale, measure_.scale))).size();
  const QRectF inner = outer.adjusted(line.width(), line.height(), -line.width(), -line.height());
  painter_.fillRect(QRectF(outer.topLeft(), QPointF(outer.right(), inner.top())), ToQt(ink));
  painter_.fillRect(QRectF(QPointF(outer.left(), inner.bottom()), outer.bottomRight()), ToQt(ink));
  painter_.fillRect(QRectF(outer.topLeft(), QPointF(inner.left(), outer.bottom())), ToQt(ink));
  painter_.fillRect(QRectF(QPointF(inner.right(), outer.top()), outer.bottomRight()), ToQt(ink));
}

void StepPainter::UseFace(const TextStep& step) {
  painter_.setPen(ToQt(step.Ink));
  if (face_ && *face_ == step.Face) return;
  face_ = &step.Face;
  painter_.setFont(measure_.FaceOf(step));
}

void StepPainter::DrawHalo(const TextStep& step, const QPointF& foot) {
  if (!step.Halo) return;
  QPainterPath letters;
  letters.addText(foot, painter_.font(), ToQt(step.Text));
  const bool smooth = painter_.testRenderHint(QPainter::Antialiasing);
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.strokePath(letters,
                      QPen(ToQt(*step.Halo), 2 * measure_.HaloWidth(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter_.setRenderHint(QPainter::Antialiasing, smooth);
}

double StepPainter::RoomFor(const TextStep& step) const {
  if (step.Room > 0) return measure_.Pixel(step.Room);
  return measure_.rightEdge == 0 ? 0 : measure_.rightEdge - measure_.Pixel(step.X);
}

void StepPainter::DrawWithin(double room, const QPointF& foot, const QString& text) {
  constexpr double kNarrowest = 0.6;
  const QFontMetricsF metrics(painter_.font(), painter_.device());
  const double narrow = std::clamp(room / std::max(metrics.horizontalAdvance(text), 1.0), kNarrowest, 1.0);
  const QTransform before = painter_.transform();
  painter_.translate(foot);
  painter_.scale(narrow, 1);
  painter_.drawText(QPointF(), metrics.elidedText(text, Qt::ElideRight, room / narrow));
  painter_.setTransform(before);
}

void Replay(QPainter& painter, const Surface& surface, const Measure& measure) {
  StepPainter paint(painter, measure);
  for (const DrawingStep& step : surface.Steps()) std::visit(paint, step);
}

}  // namespace platform::qt
