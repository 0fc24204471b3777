#include "pictures.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <QPaintDevice>
#include <QPicture>
#include <QWidget>
#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>

#include "convert.h"

namespace platform::qt {
namespace {

constexpr int kSeen = 1280;                        // pixels; larger than any window at 100 in 100
constexpr int kMostEnlarged = 3;                   // times, a larger picture of a theme
constexpr qint64 kMostPixels = 25'000'000;         // a decoder may keep them all at a time
constexpr qint64 kLargestFile = 32 * 1024 * 1024;  // bytes

/// A drawing or an image, and the pixels made from it last.
struct Decoded {
  QPicture drawing;
  QImage image;
  std::optional<QImage> large;  ///< the image at a larger size, empty if there is none; read when it is first needed
  std::filesystem::file_time_type fileTime;
  QPixmap pixels;
  qreal pixelsRatio = 0;
  double pixelsScale = 0;

  bool IsDrawing() const { return !drawing.isNull(); }
  QSize Size() const { return IsDrawing() ? drawing.boundingRect().size() : image.size(); }
};

QString PathOf(const Picture& picture) { return picture.IsResource ? ":/" + ToQt(picture.Name) : ToQt(picture.Name); }

std::filesystem::file_time_type TimeOf(const Picture& picture) {
  std::error_code unknown;
  return std::filesystem::last_write_time(ToPath(ToQt(picture.Name)), unknown);
}

Decoded Decode(const Picture& picture) {
  Decoded decoded;
  const QString path = PathOf(picture);
  if (picture.IsResource) {
    decoded.drawing.load(path);
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

/// The JPEG picture in the file, of a larger one the top left part up to `longest` pixels wide and high. `origin` is
/// what the file says it was enlarged from.
QImage ReadJpeg(const QString& path, int longest, QString* origin = nullptr) {
  const QFileInfo file(path);
  if (!file.isFile() || file.size() > kLargestFile) return {};
  QImageReader reader(path, "jpeg");
  reader.setAutoDetectImageFormat(false);
  const QSize size = reader.size();
  if (static_cast<qint64>(size.width()) * size.height() > kMostPixels) return {};
  if (origin) *origin = reader.text("EnlargedFrom");
  reader.setClipRect(QRect(QPoint(), size.boundedTo({longest, longest})));
  return reader.read();
}

/// The larger picture of the same name, unless the user has another picture in place of the one that it belongs to.
QImage ReadLarge(const QString& path) {
  const QFileInfo file(path);
  QString origin;
  const QImage large = ReadJpeg(file.path() + "/large/" + file.fileName(), kMostEnlarged * kSeen, &origin);
  QFile natural(path);
  if (large.isNull() || !natural.open(QIODevice::ReadOnly)) return {};
  const QByteArray digest = QCryptographicHash::hash(natural.readAll(), QCryptographicHash::Md5).toHex();
  return origin == digest ? large : QImage();
}

/// A drawing counts in dots of the screen, and playing it would take those of a printer into account.
void Play(QPainter& painter, const QPicture& drawing, const QRectF& place) {
  const QSizeF natural = drawing.boundingRect().size();
  const QPaintDevice& device = *painter.device();
  painter.save();
  painter.translate(place.topLeft());
  painter.scale(place.width() / natural.width() * drawing.logicalDpiX() / device.logicalDpiX(),
                place.height() / natural.height() * drawing.logicalDpiY() / device.logicalDpiY());
  painter.drawPicture(QPointF(), drawing);
  painter.restore();
}

QPixmap Render(Decoded& decoded, const QString& path, qreal ratio, double scale) {
  const QSize size = decoded.Size() * (ratio * scale);
  QPixmap pixels;
  if (decoded.IsDrawing()) {
    pixels = QPixmap(size);
    pixels.fill(Qt::transparent);
    QPainter painter(&pixels);
    Play(painter, decoded.drawing, pixels.rect());
  } else if (size == decoded.image.size()) {
    pixels = QPixmap::fromImage(decoded.image);
  } else {
    if (!decoded.large && ratio * scale > 1) decoded.large = ReadLarge(path);
    const bool isLarge = decoded.large && !decoded.large->isNull();
    const QImage& source = isLarge ? *decoded.large : decoded.image;
    pixels = QPixmap::fromImage(source.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  }
  pixels.setDevicePixelRatio(ratio);
  return pixels;
}

}  // namespace

QImage ReadImageFile(const QString& path) { return ReadJpeg(path, kSeen); }

void ForgetPictures() { kept.clear(); }

QSize SizeOf(const Picture& picture) { return Find(picture)->Size(); }

bool Refresh(const Picture& picture) {
  if (picture.IsResource) return !SizeOf(picture).isEmpty();
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

QPixmap PixmapOf(const Picture& picture, qreal devicePixelRatio, double scale) {
  Decoded& decoded = *Find(picture);
  if (decoded.pixelsRatio != devicePixelRatio || decoded.pixelsScale != scale) {
    decoded.pixels = Render(decoded, PathOf(picture), devicePixelRatio, scale);
    decoded.pixelsRatio = devicePixelRatio;
    decoded.pixelsScale = scale;
  }
  return decoded.pixels;
}

QIcon IconOf(const Picture& picture, const Picture& small) {
  constexpr int kLargestSmall = 24;  // pixels
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    const Picture& drawing = size <= kLargestSmall ? small : picture;
    icon.addPixmap(PixmapOf(drawing, 1, static_cast<double>(size) / SizeOf(drawing).width()));
  }
  return icon;
}

void DrawScaled(QPainter& painter, const Picture& picture, QPointF at, double scale) {
  const Decoded& decoded = *Find(picture);
  const QRectF place(at, QSizeF(decoded.Size()) * scale);
  if (decoded.IsDrawing()) {
    Play(painter, decoded.drawing, place);
  } else {
    painter.drawImage(place, decoded.image);
  }
}

void Draw(QPainter& painter, const Picture& picture, QPointF at, double scale) {
  painter.drawPixmap(at, PixmapOf(picture, painter.device()->devicePixelRatioF(), scale));
}

}  // namespace platform::qt
