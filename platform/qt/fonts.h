// The fonts of the program: faces by the names that the forms use, sizes in pixels whatever the screen says of itself.
#pragma once

#include <QFont>

#include "../surface.h"

namespace platform::qt {

inline constexpr double kScreenPixelsPerPoint = 96.0 / 72.0;

/// The font in its size on the screen or another surface. DejaVu Sans and Liberation Sans stand in for faces that are
/// missing.
QFont ToQt(const Font& font, double pixelsPerPoint = kScreenPixelsPerPoint);

}  // namespace platform::qt
