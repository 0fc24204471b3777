#include "application.h"

#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>

#include "convert.h"
#include "fonts.h"
#include "pictures.h"
#include "spoken_roles.h"

namespace platform::qt {

Application::Application(char* programPath, const char* name, const Picture& icon)
    : arguments_{programPath, nullptr}, application_(argumentCount_, arguments_) {
  QApplication::setApplicationName(QString::fromUtf8(name));
  QApplication::setDesktopFileName("orvanbeg");
  QApplication::setStyle("Fusion");
  QApplication::setFont(qt::ToQt(Font{}));
  QApplication::setWindowIcon(QIcon(":/" + ToQt(icon.Name)));
  QApplication::setQuitOnLastWindowClosed(false);
  InstallSpokenRoles();
  if (toolkitWords_.load(QLocale::system(), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&toolkitWords_);
  }
}

Application::~Application() { ForgetPictures(); }

}  // namespace platform::qt
