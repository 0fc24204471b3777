// Draws the steps of a surface at the resolution of any device.
#pragma once

#include <QPainter>

#include "convert.h"

namespace platform::qt {

/// How units of a surface, points of its fonts and pixels of its pictures become units of a painter.
struct Measure {
  double unitsPerPixel = 1;
  double pixelsPerPoint = kScreenPixelsPerPoint;
  double scale = 1;         ///< of everything that is measured in pixels
  double lineWidth = 1;     ///< of outlines, in pixels
  double rightEdge = 0;     ///< where text ends at the latest, in the painter's units; 0: anywhere
  double pictureScale = 1;  ///< of pictures, beside the other
  bool onScreen = false;    ///< rules are whole pixels of the screen, pictures are drawn once and kept

  /// A length or place of the surface in the painter's units. Counts from a file can put a step anywhere; what is far
  /// outside is never seen.
  double Pixel(double unit) const;
  QPointF At(double x, double y) const { return {Pixel(x), Pixel(y)}; }
  /// The box from one corner up to the other without it, at least as wide and high as a line.
  QRectF Between(double x1, double y1, double x2, double y2) const;
  QFont FaceOf(const TextStep& step) const { return ToQt(step.Face, pixelsPerPoint, scale); }
  /// How far a halo reaches around its letters, in the painter's units.
  double HaloWidth() const { return 1.5 * pixelsPerPoint * scale; }
};

// For windows in their present size.
inline Measure InPixels() { return {.scale = Zoom(), .onScreen = true}; }
inline Measure InTwips() { return {.unitsPerPixel = kTwipsPerPixel, .scale = Zoom(), .onScreen = true}; }

/// Draws one step after the other.
class StepPainter {
 public:
  StepPainter(QPainter& painter, const Measure& measure) : painter_(painter), measure_(measure) {}

  void operator()(const TextStep& step);
  void operator()(const LineStep& step);
  void operator()(const BoxStep& step);
  void operator()(const PictureStep& step);

  /// Sets the painter to the colour and font of the text.
  void UseFace(const TextStep& step);
  /// Draws the halo, if it has one, of a text whose face is in use. `foot`: where its base line begins.
  void DrawHalo(const TextStep& step, const QPointF& foot);

 private:
  void Fill(const QRectF& box, Colour ink);
  void Outline(const QRectF& box, Colour ink);
  QRectF OnWholePixels(const QRectF& box) const;
  /// 0 for a text without limit.
  double RoomFor(const TextStep& step) const;
  /// Draws a text that is too long narrower, and where that would be unreadable cuts it with dots.
  void DrawWithin(double room, const QPointF& foot, const QString& text);

  QPainter& painter_;
  const Measure& measure_;
  const Font* face_ = nullptr;  ///< the one set last
};

/// Draws all steps of the surface.
void Replay(QPainter& painter, const Surface& surface, const Measure& measure);

}  // namespace platform::qt
