// What a surface shows, step by step and readable, for tests that compare whole drawings.
#pragma once

#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

#include "../platform/surface.h"

namespace tests {

using Lines = std::vector<std::string>;

inline std::string Number(double value) { return (std::ostringstream() << value).str(); }
inline std::string At(double x, double y) { return Number(x) + "," + Number(y); }

inline std::string Hex(platform::Colour ink) {
  char text[8];
  std::snprintf(text, sizeof text, "%02X%02X%02X", ink.Red, ink.Green, ink.Blue);
  return text;
}

/// The steps in their order: `1,28 'Ada' Arial 18+ FFFF00<99` is a bold text in a room of 99 (the face is told unless
/// it is Verdana; a halo stands behind), `1,108-243,108 828282` a line, the same in brackets a filled box, in round
/// ones an outline, `17,1 imlIcons/04.svg` a picture.
inline Lines Drawn(const platform::Surface& surface) {
  Lines lines;
  for (const platform::DrawingStep& step : surface.Steps()) {
    if (const auto* text = std::get_if<platform::TextStep>(&step)) {
      const std::string face = text->Face.Name == "Verdana" ? "" : text->Face.Name + " ";
      lines.push_back(At(text->X, text->Y) + " '" + text->Text + "' " + face + Number(text->Face.Size) +
                      (text->Face.Bold ? "+ " : " ") + Hex(text->Ink) +
                      (text->Room > 0 ? "<" + Number(text->Room) : "") + (text->Halo ? " on " + Hex(*text->Halo) : ""));
    } else if (const auto* picture = std::get_if<platform::PictureStep>(&step)) {
      lines.push_back(At(picture->X, picture->Y) + " " + picture->Image.Name);
    } else if (const auto* line = std::get_if<platform::LineStep>(&step)) {
      lines.push_back(At(line->X1, line->Y1) + "-" + At(line->X2, line->Y2) + " " + Hex(line->Ink));
    } else if (const auto* box = std::get_if<platform::BoxStep>(&step)) {
      lines.push_back((box->Filled ? "[" : "(") + At(box->X1, box->Y1) + "-" + At(box->X2, box->Y2) +
                      (box->Filled ? "] " : ") ") + Hex(box->Ink));
    }
  }
  return lines;
}

}  // namespace tests
