// Reads the picture files that stand beside the program and that anybody may have put there.
#pragma once

#include <QImage>
#include <QString>

namespace platform::qt {

/// The JPEG picture in the file; empty if there is none. What is no plain file is not opened, as a pipe would never
/// answer, and a picture far larger than any window is not decoded.
QImage ReadImageFile(const QString& path);

}  // namespace platform::qt
