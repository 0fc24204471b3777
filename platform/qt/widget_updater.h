// Brings one aspect of one widget into line with its control.
#pragma once

#include <QWidget>

#include "../controls.h"

namespace platform::qt {

class WidgetUpdater : public ControlVisitor {
 public:
  WidgetUpdater(QWidget& widget, Aspect aspect) : widget_(widget), aspect_(aspect) {}

  void Visit(Label& label) override;
  void Visit(CommandButton& button) override;
  void Visit(TextBox& box) override;
  void Visit(CheckBox& box) override;
  void Visit(OptionButton& button) override;
  void Visit(ComboBox& box) override;
  void Visit(Frame& frame) override;
  void Visit(PictureBox& box) override;
  void Visit(ToolBar& bar) override;

 private:
  void Common(Control& control);

  QWidget& widget_;
  Aspect aspect_;
};

}  // namespace platform::qt
