#include "qt_services.h"

#include <QApplication>
#include <QDate>
#include <QLocale>
#include <QMessageBox>
#include <chrono>

#include "convert.h"
#include "pictures.h"

namespace platform::qt {

QtServices::QtServices()
    : generator_(static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count())) {}

Answer QtServices::MessageBox(const std::string& text, const std::string& title, Buttons buttons, Icon icon) {
  QMessageBox box(QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQt(text));
  box.setWindowTitle(title.empty() ? QApplication::applicationName() : ToQt(title));
  if (icon == Icon::Critical) box.setIcon(QMessageBox::Critical);
  if (buttons == Buttons::YesNo) {
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? Answer::Yes : Answer::No;
  }
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
  return Answer::Ok;
}

bool QtServices::CanShow(const Picture& picture) { return !SizeOf(picture).isEmpty(); }

double QtServices::Random() {
  // generate_canonical may round up to 1; a face beyond the last must not come of it.
  constexpr double kBits = 9007199254740992.0;  // 2^53
  return static_cast<double>(generator_() >> 11) / kBits;
}

std::filesystem::path QtServices::ProgramFolder() { return QApplication::applicationDirPath().toStdString(); }

std::string QtServices::Today() {
  return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
}

std::string QtServices::DecimalSeparator() { return QLocale::system().decimalPoint().toStdString(); }

std::string QtServices::SystemLanguage() { return QLocale::system().name().left(2).toStdString(); }

void QtServices::Quit(int status) { QApplication::exit(status); }

}  // namespace platform::qt
