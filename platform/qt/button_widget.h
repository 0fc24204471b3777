// A push button whose picture stands above its caption, both in the middle.
#pragma once

#include <QPushButton>

#include "../controls.h"

namespace platform::qt {

class ButtonWidget : public QPushButton {
 public:
  ButtonWidget(CommandButton& button, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  CommandButton& button_;
};

/// The caption broken into lines that fit this width (pixels) in this font; a single word is never broken.
QString Wrapped(const QString& caption, int width, const QFont& font);

}  // namespace platform::qt
