// From the model's plain values to Qt's: texts, colours, places, alignments and fonts.
#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>
#include <string>

#include "../controls.h"
#include "../surface.h"
#include "../units.h"

namespace platform::qt {

inline constexpr double kScreenPixelsPerPoint = 96.0 / 72.0;  // whatever resolution the screen reports

inline QString ToQt(const std::string& text) { return QString::fromStdString(text); }
inline QColor ToQt(Colour colour) { return {colour.Red, colour.Green, colour.Blue}; }
inline QRect ToQt(const Place& place) {
  const PixelRect rect = ToPixels(place);
  return {rect.Left, rect.Top, rect.Width, rect.Height};
}
inline Qt::Alignment ToQt(Alignment align) {
  return align == Alignment::Centre ? Qt::AlignHCenter : align == Alignment::Right ? Qt::AlignRight : Qt::AlignLeft;
}
/// DejaVu Sans and Liberation Sans replace faces that are not installed.
QFont ToQt(const Font& font, double pixelsPerPoint = kScreenPixelsPerPoint);

}  // namespace platform::qt
