// Replays what was drawn on a surface, at the resolution of whatever it is drawn on now.
#pragma once

#include <QPainter>

#include "../surface.h"

namespace platform::qt {

/// Draws all steps of the surface. `unitsPerPixel` tells how many of its units make a pixel: 1, or 15 for twips.
void Replay(QPainter& painter, const Surface& surface, double unitsPerPixel);

}  // namespace platform::qt
