// From the model's plain values to Qt's.
#pragma once

#include <QColor>
#include <QPoint>
#include <QRect>
#include <QString>
#include <string>

#include "../colour.h"
#include "../units.h"

namespace platform::qt {

inline QString ToQt(const std::string& text) { return QString::fromStdString(text); }
inline QColor ToQt(Colour colour) { return {colour.Red, colour.Green, colour.Blue}; }
inline QRect ToQt(const Place& place) {
  const PixelRect rect = ToPixels(place);
  return {rect.Left, rect.Top, rect.Width, rect.Height};
}

}  // namespace platform::qt
