#include "convert.h"

#include <QFontDatabase>
#include <QMap>

namespace platform::qt {
namespace {

QString FamilyFor(const std::string& name) {
  static const QMap<QString, QString> kStandIns{{"Verdana", "DejaVu Sans"},
                                                {"Arial", "Liberation Sans"},
                                                {"MS Sans Serif", "Liberation Sans"},
                                                {"Lucida Console", "DejaVu Sans Mono"}};
  static QMap<QString, QString> chosen;
  const QString wanted = ToQt(name);
  auto found = chosen.find(wanted);
  if (found == chosen.end()) {
    const bool there = QFontDatabase::hasFamily(wanted);
    found = chosen.insert(wanted, there ? wanted : kStandIns.value(wanted, wanted));
  }
  return *found;
}

}  // namespace

QString ToQt(const std::filesystem::path& path) {
  const std::u8string name = path.u8string();
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

std::filesystem::path ToPath(const QString& name) {
  const QByteArray bytes = name.toUtf8();
  return std::u8string(bytes.begin(), bytes.end());
}

QFont ToQt(const Font& font, double pixelsPerPoint, double scale) {
  QFont result(FamilyFor(font.Name));
  result.setPixelSize(qMax(1, qFloor(qRound(font.Size * pixelsPerPoint) * scale)));
  // Hinting widens small letters.
  if (scale < 1) result.setLetterSpacing(QFont::PercentageSpacing, 96);
  result.setBold(font.Bold);
  return result;
}

}  // namespace platform::qt
