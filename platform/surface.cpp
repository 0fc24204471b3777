#include "surface.h"

#include <utility>

namespace platform {

void Surface::Cls() {
  steps_.clear();
  if (OnChange) OnChange();
}

void Surface::Add(DrawingStep step) {
  steps_.push_back(std::move(step));
  if (OnChange) OnChange();
}

void Surface::PrintAt(double x, double y, std::string text) { PrintWithin(x, y, 0, std::move(text)); }

void Surface::PrintWithin(double x, double y, double room, std::string text) {
  Add(TextStep{x, y, std::move(text), ForeColor, {FontName, FontSize, FontBold}, room, Halo});
}

void Surface::Line(double x1, double y1, double x2, double y2, Colour ink) { Add(LineStep{x1, y1, x2, y2, ink}); }

void Surface::Box(double x1, double y1, double x2, double y2, Colour ink) { Add(BoxStep{x1, y1, x2, y2, ink, false}); }

void Surface::FillBox(double x1, double y1, double x2, double y2, Colour ink) {
  Add(BoxStep{x1, y1, x2, y2, ink, true});
}

void Surface::PaintPicture(const Picture& picture, double x, double y) {
  if (!picture.Empty()) Add(PictureStep{x, y, picture});
}

std::string Surface::Spoken() const {
  std::string all;
  double line = 0;
  for (const DrawingStep& step : steps_) {
    const auto* text = std::get_if<TextStep>(&step);
    if (!text) continue;
    if (!all.empty()) all += text->Y == line ? " " : "; ";
    all += text->Text;
    line = text->Y;
  }
  return all;
}

}  // namespace platform
