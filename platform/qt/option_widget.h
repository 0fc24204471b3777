// A radio button that also tells of the mouse button released over it.
#pragma once

#include <QRadioButton>

#include "../controls.h"

namespace platform::qt {

class OptionWidget : public QRadioButton {
 public:
  OptionWidget(OptionButton& button, QWidget* parent) : QRadioButton(parent), button_(button) {}

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  OptionButton& button_;
};

}  // namespace platform::qt
