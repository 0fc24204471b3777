// A drawing as the screen shows it: each step with the place where it is seen and, for a text, its letters laid out, so
// that painting it again costs little and only what has changed need be painted.
#pragma once

#include <QPainter>
#include <QRegion>
#include <QStaticText>
#include <span>
#include <vector>

#include "../surface.h"
#include "measure.h"

namespace platform::qt {

class ScreenDrawing {
 public:
  explicit ScreenDrawing(const Measure& measure) : measure_(measure) {}

  /// Takes over a drawing. Gives back where it may differ from the one before, in pixels: the places of all steps that
  /// do not stand at the same place of the other list. Anywhere else the same steps were drawn in the same order.
  QRegion Follow(std::span<const DrawingStep> now);

  /// Paints the steps that are seen within the region, in pixels.
  void Paint(QPainter& painter, const QRegion& within) const;

 private:
  struct ShownStep {
    DrawingStep Step;
    QStaticText Letters;  ///< of a text; empty for all others
    QRect Extent;
  };
  ShownStep Shown(const DrawingStep& step) const;
  QStaticText LaidOut(const TextStep& step) const;
  QRectF ExtentOf(const DrawingStep& step, const QStaticText& letters) const;

  const Measure& measure_;
  std::vector<ShownStep> shown_;
};

}  // namespace platform::qt
