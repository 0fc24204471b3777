#include "printers.h"

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>

#include "convert.h"
#include "replay.h"

namespace platform::qt {
namespace {

constexpr double kUnitsPerInch = 300;

/// Draws on the whole sheet, whatever the device's own resolution.
bool DrawPage(QPagedPaintDevice& device, const Surface& page) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  painter.scale(device.logicalDpiX() / kUnitsPerInch, device.logicalDpiY() / kUnitsPerInch);
  Replay(painter, page, kOnPaper);
  return painter.end();
}

}  // namespace

std::vector<std::string> InstalledPrinters() {
  std::vector<std::string> names;
  const QString first = QPrinterInfo::defaultPrinterName();
  for (const QString& name : QPrinterInfo::availablePrinterNames()) {
    names.insert(name == first ? names.begin() : names.end(), name.toStdString());
  }
  return names;
}

bool PrintOn(const std::string& printer, const Surface& page) {
  QPrinter device(QPrinter::HighResolution);
  device.setPrinterName(ToQt(printer));
  if (!device.isValid()) return false;
  device.setFullPage(true);
  device.setDocName(QApplication::applicationName());
  return DrawPage(device, page) && device.printerState() != QPrinter::Error;
}

bool WritePdf(const std::filesystem::path& file, const Surface& page) {
  QFile target(ToQt(file.string()));
  if (!target.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
  QPdfWriter device(&target);
  device.setPageSize(QPageSize(QLocale::system().measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter
                                                                                                  : QPageSize::A4));
  device.setPageMargins(QMarginsF());
  device.setTitle(QApplication::applicationName());
  return DrawPage(device, page) && target.flush() && target.error() == QFileDevice::NoError;
}

}  // namespace platform::qt
