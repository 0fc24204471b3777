// What is drawn: every drawing that the forms hold can be loaded at its size, a list of steps becomes the pixels that
// it tells of, at any resolution, and painting only what has changed gives the same as painting all of it.
#include <QBitmap>
#include <QTemporaryDir>
#include <random>

#include "../../platform/qt/pictures.h"
#include "../../platform/qt/replay.h"
#include "../../platform/qt/screen_drawing.h"
#include "../../windows/image_lists.h"
#include "real_windows.h"

namespace {

using platform::Colour;
using platform::Surface;
using platform::qt::InTwips;
using platform::qt::ReadImageFile;
using platform::qt::ToQt;

constexpr Colour kInk{255, 0, 0};

QImage Painted(const Surface& surface, const platform::qt::Measure& measure = platform::qt::InPixels(),
               qreal scale = 1) {
  QImage image(QSize(240, 120) * scale, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::white);
  QPainter painter(&image);
  platform::qt::Replay(painter, surface, measure);
  return image;
}

/// The smallest rectangle round the pixels that are not as the last one.
QRect Inked(const QImage& image) {
  const QRgb ground = image.pixel(image.width() - 1, image.height() - 1);
  return QRegion(QBitmap::fromImage(image.createMaskFromColor(ground, Qt::MaskInColor))).boundingRect();
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
  for (const QPoint corner : {QPoint(), QPoint(1270, 1270)})
    EXPECT_GT(part.pixelColor(corner).blue() - part.pixelColor(corner).red(), 150);
  QFile::resize(path, 100'000'000);
  EXPECT_TRUE(ReadImageFile(path).isNull());
}

TEST(Replay, StepsReachUpToTheirSecondCornerAtAnyResolutionAndRulesAreEqual) {
  const platform::qt::Measure pixels = platform::qt::InPixels(), twips = InTwips();
  using Draw = decltype(&Surface::Line);
  constexpr Draw kBox = &Surface::FillBox, kRule = &Surface::Line;
  const std::tuple<Draw, std::array<double, 4>, platform::qt::Measure, double, QRect> rows[] = {
      {kBox, {10, 4, 30, 6}, pixels, 1, {10, 4, 20, 2}},
      {kBox, {10, 17, 30, 15}, pixels, 1, {10, 15, 20, 2}},  // drawn from below
      {kBox, {12, 3, 12, 18}, pixels, 1, {12, 3, 1, 15}},    // without length
      {kBox, {-5, 0, 3, 2}, pixels, 1, {0, 0, 3, 2}},        // begins outside
      {kBox, {10, 0, 9e9, 2}, pixels, 1, {10, 0, 230, 2}},   // as only hostile counts can bring about
      {kRule, {150, 60, 300, 60}, twips, 1, {10, 4, 10, 1}},
      {kRule, {150, 60, 300, 60}, twips, 3, {30, 12, 30, 3}}};
  for (const auto& [draw, at, measure, scale, inked] : rows) {
    Surface surface;
    (surface.*draw)(at[0], at[1], at[2], at[3], kInk);
    EXPECT_EQ(Inked(Painted(surface, measure, scale)), inked) << at[0] << " to " << at[2];
  }
  for (const int x : {3, 10, 23, 38}) {
    Surface surface;
    surface.Line(x, 0, x, 20, kInk);
    EXPECT_EQ(Inked(Painted(surface, {.scale = 1.25, .onScreen = true}, 1.5)).width(), 2) << "the rule at " << x;
  }
}

/// A drawing of which each step is, one time in four, another than in the one before.
void DrawByChance(std::mt19937& chance, std::vector<std::uint_fast32_t>& seeds, Surface& surface) {
  if (chance() % 4 == 0) seeds.resize(chance() % 12, chance());
  surface.Cls();
  for (std::uint_fast32_t& seed : seeds) {
    if (chance() % 4 == 0) seed = chance();
    std::mt19937 step(seed);
    const auto number = [&step](unsigned below) { return static_cast<int>(step() % below); };
    const int x = 15 * number(240) - 300, y = number(1800) - 300, to = 15 * number(120);
    surface.ForeColor = platform::Colour{static_cast<unsigned char>(number(256)), 200, 100};
    surface.FontSize = 8 + number(24);
    surface.FontBold = number(2) == 0;
    surface.FontName = number(2) == 0 ? "Arial" : "Verdana";
    switch (number(6)) {
      case 0: surface.FillBox(x, y, to, to, surface.ForeColor); break;
      case 1: surface.Box(x, y, to, to, surface.ForeColor); break;
      case 2: surface.Line(x, y, to, to, surface.ForeColor); break;
      case 3: surface.PaintPicture(windows::imlW.Image(1 + number(19)), x, y); break;
      case 4: surface.PrintWithin(x, y, 30, std::to_string(seed)); break;
      default: surface.PrintAt(x, y, number(2) == 0 ? "ÅÖjfŒ W" : std::to_string(seed)); break;
    }
  }
}

TEST(ScreenDrawing, PaintingTheChangeEqualsPaintingAll) {
  std::mt19937 chance(20);
  std::vector<std::uint_fast32_t> seeds;
  Surface surface;
  platform::qt::ScreenDrawing kept(InTwips());
  QImage grown = Painted({});
  for (int i = 0; i < 300; ++i) {
    DrawByChance(chance, seeds, surface);
    const QRegion change = kept.Follow(surface.Steps());
    QPainter painter(&grown);
    painter.setClipRegion(change);
    painter.fillRect(grown.rect(), Qt::white);
    kept.Paint(painter, change);
    painter.end();
    ASSERT_EQ(grown, Painted(surface, InTwips())) << "after drawing " << i;
  }
}

using RealWindows = tests::RealWindows;

TEST_F(RealWindows, ShowWhatWasDrawnBeforeTheyWereMade) {
  Window.F9.ShowStanding();
  EXPECT_FALSE(Inked(WidgetOf(Window.F9.picRanking).grab().toImage()).isEmpty());
}

}  // namespace
