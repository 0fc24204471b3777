// What is drawn: every drawing that the forms hold can be loaded at its size, and a list of steps becomes the pixels
// that it tells of, at any resolution.
#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>

#include "../../platform/qt/pictures.h"
#include "../../platform/qt/replay.h"
#include "../../windows/image_lists.h"

namespace {

using platform::Colour;
using platform::Surface;
using platform::qt::ReadImageFile;
using platform::qt::ToQt;

constexpr Colour kInk{255, 0, 0};

QImage Painted(const Surface& surface, const platform::qt::Measure& measure = platform::qt::InPixels(),
               qreal scale = 1) {
  QImage image(QSize(80, 40) * scale, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::white);
  QPainter painter(&image);
  platform::qt::Replay(painter, surface, measure);
  return image;
}

/// The pixels that are not ground, as the smallest rectangle round them.
QRect Inked(const QImage& image) {
  QRect found;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) != QColor(Qt::white)) found |= QRect(x, y, 1, 1);
    }
  }
  return found;
}

TEST(Pictures, AllDrawingsOfTheFormsLoadAtTheirSize) {
  for (const auto& list : {windows::imlW, windows::imlIcons, windows::imlToolbar, windows::imlGameType}) {
    for (int index = 1; index <= list.Count; ++index) {
      EXPECT_EQ(platform::qt::SizeOf(list.Image(index)), QSize(list.Size, list.Size)) << list.Name << " " << index;
    }
    EXPECT_TRUE(list.Image(0).Empty() && list.Image(list.Count + 1).Empty()) << list.Name;
  }
  EXPECT_EQ(platform::qt::SizeOf(windows::kArrow), QSize(32, 32));
  EXPECT_EQ(platform::qt::SizeOf(windows::kWinner), QSize(55, 55));
}

TEST(Pictures, AreAsLargeWhateverTheDotsOfTheDeviceAndNothingIfTheyCannotBeLoaded) {
  const std::pair<platform::Picture, QRect> rows[] = {
      {windows::imlIcons.Image(5), {10, 4, 24, 24}}, {{}, {}}, {{"no-such.svg"}, {}}, {{"no-such.jpg", false}, {}}};
  for (const auto& [picture, pixels] : rows) {
    QImage image = Painted({});
    image.setDotsPerMeterX(47244);  // a printer's 1200 to an inch
    image.setDotsPerMeterY(47244);
    QPainter painter(&image);
    platform::qt::DrawScaled(painter, picture, {10, 4}, 1.5);
    EXPECT_TRUE(painter.transform().isIdentity()) << picture.Name;
    EXPECT_EQ(Inked(image), pixels) << picture.Name;
    EXPECT_EQ(platform::qt::PixmapOf(picture, 1).isNull(), pixels.isNull()) << picture.Name;
  }
}

TEST(Pictures, OfAFileThatIsAPictureTheTopLeftPartIsDecoded) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("picture.jpg");
  QImage large(3000, 1500, QImage::Format_RGB32);
  large.fill(Qt::white);
  QPainter(&large).fillRect(0, 0, 1280, 1280, Qt::blue);
  large.save(path, nullptr, 100);
  const QImage part = ReadImageFile(path);
  EXPECT_EQ(part.size(), QSize(1280, 1280));
  for (const QPoint corner : {QPoint(), QPoint(1270, 1270)}) EXPECT_GT(part.pixelColor(corner).blue(), 200);
  EXPECT_LT(part.pixelColor(1270, 1270).red(), 50);
  QFile::resize(path, 100'000'000);
  EXPECT_TRUE(ReadImageFile(path).isNull());
}

TEST(Replay, BoxesReachUpToTheirSecondCornerAndAreNeverEmpty) {
  // The second is drawn from below, the third without length, the last as only hostile counts can bring about.
  const std::tuple<double, double, double, double, QRect> rows[] = {{10, 4, 30, 6, {10, 4, 20, 2}},
                                                                    {10, 17, 30, 15, {10, 15, 20, 2}},
                                                                    {12, 3, 12, 18, {12, 3, 1, 15}},
                                                                    {-5, 0, 3, 2, {0, 0, 3, 2}},
                                                                    {10, 0, 9e9, 2, {10, 0, 70, 2}}};
  for (const auto& [x1, y1, x2, y2, pixels] : rows) {
    Surface surface;
    surface.FillBox(x1, y1, x2, y2, kInk);
    EXPECT_EQ(Inked(Painted(surface)), pixels) << x1 << " to " << x2;
  }
}

TEST(Replay, TwipsAndScaledScreensKeepThePlace) {
  Surface surface;
  surface.Line(150, 60, 300, 60, kInk);
  EXPECT_EQ(Inked(Painted(surface, platform::qt::InTwips())), QRect(10, 4, 10, 1));
  EXPECT_EQ(Inked(Painted(surface, platform::qt::InTwips(), 3)), QRect(30, 12, 30, 3));
}

TEST(Replay, RulesOfEqualThicknessAreEqualWhereverTheyAre) {
  platform::qt::SetZoom(125);
  for (const int x : {3, 10, 23, 38}) {
    Surface surface;
    surface.Line(x, 0, x, 20, kInk);
    EXPECT_EQ(Inked(Painted(surface, platform::qt::InPixels(), 1.5)).width(), 2) << x;
  }
  platform::qt::SetZoom(platform::qt::kNaturalSize);
}

}  // namespace
