#include "application.h"

#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>

#include "convert.h"
#include "fonts.h"
#include "pictures.h"
#include "spoken_roles.h"

namespace platform::qt {

namespace {

QIcon IconOf(const Application::Icon& icon) {
  constexpr int kLargestSmall = 24;  // pixels
  const QIcon drawing(":/" + ToQt(icon.Drawing.Name));
  const QIcon smallDrawing(":/" + ToQt(icon.SmallDrawing.Name));
  QIcon sizes;
  for (const int size : {16, 24, 32, 48, 64, 128}) {
    sizes.addPixmap((size <= kLargestSmall ? smallDrawing : drawing).pixmap(QSize(size, size), 1.0));
  }
  return sizes;
}

}  // namespace

Application::Application(char* programPath, const char* name, const Icon& icon)
    : arguments_{programPath, nullptr}, application_(argumentCount_, arguments_) {
  QApplication::setApplicationName(QString::fromUtf8(name));
  QApplication::setDesktopFileName("orvanbeg");
  QApplication::setStyle("Fusion");
  QApplication::setFont(qt::ToQt(Font{}));
  QApplication::setWindowIcon(IconOf(icon));
  QApplication::setQuitOnLastWindowClosed(false);
  InstallSpokenRoles();
  if (toolkitWords_.load(QLocale::system(), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&toolkitWords_);
  }
}

Application::~Application() { ForgetPictures(); }

}  // namespace platform::qt
