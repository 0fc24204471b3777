#include "surface_widget.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <utility>

#include "convert.h"
#include "pictures.h"

namespace platform::qt {

MouseButton ButtonOf(Qt::MouseButton button) {
  if (button == Qt::RightButton) return MouseButton::Right;
  return button == Qt::LeftButton ? MouseButton::Left : MouseButton::Middle;
}

DrawnWidget::DrawnWidget(const Surface& drawing, const Measure& measure, QWidget* parent)
    : QWidget(parent), drawing_(drawing), shown_(measure) {
  shown_.Follow(drawing.Steps());  // a window may be made for a drawing that is there already
}

void DrawnWidget::DrawingChanged() {
  if (std::exchange(due_, true)) return;
  const auto showChange = [this] { update(TakeChange()); };
  QMetaObject::invokeMethod(this, showChange, Qt::QueuedConnection);
}

QRegion DrawnWidget::TakeChange() {
  due_ = false;
  return shown_.Follow(drawing_.Steps()).translated(contentsRect().topLeft());
}

void DrawnWidget::Paint(QPainter& painter, const QRegion& region, const std::optional<QColor>& ground,
                        const Picture& picture, QPoint at) {
  // One rectangle after the other: pixels are copied into a rectangle, but mixed one by one into any other shape.
  for (const QRect& part : region) {
    painter.setClipRect(part);
    if (ground) painter.fillRect(part, *ground);
    Draw(painter, picture, at);
  }
  painter.setClipRegion(region);
  painter.translate(at);
  shown_.Paint(painter, region.translated(-at));
  painter.resetTransform();
}

PictureWidget::PictureWidget(PictureBox& box, QWidget* parent)
    : DrawnWidget(box.Drawing, kInPixels, parent), box_(box) {
  setAttribute(Qt::WA_OpaquePaintEvent, box.Opaque);
  setContextMenuPolicy(Qt::PreventContextMenu);  // the right button belongs to the form
  setContentsMargins(box.Border, box.Border, box.Border, box.Border);
}

void PictureWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  std::optional<QColor> ground;
  if (box_.Ground) {
    ground = ToQt(*box_.Ground);
  } else if (box_.Opaque) {
    ground = palette().color(QPalette::Window);
  }
  Paint(painter, event->region(), ground, box_.Image, contentsRect().topLeft());
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

ClientWidget::ClientWidget(Form& form, QWidget* parent) : DrawnWidget(form.Drawing, kInTwips, parent), form_(form) {
  setAttribute(Qt::WA_OpaquePaintEvent, form.Ground.has_value());
}

void ClientWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  Paint(painter, event->region(), form_.Ground ? std::optional(ToQt(*form_.Ground)) : std::nullopt, form_.Image);
}

}  // namespace platform::qt
