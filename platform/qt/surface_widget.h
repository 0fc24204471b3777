// Widgets that show a picture with drawing over it: picture boxes, and the client area of a form.
#pragma once

#include <QMouseEvent>
#include <QWidget>
#include <optional>

#include "../controls.h"
#include "../form.h"
#include "screen_drawing.h"

namespace platform::qt {

/// A widget with a drawing. Of a drawing that is made anew only what differs from the one before is painted.
class DrawnWidget : public QWidget {
 public:
  DrawnWidget(const Surface& drawing, const Measure& measure, QWidget* parent);
  /// Called for each step that is drawn; what has changed is painted once the window system has its turn again.
  void DrawingChanged();

 protected:
  /// Paints a ground, the picture on it and the drawing, as far as they lie within the region; `at` is the corner of
  /// picture and drawing, in pixels.
  void Paint(QPainter& painter, const QRegion& region, const std::optional<QColor>& ground, const Picture& picture,
             QPoint at = {});

 private:
  QRegion TakeChange();

  const Surface& drawing_;
  ScreenDrawing shown_;
  bool due_ = false;
};

class PictureWidget : public DrawnWidget {
 public:
  PictureWidget(PictureBox& box, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override { pressed_ = event->button(); }

 private:
  void PaintBorder(QPainter& painter) const;
  PictureBox& box_;
  Qt::MouseButton pressed_ = Qt::NoButton;
};

class ClientWidget : public DrawnWidget {
 public:
  ClientWidget(Form& form, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Form& form_;
};

/// The button of the model that a mouse event is about.
MouseButton ButtonOf(Qt::MouseButton button);

}  // namespace platform::qt
