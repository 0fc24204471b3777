// Makes the widget of each control of a form and keeps it in step with the control's properties.
#pragma once

#include <QHash>
#include <QWidget>

#include "../controls.h"

namespace platform::qt {

class WidgetBuilder : public ControlVisitor {
 public:
  /// Makes the widgets of all controls of the container below `parent`.
  void Build(Container& container, QWidget* parent);

  /// Brings one aspect of a control's widget up to date; a control without widget is passed over.
  void Update(Control& control, Aspect aspect);

  QWidget* WidgetOf(const Control& control) const { return widgets_.value(&control); }
  /// The control that a widget (or a part of it) shows; null for others.
  Control* ControlOf(QWidget* widget) const;

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
  void Adopt(Control& control, QWidget* widget);

  QWidget* parent_ = nullptr;
  QHash<const Control*, QWidget*> widgets_;
};

}  // namespace platform::qt
