// Replays what was drawn on a surface, at the resolution of whatever it is drawn on now.
#pragma once

#include <QPainter>

#include "../surface.h"
#include "measure.h"

namespace platform::qt {

/// Paints one step after the other.
class StepPainter {
 public:
  StepPainter(QPainter& painter, const Measure& measure) : painter_(painter), measure_(measure) {}

  void operator()(const TextStep& step);
  void operator()(const LineStep& step);
  void operator()(const BoxStep& step);
  void operator()(const PictureStep& step);

  /// Gives the painter the colour and the font of the text.
  void UseFace(const TextStep& step);

 private:
  /// 0 for a text that may go on for ever.
  double RoomFor(const TextStep& step) const;
  /// A text that is too long is drawn narrower, and ends with dots where it could not be read any more.
  void DrawWithin(double room, const QPointF& foot, const QString& text);

  QPainter& painter_;
  const Measure& measure_;
  const Font* face_ = nullptr;  ///< the one set last
};

/// Draws all steps of the surface.
void Replay(QPainter& painter, const Surface& surface, const Measure& measure);

}  // namespace platform::qt
