// A page becomes a PDF file on which every text and box stands at its place, 300 units to an inch.
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include "../../platform/qt/qt_services.h"
#include "../storage/temporary_folder.h"

namespace tests {
namespace {

struct PdfTest : TemporaryFolder {
  /// Runs a tool on the file that was written; its output beside it has this ending.
  std::filesystem::path Read(const char* tool, const QStringList& options, const char* ending) {
    const QString pdf = QString::fromStdString(Folder / "page.pdf"), out = QString::fromStdString(Folder / "out");
    EXPECT_EQ(QProcess::execute(tool, options + QStringList{pdf, out}), 0);
    return Folder / (std::string("out") + ending);
  }
};

TEST_F(PdfTest, TextsAndBoxesStandAtTheirPlaces) {
  if (QStandardPaths::findExecutable("pdftotext").isEmpty()) GTEST_SKIP() << "needs poppler-utils";
  struct Text {
    double X, Y, Size;
    const char* Word;
    double Room = 0;
  };
  const Text texts[] = {{100, 100, 20, "Abend"},
                        {1900, 305, 14, "Größe"},
                        {400, 1675, 25, "36x"},
                        {2200, 3300, 10, "Ende"},
                        {300, 600, 20, "Hohenstein", 350}};
  platform::Page sheet{.Width = 2470, .Height = 1850, .TextRight = 2440};
  platform::Surface& page = sheet.Drawing;
  page.FontName = "Arial";
  for (const Text& text : texts) {
    page.FontSize = text.Size;
    page.PrintWithin(text.X, text.Y, text.Room, text.Word);
  }
  page.FillBox(600, 900, 1200, 1000, {0, 0, 255});
  Put(Folder / "page.pdf", platform::qt::QtServices({}).PdfOf(sheet));

  const QString words = QString::fromStdString(Bytes(Read("pdftotext", {"-bbox"}, "")));
  for (const Text& text : texts) {
    const QRegularExpression line("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" [^>]*>" +
                                  QString(text.Word));
    const auto found = line.match(words);
    ASSERT_TRUE(found.hasMatch()) << text.Word;
    EXPECT_NEAR(found.captured(1).toDouble(), text.X * 72 / 300, 2) << text.Word;
    EXPECT_NEAR(found.captured(2).toDouble(), text.Y * 72 / 300, 2) << text.Word;
    if (text.Room == 0) continue;
    EXPECT_NEAR(found.captured(3).toDouble(), (text.X + text.Room) * 72 / 300, 2) << text.Word;
  }

  const QImage image(QString::fromStdString(Read("pdftoppm", {"-r", "75", "-png", "-singlefile"}, ".png")));
  const QColor blue(Qt::blue), paper(Qt::white);
  const std::tuple<int, int, QColor> points[] = {{151, 226, blue},  {298, 248, blue},  {148, 237, paper},
                                                 {302, 237, paper}, {200, 223, paper}, {200, 252, paper}};
  for (const auto& [x, y, colour] : points) EXPECT_EQ(image.pixelColor(x, y), colour) << x << "," << y;
}

}  // namespace
}  // namespace tests
