// The fonts of the program: faces by the names that the forms use, sizes in pixels whatever the screen says of itself.
#pragma once

#include <QFont>

#include "../surface.h"

namespace platform::qt {

/// The font of the screen: pixels = points * 96 / 72. DejaVu Sans and Liberation Sans stand in for faces that are
/// missing.
QFont ToQt(const Font& font);

}  // namespace platform::qt
