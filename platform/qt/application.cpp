#include "application.h"

#include <QAccessibleWidget>
#include <QPalette>

#include "control_view.h"
#include "convert.h"
#include "form_window.h"
#include "pictures.h"
#include "zoom.h"

namespace platform::qt {
namespace {

/// Null for the toolkit's own widgets, which know their roles.
QAccessibleInterface* InterfaceOf(const QString&, QObject* object) {
  if (auto* window = dynamic_cast<FormWindow*>(object)) {
    return new QAccessibleWidget(window, window->parentWidget() ? QAccessible::Dialog : QAccessible::Window);
  }
  auto* view = dynamic_cast<ControlView*>(object);
  return view ? view->MakeSpoken() : nullptr;
}

/// Between text and ground, on light and dark desktops alike, with a contrast of about 3 to 1.
void MakeDisabledTextReadable() {
  constexpr double kOfText = 0.43;
  QPalette palette;
  const auto mix = [](int text, int ground) { return qRound(text * kOfText + ground * (1 - kOfText)); };
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    const QColor text = palette.color(QPalette::Active, role),
                 ground = palette.color(QPalette::Active, QPalette::Window);
    palette.setColor(
        QPalette::Disabled, role,
        QColor(mix(text.red(), ground.red()), mix(text.green(), ground.green()), mix(text.blue(), ground.blue())));
  }
  QApplication::setPalette(palette);
}

}  // namespace

void SetLook() {
  // From the start: a dialog that is told only later that it is not the system's knows none of its places until then.
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication::setStyle(new ZoomStyle);
  MakeDisabledTextReadable();
  QApplication::setFont(ToQt(Font{}));
  QAccessible::installFactory(InterfaceOf);
}

Application::Application(char* programPath, const ProgramIdentity& program)
    : arguments_{programPath, nullptr}, application_(argumentCount_, arguments_) {
  QApplication::setApplicationName(QString::fromUtf8(program.Name));
  QApplication::setDesktopFileName(QString::fromUtf8(program.DesktopEntry));
  QApplication::setWindowIcon(IconOf(program.Icon, program.SmallIcon));
  QApplication::setQuitOnLastWindowClosed(false);
  SetLook();
}

Application::~Application() { ForgetPictures(); }

}  // namespace platform::qt
