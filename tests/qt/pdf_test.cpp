// A page becomes a PDF file on which every text stands at its place, 300 units to an inch.
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include "../../platform/qt/convert.h"
#include "../../platform/qt/qt_services.h"
#include "../storage/temporary_folder.h"

namespace tests {
namespace {

using PdfTest = TemporaryFolder;

TEST_F(PdfTest, TextsStandAtTheirPlaces) {
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
  const QString pdf = platform::qt::ToQt(Folder / "page.pdf"), out = platform::qt::ToQt(Folder / "out");
  Put(Folder / "page.pdf", platform::qt::QtServices({}).PdfOf(sheet));
  ASSERT_EQ(QProcess::execute("pdftotext", {"-bbox", pdf, out}), 0);
  const QString words = QString::fromStdString(Bytes(Folder / "out"));
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
}

}  // namespace
}  // namespace tests
