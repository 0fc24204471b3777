// The widgets of controls. For each kind of control one class is its widget and follows its properties; what the user
// does with it goes to the routing of the form.
#pragma once

#include <QAccessible>
#include <QWidget>

#include "../form.h"

namespace platform::qt {

class ControlView {
 public:
  virtual ~ControlView() = default;

  /// The view that a widget belongs to, as a whole or as a part; null for other widgets.
  static ControlView* Of(QWidget* widget);

  Control& Model() const { return control_; }
  QWidget& Widget() const { return widget_; }
  /// Brings one aspect of the widget up to date.
  virtual void Update(Aspect aspect);
  void UpdateAll();
  /// Brings place, type and all lengths into line with the size of windows.
  virtual void Rescale();
  /// What a screen reader gets to know of the widget, owned by the caller; null: what the toolkit says.
  virtual QAccessibleInterface* MakeSpoken() { return nullptr; }

 protected:
  /// `widget` shows `control`; it is the derived object itself.
  ControlView(Control& control, QWidget& widget) : control_(control), widget_(widget) {}

 private:
  Control& control_;
  QWidget& widget_;
};

// Each makes the widget of a control in `parent`, which owns it. They are where their kinds are.
ControlView* MakeView(Label& label, QWidget* parent);
ControlView* MakeView(CommandButton& button, QWidget* parent);
ControlView* MakeView(CheckBox& box, QWidget* parent);
ControlView* MakeView(OptionButton& button, QWidget* parent);
ControlView* MakeView(Frame& frame, QWidget* parent);
ControlView* MakeView(TextBox& box, QWidget* parent);
ControlView* MakeView(ComboBox& box, QWidget* parent);
ControlView* MakeView(PictureBox& box, QWidget* parent);
ControlView* MakeView(ToolBar& bar, QWidget* parent);
/// For a control of any kind; throws std::out_of_range for a kind that is not above.
ControlView* MakeView(Control& control, QWidget* parent);

/// The caption broken into lines of at most this width in pixels. Single words are not broken.
QString Wrapped(const QString& caption, int width, const QFont& font);

/// The model's button for the toolkit's.
MouseButton ButtonOf(Qt::MouseButton button);

}  // namespace platform::qt
