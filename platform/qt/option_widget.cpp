#include "option_widget.h"

#include <QMouseEvent>

#include "../form.h"
#include "surface_widget.h"

namespace platform::qt {

void OptionWidget::mouseReleaseEvent(QMouseEvent* event) {
  const bool inside = rect().contains(event->position().toPoint());
  QRadioButton::mouseReleaseEvent(event);
  if (inside) button_.Owner()->MouseUp(button_, ButtonOf(event->button()));
}

}  // namespace platform::qt
