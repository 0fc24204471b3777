#include "image_file.h"

#include <QFileInfo>
#include <QImageReader>
#include <algorithm>

namespace platform::qt {
namespace {

constexpr int kLongestSide = 1280;                // pixels, twice the main window
constexpr qint64 kLargestFile = 8 * 1024 * 1024;  // bytes

}  // namespace

QImage ReadImageFile(const QString& path) {
  const QFileInfo file(path);
  if (!file.isFile() || file.size() > kLargestFile) return {};
  QImageReader reader(path, "jpeg");
  reader.setAutoDetectImageFormat(false);
  const QSize size = reader.size();
  return std::max(size.width(), size.height()) > kLongestSide ? QImage() : reader.read();
}

}  // namespace platform::qt
