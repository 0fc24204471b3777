#include "themes.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace mainwindow {
namespace {

using platform::Picture;

constexpr std::string_view kPrefixes[] = {"basis", "bw", "flo"};  // of the themes 1 to 3

bool IsTheme(int theme) { return theme >= 1 && theme <= static_cast<int>(std::size(kPrefixes)); }

Picture FileOf(int theme, const std::string& part) {
  return {"img/" + std::string(kPrefixes[theme - 1]) + part + ".jpg", false};
}

}  // namespace

bool LoadThemeImages(int theme, core::Settings& settings, platform::Services& services, F1& f1) {
  if (!IsTheme(theme)) return true;
  settings.HG = static_cast<std::int16_t>(theme);
  using Target = std::reference_wrapper<platform::Property<Picture>>;
  // The third panel starts with its leader's picture until the panels are drawn.
  const std::pair<const char*, Target> parts[] = {
      {"_back", f1.Image},        {"_picw", f1.picW.Image},        {"_s1", f1.picSP(0).Image},
      {"_s2", f1.picSP(1).Image}, {"_s3_high", f1.picSP(2).Image}, {"_s4", f1.picSP(3).Image},
      {"_s5", f1.picSP(4).Image}, {"_s6", f1.picSP(5).Image},      {"_last6", f1.picInfoLine.Image},
  };
  for (const auto& [part, target] : parts) {
    const Picture picture = FileOf(theme, part);
    if (!services.CanShow(picture)) return false;
    target.get() = picture;
  }
  return true;
}

Picture PanelPicture(int theme, int seat, bool leads) {
  if (!IsTheme(theme)) return {};
  return FileOf(theme, "_s" + std::to_string(seat) + (leads ? "_high" : ""));
}

}  // namespace mainwindow
