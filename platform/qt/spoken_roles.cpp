#include "spoken_roles.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "form_window.h"
#include "frame_widget.h"

namespace platform::qt {
namespace {

/// None for the toolkit's own widgets, which know their roles.
QAccessibleInterface* InterfaceOf(const QString&, QObject* object) {
  if (auto* window = dynamic_cast<FormWindow*>(object)) {
    return new QAccessibleWidget(window, window->parentWidget() ? QAccessible::Dialog : QAccessible::Window);
  }
  if (auto* frame = dynamic_cast<FrameWidget*>(object)) return new QAccessibleWidget(frame, QAccessible::Grouping);
  if (auto* picture = dynamic_cast<PictureWidget*>(object)) return new QAccessibleWidget(picture, QAccessible::Graphic);
  return nullptr;
}

}  // namespace

void InstallSpokenRoles() { QAccessible::installFactory(InterfaceOf); }

}  // namespace platform::qt
