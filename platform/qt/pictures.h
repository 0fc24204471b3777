// The pictures of the program as Qt draws them: drawings compiled into the program, and files beside it. A picture is
// decoded once and kept, so that painting touches no file.
#pragma once

#include <QPainter>
#include <QPixmap>
#include <QSize>

#include "../picture.h"

namespace platform::qt {

/// The natural size in pixels; empty for a picture that cannot be loaded.
QSize SizeOf(const Picture& picture);

/// Whether the picture can be shown. A file that has changed since it was decoded is decoded again, and painted
/// anew wherever it is seen. Called before a form is given a file's picture.
bool LookFor(const Picture& picture);

/// The picture for a screen with this many device pixels to a pixel; a null pixmap if it cannot be loaded.
QPixmap PixmapOf(const Picture& picture, qreal devicePixelRatio);

/// Draws the picture at its natural size with its top left corner at the point; nothing if it cannot be loaded.
void Draw(QPainter& painter, const Picture& picture, QPointF at);

/// The same in another size, sharp at any resolution: a drawing is drawn as such.
void DrawScaled(QPainter& painter, const Picture& picture, QPointF at, double scale);

/// Lets go of all decoded pictures; the application calls it before it ends.
void ForgetPictures();

}  // namespace platform::qt
