// Painting only what has changed gives the same pixels as painting all of it.
#include <gtest/gtest.h>

#include <QImage>
#include <random>

#include "../../platform/qt/replay.h"
#include "../../platform/qt/screen_drawing.h"
#include "../../windows/image_lists.h"
#include "real_windows.h"

namespace {

using platform::Surface;
using platform::qt::InTwips;
using platform::qt::ScreenDrawing;

constexpr QSize kSize(240, 120);

QImage Whole(const Surface& surface) {
  QImage image(kSize, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter painter(&image);
  platform::qt::Replay(painter, surface, InTwips());
  return image;
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
  ScreenDrawing kept(InTwips());
  QImage grown(kSize, QImage::Format_RGB32);
  grown.fill(Qt::black);
  for (int i = 0; i < 300; ++i) {
    DrawByChance(chance, seeds, surface);
    const QRegion change = kept.Follow(surface.Steps());
    QPainter painter(&grown);
    painter.setClipRegion(change);
    painter.fillRect(grown.rect(), Qt::black);
    kept.Paint(painter, change);
    painter.end();
    ASSERT_EQ(grown, Whole(surface)) << "after drawing " << i;
  }
}

using RealWindows = tests::RealWindows;

TEST_F(RealWindows, ShowWhatWasDrawnBeforeTheyWereMade) {
  Window.F9.ShowStanding();
  const QImage seen = WidgetOf(Window.F9.picRanking).grab().toImage();
  QImage ground(seen.size(), seen.format());
  ground.fill(seen.pixelColor(0, 0));
  EXPECT_NE(seen, ground);
}

}  // namespace
