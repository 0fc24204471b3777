#include "qt_services.h"

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QEventLoop>
#include <QLocale>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTimer>

#include "../form.h"
#include "convert.h"
#include "pictures.h"

namespace platform::qt {

/// Also returns when the session ends.
void QtServices::WaitWhileVisible(Form& form) {
  constexpr int kLook = 20;  // milliseconds
  QEventLoop loop;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &loop, [&] {
    if (!form.Visible) loop.quit();
  });
  look.start(kLook);
  loop.exec();
}

bool QtServices::CanShow(const Picture& picture) { return Refresh(picture); }

double QtServices::Random() { return QRandomGenerator::global()->generateDouble(); }

std::filesystem::path QtServices::DocumentsFolder() {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return ToPath(QFileInfo(documents).isDir() ? documents : QDir::homePath());
}

/// Some languages write dates in letters or digits of their own, which no file of the program can hold.
std::string QtServices::Today() {
  const QDate today = QDate::currentDate();
  const QString text = QLocale::system().toString(today, QLocale::ShortFormat);
  const bool plain = std::all_of(text.begin(), text.end(), [](QChar c) { return c >= ' ' && c <= '~'; });
  return (plain ? text : today.toString(Qt::ISODate)).toStdString();
}

std::string QtServices::DecimalSeparator() { return QLocale::system().decimalPoint().toStdString(); }

void QtServices::Quit(int status) { QApplication::exit(status); }

}  // namespace platform::qt
