// Records drawings as the toolkit's own drawing steps when the program is built, so that a running program needs
// nothing that reads SVG. Needs no screen. A file that is no drawing ends it with a message and status 1. Usage:
// record_artwork FOLDER NEW-FOLDER DRAWING...    below NEW-FOLDER each drawing is named as it was, and .pic
#include <QPainter>
#include <QPicture>
#include <QSvgRenderer>
#include <cstdio>
#include <filesystem>

namespace {

bool Record(const std::filesystem::path& from, const std::filesystem::path& to) {
  QSvgRenderer drawing(QString::fromStdString(from.string()));
  const QRect natural(QPoint(), drawing.defaultSize());
  QPicture recorded;
  recorded.setBoundingRect(natural);  // the drawing's size, however far its strokes reach
  QPainter painter(&recorded);
  drawing.render(&painter, natural);
  painter.end();
  std::filesystem::create_directories(to.parent_path());
  return drawing.isValid() && recorded.save(QString::fromStdString(to.string()));
}

}  // namespace

int main(int count, char** arguments) {
  for (int index = 3; index < count; ++index) {
    const std::filesystem::path from = std::filesystem::path(arguments[1]) / arguments[index];
    if (Record(from, std::filesystem::path(arguments[2]) / (std::string(arguments[index]) + ".pic"))) continue;
    std::fprintf(stderr, "record_artwork: %s cannot be recorded\n", from.c_str());
    return 1;
  }
}
