#include "zoom.h"

#include <QPainter>
#include <QStyleOption>
#include <algorithm>
#include <iterator>

namespace platform::qt {
namespace {

double zoom = 1;

}  // namespace

double Zoom() { return zoom; }

void SetZoom(int size) { zoom = size / static_cast<double>(kNaturalSize); }

int NextSize(int size, bool larger) {
  const auto smallest = std::begin(kSizes), end = std::end(kSizes);
  const auto next = larger ? std::upper_bound(smallest, end, size) : std::lower_bound(smallest, end, size);
  if (next == (larger ? end : smallest)) return size;
  return larger ? *next : *std::prev(next);
}

/// Scroll bars have no menu: it would be in words of the toolkit, which has no catalogue for some languages.
int ZoomStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* answer) const {
  return hint == SH_ScrollBar_ContextMenu ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
}

int ZoomStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  return Zoomed(QProxyStyle::pixelMetric(metric, option, widget));
}

/// The toolkit draws the arrow of a list in one size.
void ZoomStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const {
  const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (!list || Zoom() == 1) return QProxyStyle::drawComplexControl(control, option, painter, widget);
  QStyleOptionComboBox bare = *list;
  bare.subControls &= ~SC_ComboBoxArrow;
  QProxyStyle::drawComplexControl(control, &bare, painter, widget);
  const QRectF room = subControlRect(control, option, SC_ComboBoxArrow, widget);
  const double half = 3.5 * Zoom();
  const QPointF middle = room.center();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(list->palette.buttonText());
  painter->drawPolygon(
      QPolygonF{middle - QPointF(half, half / 2), middle + QPointF(half, -half / 2), middle + QPointF(0, half / 2)});
}

/// The arrow of a list has a width of its own, which is no metric.
QRect ZoomStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const {
  QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
  if (control != CC_ComboBox) return rect;
  const int arrow = QProxyStyle::subControlRect(control, option, SC_ComboBoxArrow, widget).width();
  const int more = Zoomed(arrow) - arrow;
  if (part == SC_ComboBoxArrow) rect.setLeft(rect.left() - more);
  if (part == SC_ComboBoxEditField) rect.setRight(rect.right() - more);
  return rect;
}

}  // namespace platform::qt
