// Lengths of forms in twips, fifteen to a pixel.
#pragma once

namespace platform {

inline constexpr int kTwipsPerPixel = 15;

/// The nearest whole pixel.
constexpr int ToPixels(int twips) {
  const int half = twips < 0 ? -kTwipsPerPixel / 2 : kTwipsPerPixel / 2;
  return (twips + half) / kTwipsPerPixel;
}

/// Where a control lies in its container, in twips.
struct Place {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;

  bool operator==(const Place&) const = default;
  /// The same place moved by some twips: the next member of a row or column of controls.
  constexpr Place Moved(int right, int down) const { return {Left + right, Top + down, Width, Height}; }
};

/// A place in whole pixels. Edges are rounded, not sizes, so that neighbours that touch in twips touch on the screen.
struct PixelRect {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
};

constexpr PixelRect ToPixels(const Place& place) {
  const int left = ToPixels(place.Left);
  const int top = ToPixels(place.Top);
  return {left, top, ToPixels(place.Left + place.Width) - left, ToPixels(place.Top + place.Height) - top};
}

}  // namespace platform
