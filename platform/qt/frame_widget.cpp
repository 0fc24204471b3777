#include "frame_widget.h"

#include <QPainter>

#include "convert.h"

namespace platform::qt {
namespace {

constexpr int kCaptionX = 8;    // pixels
constexpr int kCaptionAir = 3;  // on either side of the caption
constexpr double kRounding = 3;

}  // namespace

void FrameWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QString caption = ToQt(frame_.Caption.Get());
  const int line = fontMetrics().height() / 2;
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRoundedRect(QRectF(0.5, line + 0.5, width() - 1, height() - line - 1), kRounding, kRounding);
  if (caption.isEmpty()) return;
  const int room = fontMetrics().horizontalAdvance(caption) + 2 * kCaptionAir;
  painter.fillRect(QRect(kCaptionX - kCaptionAir, 0, room, fontMetrics().height()), palette().window());
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(kCaptionX, fontMetrics().ascent(), caption);
}

}  // namespace platform::qt
