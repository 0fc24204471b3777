// Widgets that show a picture with drawing over it: picture boxes, and the client area of a form.
#pragma once

#include <QMouseEvent>
#include <QWidget>

#include "../controls.h"
#include "../form.h"

namespace platform::qt {

class PictureWidget : public QWidget {
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

class ClientWidget : public QWidget {
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
