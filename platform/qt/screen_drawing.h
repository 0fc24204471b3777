// A drawing on the screen, and the widget that shows it. Each step is kept with its place and, for a text, its laid-out
// letters, so that painting it again costs little and only what has changed is painted.
#pragma once

#include <QPainter>
#include <QRegion>
#include <QStaticText>
#include <QWidget>
#include <optional>
#include <span>
#include <vector>

#include "pictures.h"
#include "replay.h"

namespace platform::qt {

class ScreenDrawing {
 public:
  explicit ScreenDrawing(const Measure& measure) : measure_(measure) {}

  /// Lays out all steps anew.
  void SetMeasure(const Measure& measure);

  /// Takes over a drawing and returns where it may differ from the one before, in pixels: the places of all steps whose
  /// counterpart in the other list is different. Everywhere else the same steps were drawn in the same order.
  QRegion Follow(std::span<const DrawingStep> now);

  /// Paints the steps within the region, in pixels.
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

  Measure measure_;
  std::vector<ShownStep> shown_;
};

/// A widget with a drawing. Of a new drawing only the difference to the one before is painted.
class DrawnWidget : public QWidget {
 public:
  /// `measure` gives the units of the drawing for the present size of windows.
  DrawnWidget(const Surface& drawing, Measure (*measure)(), QWidget* parent);
  /// Called for each step that is drawn. The change is painted when control returns to the event loop.
  void DrawingChanged();
  /// The size of windows has changed.
  void RescaleDrawing();

 protected:
  /// Paints a ground, the picture on it and the drawing within the region. `at` is the corner of picture and drawing,
  /// in pixels.
  void Paint(QPainter& painter, const QRegion& region, const std::optional<QColor>& ground, const Picture& picture,
             QPoint at = {});

 private:
  QRegion TakeChange();

  const Surface& drawing_;
  Measure (*const measure_)();
  ScreenDrawing shown_;
  bool due_ = false;
};

}  // namespace platform::qt
