#include "pictures.h"

#include <QApplication>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <QPaintDevice>
#include <QSvgRenderer>
#include <QWidget>
#include <algorithm>
#include <filesystem>
#include <memory>

#include "convert.h"

namespace platform::qt {
namespace {

constexpr int kSeen = 1280;                        // pixels; larger than any window at 100 in 100
constexpr qint64 kMostPixels = 50'000'000;         // a decoder may keep them all at a time
constexpr qint64 kLargestFile = 32 * 1024 * 1024;  // bytes

/// A drawing or an image, and the pixels made from it last.
struct Decoded {
  std::unique_ptr<QSvgRenderer> drawing;
  QImage image;
  std::filesystem::file_time_type fileTime;
  QPixmap pixels;
  qreal pixelsRatio = 0;

  QSize Size() const { return drawing ? drawing->defaultSize() : image.size(); }
};

QString PathOf(const Picture& picture) { return picture.IsResource ? ":/" + ToQt(picture.Name) : ToQt(picture.Name); }

std::filesystem::file_time_type TimeOf(const Picture& picture) {
  std::error_code unknown;
  return std::filesystem::last_write_time(picture.Name, unknown);
}

Decoded Decode(const Picture& picture) {
  Decoded decoded;
  const QString path = PathOf(picture);
  if (picture.IsResource) {
    decoded.drawing = std::make_unique<QSvgRenderer>(path);
  } else {
    decoded.fileTime = TimeOf(picture);
    decoded.image = ReadImageFile(path);
  }
  return decoded;
}

QHash<QString, std::shared_ptr<Decoded>> kept;

/// The picture as it was decoded last, for painting. It does not look at the file again.
const std::shared_ptr<Decoded>& Find(const Picture& picture) {
  std::shared_ptr<Decoded>& found = kept[PathOf(picture)];
  if (!found) found = std::make_shared<Decoded>(Decode(picture));
  return found;
}

/// A form keeps its picture when only the file has changed.
void RepaintAll() {
  for (QWidget* widget : QApplication::allWidgets()) widget->update();
}

QPixmap Render(const Decoded& decoded, qreal ratio) {
  if (!decoded.drawing) return QPixmap::fromImage(decoded.image);
  QPixmap pixels(decoded.Size() * ratio);
  pixels.fill(Qt::transparent);
  QPainter painter(&pixels);
  decoded.drawing->render(&painter);
  painter.end();
  pixels.setDevicePixelRatio(ratio);
  return pixels;
}

}  // namespace

QImage ReadImageFile(const QString& path) {
  const QFileInfo file(path);
  if (!file.isFile() || file.size() > kLargestFile) return {};
  QImageReader reader(path, "jpeg");
  reader.setAutoDetectImageFormat(false);
  const QSize size = reader.size();
  if (static_cast<qint64>(size.width()) * size.height() > kMostPixels) return {};
  reader.setClipRect(QRect(QPoint(), size.boundedTo({kSeen, kSeen})));
  return reader.read();
}

void ForgetPictures() { kept.clear(); }

QSize SizeOf(const Picture& picture) { return picture.Empty() ? QSize() : Find(picture)->Size(); }

bool Refresh(const Picture& picture) {
  if (picture.Empty() || picture.IsResource) return !SizeOf(picture).isEmpty();
  std::shared_ptr<Decoded>& found = kept[PathOf(picture)];
  if (!found || found->fileTime != TimeOf(picture)) {
    auto fresh = std::make_shared<Decoded>(Decode(picture));
    // While a file is missing or damaged the picture stays what it was.
    const bool replaces = found && !fresh->Size().isEmpty();
    if (!found || replaces) found = std::move(fresh);
    if (replaces) RepaintAll();
  }
  return !found->Size().isEmpty();
}

QPixmap PixmapOf(const Picture& picture, qreal devicePixelRatio) {
  if (picture.Empty()) return {};
  Decoded& decoded = *Find(picture);
  if (!decoded.Size().isEmpty() && decoded.pixelsRatio != devicePixelRatio) {
    decoded.pixels = Render(decoded, devicePixelRatio);
    decoded.pixelsRatio = devicePixelRatio;
  }
  return decoded.pixels;
}

QIcon IconOf(const Picture& picture, const Picture& small) {
  constexpr int kLargestSmall = 24;  // pixels
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    const Decoded& drawing = *Find(size <= kLargestSmall ? small : picture);
    QPixmap pixels = Render(drawing, size / static_cast<qreal>(drawing.Size().width()));
    pixels.setDevicePixelRatio(1);
    icon.addPixmap(pixels);
  }
  return icon;
}

void DrawScaled(QPainter& painter, const Picture& picture, QPointF at, double scale) {
  if (picture.Empty()) return;
  const Decoded& decoded = *Find(picture);
  const QRectF place(at, QSizeF(decoded.Size()) * scale);
  if (decoded.drawing) {
    decoded.drawing->render(&painter, place);
  } else {
    painter.drawImage(place, decoded.image);
  }
}

void Draw(QPainter& painter, const Picture& picture, QPointF at) {
  painter.drawPixmap(at, PixmapOf(picture, painter.device()->devicePixelRatioF()));
}

}  // namespace platform::qt
