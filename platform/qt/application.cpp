#include "application.h"

#include <QAccessibleWidget>
#include <QLibraryInfo>
#include <QLocale>

#include "control_view.h"
#include "convert.h"
#include "form_window.h"
#include "pictures.h"

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

}  // namespace

void SetLook() {
  QApplication::setStyle("Fusion");
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
  if (toolkitWords_.load(QLocale::system(), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&toolkitWords_);
  }
}

Application::~Application() { ForgetPictures(); }

}  // namespace platform::qt
