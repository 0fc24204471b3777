#include "convert.h"

#include <QFontDatabase>
#include <QMap>

#include "key_codes.h"

namespace platform::qt {
namespace {

QString FamilyFor(const QString& wanted) {
  static const QMap<QString, QString> kStandIns{{"Verdana", "DejaVu Sans"},
                                                {"MS Sans Serif", "Arial"},
                                                {"Arial", "Liberation Sans"},
                                                {"Lucida Console", "DejaVu Sans Mono"}};
  static QMap<QString, QString> chosen;
  const auto found = chosen.constFind(wanted);
  if (found != chosen.constEnd()) return *found;
  const bool stays = !kStandIns.contains(wanted) || QFontDatabase::isSmoothlyScalable(wanted);
  return *chosen.insert(wanted, stays ? wanted : FamilyFor(kStandIns[wanted]));
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
  QFont result(FamilyFor(ToQt(font.Name)));
  result.setPixelSize(qMax(1, qFloor(qRound(font.Size * pixelsPerPoint) * scale)));
  // Hinting widens small letters.
  if (scale < 1) result.setLetterSpacing(QFont::PercentageSpacing, 96);
  // Otherwise each letter is as wide as whole pixels, and captions that have room elsewhere do not fit.
  if (OnWindows()) result.setHintingPreference(QFont::PreferVerticalHinting);
  result.setBold(font.Bold);
  return result;
}

}  // namespace platform::qt
