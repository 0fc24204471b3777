// A frame whose caption stands in its upper line, so that all the room below the caption belongs to the controls.
#pragma once

#include <QWidget>

#include "../controls.h"

namespace platform::qt {

class FrameWidget : public QWidget {
 public:
  FrameWidget(Frame& frame, QWidget* parent) : QWidget(parent), frame_(frame) {}

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Frame& frame_;
};

}  // namespace platform::qt
