#include "pictures.h"

#include <QDateTime>
#include <QFileInfo>
#include <QHash>
#include <QPaintDevice>
#include <QSvgRenderer>
#include <memory>

#include "convert.h"

namespace platform::qt {
namespace {

/// A decoded picture: a drawing or an image, and the pixels made from it last.
struct Decoded {
  std::unique_ptr<QSvgRenderer> drawing;
  QImage image;
  QDateTime fileTime;
  QPixmap pixels;
  qreal pixelsRatio = 0;

  QSize Size() const { return drawing ? drawing->defaultSize() : image.size(); }
};

QString PathOf(const Picture& picture) { return picture.IsResource ? ":/" + ToQt(picture.Name) : ToQt(picture.Name); }

Decoded Decode(const Picture& picture) {
  Decoded decoded;
  const QString path = PathOf(picture);
  if (picture.IsResource) {
    decoded.drawing = std::make_unique<QSvgRenderer>(path);
  } else {
    decoded.fileTime = QFileInfo(path).lastModified();
    decoded.image.load(path);
  }
  return decoded;
}

QHash<QString, std::shared_ptr<Decoded>> kept;

Decoded& Find(const Picture& picture) {
  std::shared_ptr<Decoded>& found = kept[PathOf(picture)];
  const bool stale = found && !picture.IsResource && QFileInfo(PathOf(picture)).lastModified() != found->fileTime;
  if (!found || stale) {
    auto fresh = std::make_shared<Decoded>(Decode(picture));
    // A file that has vanished or is damaged now leaves the picture that was seen so far.
    if (!found || !fresh->Size().isEmpty()) found = std::move(fresh);
  }
  return *found;
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

void ForgetPictures() { kept.clear(); }

QSize SizeOf(const Picture& picture) { return picture.Empty() ? QSize() : Find(picture).Size(); }

QPixmap PixmapOf(const Picture& picture, qreal devicePixelRatio) {
  if (picture.Empty()) return {};
  Decoded& decoded = Find(picture);
  if (!decoded.Size().isEmpty() && decoded.pixelsRatio != devicePixelRatio) {
    decoded.pixels = Render(decoded, devicePixelRatio);
    decoded.pixelsRatio = devicePixelRatio;
  }
  return decoded.pixels;
}

void DrawScaled(QPainter& painter, const Picture& picture, QPointF at, double scale) {
  if (picture.Empty()) return;
  const Decoded& decoded = Find(picture);
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
