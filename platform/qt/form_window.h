// The window of one form: made when it is first needed, it follows the form and hands in what the window system says.
#pragma once

#include <QMenuBar>
#include <QWidget>
#include <memory>

#include "../form.h"
#include "surface_widget.h"
#include "widget_builder.h"

namespace platform::qt {

class FormWindow : public QWidget, public FormView {
 public:
  /// `owner` is the window above which a dialog stays; null for the main window.
  FormWindow(Form& form, QWidget* owner);
  ~FormWindow() override;

  Form& Model() { return form_; }
  const WidgetBuilder& Widgets() const { return widgets_; }
  /// Shows or hides the window as the form says. A window that is first shown stands at the form's place, counted from
  /// where its owner stands now.
  void FollowVisible();

  /// Takes note of what the window manager has put round the window.
  void LearnFrame();

  void ControlChanged(Control& control, Aspect aspect) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void moveEvent(QMoveEvent* event) override;

 private:
  void BuildMenuBar();
  void ShowCaption(MenuItem& item);
  void FormChanged(Aspect aspect);

  Form& form_;
  QMenuBar* menuBar_ = nullptr;
  ClientWidget* client_ = nullptr;
  WidgetBuilder widgets_;
  QHash<MenuItem*, QAction*> actions_;
  bool placed_ = false;
};

}  // namespace platform::qt
