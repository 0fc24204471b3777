#include "screen_drawing.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace platform::qt {
namespace {

constexpr int kMostParts = 24;  // of a region; with more, painting what is between them costs less
constexpr double kAround = 2;   // pixels that soft edges and accents may reach beyond

/// Whether all letters are between the ascent and the descent of the font.
bool IsPlain(const std::string& text) {
  return std::all_of(text.begin(), text.end(), [](unsigned char byte) { return byte >= ' ' && byte < 0x80; });
}

}  // namespace

void ScreenDrawing::SetMeasure(const Measure& measure) {
  measure_ = measure;
  for (ShownStep& shown : shown_) shown = Shown(shown.Step);
}

QRegion ScreenDrawing::Follow(std::span<const DrawingStep> now) {
  QRegion change;
  for (std::size_t i = 0; i < std::max(shown_.size(), now.size()); ++i) {
    if (i < shown_.size() && i < now.size() && shown_[i].Step == now[i]) continue;
    if (i < shown_.size()) change += shown_[i].Extent;
    if (i >= now.size()) continue;
    if (i >= shown_.size()) shown_.emplace_back();
    shown_[i] = Shown(now[i]);
    change += shown_[i].Extent;
  }
  shown_.resize(now.size());
  return change.rectCount() > kMostParts ? QRegion(change.boundingRect()) : change;
}

void ScreenDrawing::Paint(QPainter& painter, const QRegion& within) const {
  StepPainter paint(painter, measure_);
  const double ratio = painter.device()->devicePixelRatioF();  // letters are on whole pixels of the screen
  for (const ShownStep& shown : shown_) {
    if (!within.intersects(shown.Extent)) continue;
    const auto* text = std::get_if<TextStep>(&shown.Step);
    if (text && text->Room == 0) {
      paint.UseFace(*text);
      const QPointF given = measure_.At(text->X, text->Y);
      const QPointF at(given.x(), std::round(given.y() * ratio) / ratio);
      paint.DrawHalo(*text, at + QPointF(0, painter.fontMetrics().ascent()));
      painter.drawStaticText(at, shown.Letters);
    } else {
      std::visit(paint, shown.Step);
    }
  }
}

ScreenDrawing::ShownStep ScreenDrawing::Shown(const DrawingStep& step) const {
  const auto* text = std::get_if<TextStep>(&step);
  ShownStep shown{step, text ? LaidOut(*text) : QStaticText(), {}};
  const double around = text && IsPlain(text->Text) ? 0 : kAround;
  shown.Extent = ExtentOf(step, shown.Letters).adjusted(-around, -around, around, around).toAlignedRect();
  return shown;
}

QStaticText ScreenDrawing::LaidOut(const TextStep& step) const {
  QStaticText letters(ToQt(step.Text));
  letters.setTextFormat(Qt::PlainText);
  letters.prepare({}, measure_.FaceOf(step));
  return letters;
}

QRectF ScreenDrawing::ExtentOf(const DrawingStep& step, const QStaticText& letters) const {
  if (const auto* text = std::get_if<TextStep>(&step)) {
    const double halo = text->Halo ? measure_.HaloWidth() : 0;
    const double aside = text->Face.Size / 2 * measure_.scale + halo;  // letters may lean out of their cells
    return QRectF(measure_.At(text->X, text->Y), letters.size()).adjusted(-aside, -halo, aside, halo);
  }
  if (const auto* line = std::get_if<LineStep>(&step)) return measure_.Between(line->X1, line->Y1, line->X2, line->Y2);
  if (const auto* box = std::get_if<BoxStep>(&step)) return measure_.Between(box->X1, box->Y1, box->X2, box->Y2);
  const auto& picture = std::get<PictureStep>(step);
  return {measure_.At(picture.X, picture.Y), QSizeF(SizeOf(picture.Image)) * measure_.scale};
}

DrawnWidget::DrawnWidget(const Surface& drawing, Measure (*measure)(), QWidget* parent)
    : QWidget(parent), drawing_(drawing), measure_(measure), shown_(measure()) {
  shown_.Follow(drawing.Steps());  // which may be there before the window
}

void DrawnWidget::DrawingChanged() {
  if (std::exchange(due_, true)) return;
  const auto showChange = [this] { update(TakeChange()); };
  QMetaObject::invokeMethod(this, showChange, Qt::QueuedConnection);
}

void DrawnWidget::RescaleDrawing() {
  shown_.SetMeasure(measure_());
  update();
}

QRegion DrawnWidget::TakeChange() {
  due_ = false;
  return shown_.Follow(drawing_.Steps()).translated(contentsRect().topLeft());
}

void DrawnWidget::Paint(QPainter& painter, const QRegion& region, const std::optional<QColor>& ground,
                        const Picture& picture, QPoint at) {
  // One rectangle after the other: into a rectangle pixels are copied, into any other shape they are blended.
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

}  // namespace platform::qt
