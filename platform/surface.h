// A picture surface: the list of what was drawn since it was last cleared. Screen and printer replay the list at their
// own resolution; tests read it. Coordinates are pixels, or twips where the owner of the surface says so.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "colour.h"
#include "picture.h"

namespace platform {

/// A face by its name with its size in points, at 96 points of the screen to an inch (pixels = points * 96 / 72).
struct Font {
  std::string Name = "Verdana";
  double Size = 8.25;
  bool Bold = false;

  bool operator==(const Font&) const = default;
};

/// A text whose cell has its top left corner at the point.
struct TextStep {
  double X = 0, Y = 0;
  std::string Text;
  Colour Ink;
  Font Face;
  double Room = 0;             ///< greatest width in units; 0: no limit
  std::optional<Colour> Halo;  ///< around the letters, so that what is below does not touch them
  bool operator==(const TextStep&) const = default;
};

struct LineStep {
  double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
  Colour Ink;
  bool operator==(const LineStep&) const = default;
};

/// A box between two corners in any order. A filled one excludes the second corner and is at least one unit wide and
/// high, so that even a bar without length is seen.
struct BoxStep {
  double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
  Colour Ink;
  bool Filled = true;
  bool operator==(const BoxStep&) const = default;
};

/// A picture at its natural size with its top left corner at the point.
struct PictureStep {
  double X = 0, Y = 0;
  Picture Image;
  bool operator==(const PictureStep&) const = default;
};

using DrawingStep = std::variant<TextStep, LineStep, BoxStep, PictureStep>;

class Surface {
 public:
  Colour ForeColor = kBlack;
  std::string FontName = "Verdana";
  double FontSize = 8.25;  ///< points
  bool FontBold = false;
  std::optional<Colour> Halo;  ///< of the texts that are written; none: no halo

  /// Set by the owner of the surface. Called after each change.
  std::function<void()> OnChange;

  /// Removes everything drawn. The background picture belongs to the owner and stays.
  void Cls();
  /// Writes a text in the current colour and font. The point is the top left of its cell.
  void PrintAt(double x, double y, std::string text);
  /// The same within `room` units: a longer text is written narrower.
  void PrintWithin(double x, double y, double room, std::string text);
  void Line(double x1, double y1, double x2, double y2, Colour ink);
  void Box(double x1, double y1, double x2, double y2, Colour ink);
  void FillBox(double x1, double y1, double x2, double y2, Colour ink);
  void PaintPicture(const Picture& picture, double x, double y);

  const std::vector<DrawingStep>& Steps() const { return steps_; }
  /// All texts in the order of writing, for a screen reader, with "; " between lines.
  std::string Spoken() const;

 private:
  void Add(DrawingStep step);

  std::vector<DrawingStep> steps_;
};

}  // namespace platform
