// The size of all windows: one factor where lengths of the model become pixels of the screen. The model does not know
// it.
#pragma once

#include <QProxyStyle>
#include <QtMath>

namespace platform::qt {

inline constexpr int kNaturalSize = 100;  // in 100
inline constexpr int kSizes[] = {75, 90, 100, 125, 150, 175, 200, 250, 300};

/// The factor; 1 unless set otherwise.
double Zoom();
/// In 100. Windows that exist have to be rescaled.
void SetZoom(int size);

/// A length of the toolkit's widgets in whole pixels.
inline int Zoomed(int pixels) { return qRound(pixels * Zoom()); }

/// The next of kSizes; at either end the size itself.
int NextSize(int size, bool larger);

/// The toolkit's style with marks, arrows and margins that grow with the windows.
class ZoomStyle : public QProxyStyle {
 public:
  ZoomStyle() : QProxyStyle("Fusion") {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
};

}  // namespace platform::qt
