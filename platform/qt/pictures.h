// The pictures of the program: drawings that are compiled in, and image files. A picture is decoded once and kept, so
// that painting reads no file.
#pragma once

#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSize>

#include "../picture.h"
#include "zoom.h"

namespace platform::qt {

/// The JPEG picture in the file; empty if there is none. Only regular files are opened, as reading a pipe would never
/// end. Of a picture larger than any window the top left part is kept. Pictures of more than 25 megapixels or 32 MiB
/// are refused.
QImage ReadImageFile(const QString& path);

/// The natural size in pixels; empty for a picture that cannot be loaded.
QSize SizeOf(const Picture& picture);

/// Whether the picture can be shown. A file that has changed since it was decoded is decoded again, and all windows are
/// repainted. To be called before a form gets the picture of a file.
bool Refresh(const Picture& picture);

/// The picture at a scale for a screen with this many device pixels to a pixel; a null pixmap if it cannot be loaded.
QPixmap PixmapOf(const Picture& picture, qreal devicePixelRatio, double scale = Zoom());

/// Draws the picture at a scale with its top left corner at the point; nothing if it cannot be loaded.
void Draw(QPainter& painter, const Picture& picture, QPointF at, double scale = Zoom());

/// The same at the device's own resolution, drawings as vectors, without keeping it.
void DrawScaled(QPainter& painter, const Picture& picture, QPointF at, double scale);

/// An icon in the sizes of desktops. `small` is for the smallest sizes.
QIcon IconOf(const Picture& picture, const Picture& small);

/// Releases all decoded pictures, which may not outlive the application.
void ForgetPictures();

}  // namespace platform::qt
