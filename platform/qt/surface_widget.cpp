#include "surface_widget.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <utility>

#include "convert.h"
#include "pictures.h"
#include "replay.h"

namespace platform::qt {

MouseButton ButtonOf(Qt::MouseButton button) {
  if (button == Qt::RightButton) return MouseButton::Right;
  return button == Qt::LeftButton ? MouseButton::Left : MouseButton::Middle;
}

PictureWidget::PictureWidget(PictureBox& box, QWidget* parent) : QWidget(parent), box_(box) {
  setAttribute(Qt::WA_OpaquePaintEvent, box.Opaque);
  setContextMenuPolicy(Qt::PreventContextMenu);  // the right button belongs to the form
}

void PictureWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  if (box_.Ground) {
    painter.fillRect(rect(), ToQt(*box_.Ground));
  } else if (box_.Opaque) {
    painter.fillRect(rect(), palette().window());
  }
  painter.translate(box_.Border, box_.Border);
  Draw(painter, box_.Image, {0, 0});
  Replay(painter, box_.Drawing, kInPixels);
  painter.resetTransform();
  PaintBorder(painter);
}

void PictureWidget::PaintBorder(QPainter& painter) const {
  if (box_.Border == 0) return;
  QStyleOptionFrame option;
  option.initFrom(this);
  option.lineWidth = box_.Border;
  option.state |= QStyle::State_Sunken;
  if (box_.Border == 1) {
    painter.setPen(QColor(0x60, 0x60, 0x60));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  } else {
    style()->drawPrimitive(QStyle::PE_Frame, &option, &painter, this);
  }
}

void PictureWidget::mouseReleaseEvent(QMouseEvent* event) {
  const bool pressedHere = std::exchange(pressed_, Qt::NoButton) == event->button();
  if (!pressedHere || !rect().contains(event->position().toPoint())) return;
  if (Form* form = box_.Owner()) form->MouseUp(box_, ButtonOf(event->button()));
}

ClientWidget::ClientWidget(Form& form, QWidget* parent) : QWidget(parent), form_(form) {}

void ClientWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  if (form_.Ground) painter.fillRect(rect(), ToQt(*form_.Ground));
  Draw(painter, form_.Image, {0, 0});
  Replay(painter, form_.Drawing, kInTwips);
}

}  // namespace platform::qt
