// From the model's plain values to Qt's: texts, colours, places, alignments and fonts.
#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>
#include <filesystem>
#include <string>

#include "../controls.h"
#include "../surface.h"
#include "../units.h"
#include "zoom.h"

namespace platform::qt {

inline constexpr double kScreenPixelsPerPoint = 96.0 / 72.0;  // whatever resolution the screen reports

inline QString ToQt(const std::string& text) { return QString::fromStdString(text); }
/// File names in the system's own form: bytes on POSIX, whatever they are, and UTF-16 on Windows.
QString ToQt(const std::filesystem::path& path);
std::filesystem::path ToPath(const QString& name);
inline QColor ToQt(Colour colour) { return {colour.Red, colour.Green, colour.Blue}; }
/// In pixels of the screen. Edges are rounded, not sizes, so that neighbours that touch in twips touch on the screen.
inline QRect ToQt(const Place& place) {
  const auto pixel = [](int twips) { return qRound(twips * Zoom() / kTwipsPerPixel); };
  const QPoint corner(pixel(place.Left), pixel(place.Top));
  return {corner, QPoint(pixel(place.Left + place.Width) - 1, pixel(place.Top + place.Height) - 1)};
}
inline Qt::Alignment ToQt(Alignment align) {
  return align == Alignment::Centre ? Qt::AlignHCenter : align == Alignment::Right ? Qt::AlignRight : Qt::AlignLeft;
}
/// DejaVu Sans and Liberation Sans replace faces that are not installed, Arial one that Windows has in pixels only. The
/// size is scaled from whole pixels at 100 in 100 and rounded down, so that a text which fits its room there fits it at
/// any scale.
QFont ToQt(const Font& font, double pixelsPerPoint = kScreenPixelsPerPoint, double scale = Zoom());

}  // namespace platform::qt
