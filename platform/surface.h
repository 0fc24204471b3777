// A picture surface: what was drawn since its last clear, kept as a list of drawing steps. Screen and printer replay
// the list at their own resolution; tests read it. Coordinates are those of the surface (pixels, or twips where its
// owner says so); nothing is drawn here.
#pragma once

#include <functional>
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
  double Room = 0;  ///< units to the right that the text must not leave; 0: no limit
  bool operator==(const TextStep&) const = default;
};

struct LineStep {
  double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
  Colour Ink;
  bool operator==(const LineStep&) const = default;
};

/// A box between two corners in any order. A filled one reaches up to the second corner without it, and is at least
/// one unit wide and high, so that a bar without length still shows where it stands.
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
  double CurrentX = 0;
  double CurrentY = 0;

  /// Called after each change of what is drawn; the owner of the surface sets it.
  std::function<void()> OnChange;

  /// Takes away all that was drawn. The background picture is the owner's and stays.
  void Cls();
  /// Writes a text at the current position in the current colour and font.
  void Print(std::string text);
  void PrintAt(double x, double y, std::string text);
  /// Writes a text that must not reach further right than so many units: a longer one is written narrower there.
  void PrintWithin(double x, double y, double room, std::string text);
  void Line(double x1, double y1, double x2, double y2, Colour ink);
  void Box(double x1, double y1, double x2, double y2, Colour ink);
  void FillBox(double x1, double y1, double x2, double y2, Colour ink);
  void PaintPicture(const Picture& picture, double x, double y);

  const std::vector<DrawingStep>& Steps() const { return steps_; }
  /// All its texts in the order of their writing, for a screen reader; lines are told apart by ";".
  std::string Spoken() const;

 private:
  void Add(DrawingStep step);

  std::vector<DrawingStep> steps_;
};

}  // namespace platform
