// A page becomes a PDF file on which every text stands at its place, 300 units to an inch.
#include <QProcess>
#include <QRegularExpression>

#include "../../platform/qt/convert.h"
#include "../../platform/qt/qt_services.h"
#include "../storage/temporary_folder.h"

namespace tests {
namespace {

using PdfTest = TemporaryFolder;

TEST_F(PdfTest, TextsStandAtTheirPlaces) {
  const std::tuple<double, double, double, const char*, double> texts[] = {{100, 100, 20, "Abend", 0},
                                                                           {1900, 305, 14, "Größe", 0},
                                                                           {400, 1675, 25, "36x", 0},
                                                                           {2200, 3300, 10, "Ende", 0},
                                                                           {300, 600, 20, "Hohenstein", 350}};
  platform::Page sheet{.Width = 2470, .Height = 1850, .TextRight = 2440};
  platform::Surface& page = sheet.Drawing;
  page.FontName = "Arial";
  for (const auto& [x, y, size, word, room] : texts) {
    page.FontSize = size;
    page.PrintWithin(x, y, room, word);
  }
  Put(Folder / "page.pdf", platform::qt::QtServices({}).PdfOf(sheet));
  QProcess reader;
  reader.start("pdftotext", {"-bbox", platform::qt::ToQt(Folder / "page.pdf"), "-"});
  if (!reader.waitForFinished()) GTEST_SKIP() << "needs poppler-utils";
  const QString words = QString::fromUtf8(reader.readAllStandardOutput());
  for (const auto& [x, y, size, word, room] : texts) {
    const QRegularExpression line("xMin=\"(.+)\" yMin=\"(.+)\" xMax=\"(.+)\" .*>" + QString(word));
    const auto found = line.match(words);
    const double places[] = {x, y, x + room};
    for (int i = 0; i < (room > 0 ? 3 : 2); ++i)
      EXPECT_NEAR(found.captured(i + 1).toDouble(), places[i] * 72 / 300, 2) << word;
  }
}

}  // namespace
}  // namespace tests
