// The window of a form, which follows the form and reports to it what the window system says.
#pragma once

#include <QHash>
#include <QMenuBar>
#include <QWidget>
#include <memory>

#include "../form.h"
#include "control_view.h"
#include "screen_drawing.h"

namespace platform::qt {

/// The client area of a form.
class ClientWidget : public DrawnWidget {
 public:
  ClientWidget(Form& form, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Form& form_;
};

class FormWindow : public QWidget, public FormView {
 public:
  /// A dialog stays above its owner; the main window has none (null).
  FormWindow(Form& form, QWidget* owner);
  ~FormWindow() override;

  Form& Model() { return form_; }
  /// The widget of a control of this form; null for other controls.
  QWidget* WidgetOf(const Control& control) const;
  /// Shows or hides the window as the form says. The first time it is shown it is placed where the form is, counted
  /// from where its owner is now.
  void FollowVisible();

  /// Takes the size of windows that is set now.
  void Rescale();

  /// Passes the size of the window manager's frame on to the form.
  void LearnFrame();

  void ControlChanged(Control& control, Aspect aspect) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildMenuBar();
  void FitClient();
  void KeepOnScreen();
  void MakeViews(const Control& container, QWidget* parent);
  void ShowCaption(MenuItem& item);
  void FormChanged(Aspect aspect);

  Form& form_;
  QMenuBar* menuBar_ = nullptr;
  ClientWidget* client_ = nullptr;
  QHash<const Control*, ControlView*> views_;
  QHash<MenuItem*, QAction*> actions_;
  bool placed_ = false;
};

}  // namespace platform::qt
