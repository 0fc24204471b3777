#include "printers.h"

#include <QApplication>
#include <QBuffer>
#include <QLibrary>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

#include "convert.h"
#include "replay.h"

namespace platform::qt {
namespace {

constexpr double kUnitsPerInch = 300;

/// What a page takes of its sheet, in its units: hardly less than the narrower of the usual papers, and down to below
/// the total.
constexpr double kPageWidth = 2470;
constexpr double kPageHeight = 1850;

/// Draws on the whole sheet, the same whatever the device's own resolution; smaller only on paper that is too small.
bool DrawPage(QPagedPaintDevice& device, const Surface& page) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  const double fitting = std::min(device.width() / kPageWidth, device.height() / kPageHeight);
  painter.scale(std::min(device.logicalDpiX() / kUnitsPerInch, fitting),
                std::min(device.logicalDpiY() / kUnitsPerInch, fitting));
  Replay(painter, page, kOnPaper);
  return painter.end();
}

/// The print system's own word on the job sent last, which the toolkit keeps to itself: a queue may refuse it.
bool LastJobWasTaken() {
  constexpr int kFirstFailure = 0x0100;
  using LastError = int (*)();
  const auto lastError = reinterpret_cast<LastError>(QLibrary("cups", 2).resolve("cupsLastError"));
  return lastError == nullptr || lastError() < kFirstFailure;
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

/// The toolkit takes another printer for one that is gone, and its paper for that of every other.
bool PrintOn(const std::string& printer, const Surface& page) {
  const QPrinterInfo info = QPrinterInfo::printerInfo(ToQt(printer));
  if (info.isNull() || info.state() == QPrinter::Error) return false;
  QPrinter device(info, QPrinter::HighResolution);
  if (const QPageSize own = info.defaultPageSize(); own.isValid()) device.setPageSize(own);
  device.setFullPage(true);
  device.setDocName(QApplication::applicationName());
  return DrawPage(device, page) && LastJobWasTaken();
}

std::string PdfBytes(const Surface& page) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  QPdfWriter device(&bytes);
  device.setPageSize(QPageSize(QLocale::system().measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter
                                                                                                  : QPageSize::A4));
  device.setPageMargins(QMarginsF());
  device.setTitle(QApplication::applicationName());
  DrawPage(device, page);
  return bytes.data().toStdString();
}

}  // namespace platform::qt
