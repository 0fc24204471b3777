// Printing: the installed printers, and a page on one of them or in a PDF file, drawn like the screen.
#include <QApplication>
#include <QBuffer>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

#include "convert.h"
#include "qt_services.h"
#include "replay.h"

namespace platform::qt {
namespace {

/// Draws on the whole sheet, with the same result at every resolution of the device.
bool DrawPage(QPagedPaintDevice& device, const Page& page) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  const double fitting = std::min(device.width() / page.Width, device.height() / page.Height);
  painter.scale(std::min(device.logicalDpiX() / page.UnitsPerInch, fitting),
                std::min(device.logicalDpiY() / page.UnitsPerInch, fitting));
  const Measure onPaper{.pixelsPerPoint = page.UnitsPerInch / 72,
                        .lineWidth = page.UnitsPerInch / 100,
                        .rightEdge = page.TextRight,
                        .pictureScale = page.UnitsPerInch / 96};
  Replay(painter, page.Drawing, onPaper);
  return painter.end();
}

}  // namespace

std::vector<std::string> QtServices::PrinterNames() {
  std::vector<std::string> names;
  const QString first = QPrinterInfo::defaultPrinterName();
  for (const QString& name : QPrinterInfo::availablePrinterNames()) {
    names.insert(name == first ? names.begin() : names.end(), name.toStdString());
  }
  return names;
}

/// The toolkit would print on another printer if this one is gone, and takes the default printer's paper for all.
bool QtServices::Print(const std::string& printer, const Page& page) {
  const QPrinterInfo info = QPrinterInfo::printerInfo(ToQt(printer));
  if (info.isNull() || info.state() == QPrinter::Error) return false;
  QPrinter device(info, QPrinter::HighResolution);
  if (const QPageSize own = info.defaultPageSize(); own.isValid()) device.setPageSize(own);
  device.setPageOrientation(page.Landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
  device.setFullPage(true);
  device.setDocName(QApplication::applicationName());
  return DrawPage(device, page) && LastJobWasTaken();
}

/// On the usual paper of the system's country.
std::string QtServices::PdfOf(const Page& page) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  QPdfWriter device(&bytes);
  device.setPageSize(QPageSize(QLocale::system().measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter
                                                                                                  : QPageSize::A4));
  device.setPageOrientation(page.Landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
  device.setPageMargins(QMarginsF());
  device.setTitle(QApplication::applicationName());
  DrawPage(device, page);
  return bytes.data().toStdString();
}

}  // namespace platform::qt
