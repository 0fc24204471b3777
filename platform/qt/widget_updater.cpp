#include "widget_updater.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <algorithm>

#include "button_widget.h"
#include "convert.h"
#include "fonts.h"
#include "surface_widget.h"
#include "tool_bar_widget.h"

namespace platform::qt {
namespace {

constexpr int kMarkRoom = 20;  // pixels that the mark of a check box or option button takes

/// What the program puts into a field that the user is typing in leaves the cursor where it was; what it puts into an
/// emptied one is selected, so that the next key takes its place. Of a text that is too long for a field in which
/// nobody is, the beginning is seen.
void SetTextOf(QLineEdit& line, const QString& text) {
  if (line.text() == text) return;
  const QSignalBlocker ownChange(line);
  const bool emptied = line.text().isEmpty();
  const auto behind = line.hasFocus() ? line.text().size() - line.cursorPosition() : text.size();
  line.setText(text);
  line.setCursorPosition(static_cast<int>(std::max<qsizetype>(text.size() - behind, 0)));
  if (emptied && line.hasFocus()) line.selectAll();
}

template <typename Widget>
void SetMarkedCaption(Widget& widget, const std::string& caption) {
  widget.setText(Wrapped(ToQt(caption), widget.width() - kMarkRoom, widget.font()));
}

}  // namespace

void WidgetUpdater::Common(Control& control) {
  switch (aspect_) {
    case Aspect::Visible: widget_.setVisible(control.Visible); break;
    case Aspect::Enabled: widget_.setEnabled(control.Enabled); break;
    case Aspect::ToolTip: widget_.setToolTip(ToQt(control.ToolTipText.Get())); break;
    case Aspect::Place: widget_.setGeometry(ToQt(control.Position.Get())); break;
    case Aspect::Font: widget_.setFont(ToQt(control.Face.Get())); break;
    case Aspect::Focus: widget_.setFocus(Qt::TabFocusReason); break;  // which selects what a field holds
    case Aspect::Spoken: widget_.setAccessibleName(ToQt(control.SpokenName.Get())); break;
    case Aspect::Picture: widget_.update(); break;
    default: break;
  }
}

void WidgetUpdater::Visit(Label& label) {
  if (aspect_ == Aspect::Caption) {
    static_cast<QLabel&>(widget_).setText(ToQt(label.Caption.Get()).remove('\r'));
  }
  Common(label);
}

void WidgetUpdater::Visit(CommandButton& button) {
  if (aspect_ == Aspect::Caption) static_cast<QPushButton&>(widget_).setText(ToQt(button.Caption.Get()));
  Common(button);
}

void WidgetUpdater::Visit(TextBox& box) {
  if (aspect_ == Aspect::Text) {
    const QString text = ToQt(box.Text.Get());
    if (box.MultiLine) {
      static_cast<QPlainTextEdit&>(widget_).setPlainText(text);
    } else {
      SetTextOf(static_cast<QLineEdit&>(widget_), text);
    }
  }
  Common(box);
}

void WidgetUpdater::Visit(CheckBox& box) {
  auto& widget = static_cast<QCheckBox&>(widget_);
  if (aspect_ == Aspect::Caption) SetMarkedCaption(widget, box.Caption);
  if (aspect_ == Aspect::Value) widget.setChecked(box.Value.Get() == 1);
  Common(box);
}

void WidgetUpdater::Visit(OptionButton& button) {
  auto& widget = static_cast<QRadioButton&>(widget_);
  if (aspect_ == Aspect::Caption) SetMarkedCaption(widget, button.Caption);
  if (aspect_ == Aspect::Value) widget.setChecked(button.Value);
  Common(button);
}

void WidgetUpdater::Visit(ComboBox& box) {
  auto& widget = static_cast<QComboBox&>(widget_);
  const QSignalBlocker ownChange(widget);
  if (aspect_ == Aspect::List) {
    const QString text = widget.currentText();
    widget.clear();
    for (const std::string& item : box.List()) widget.addItem(ToQt(item));
    widget.setEditText(text);
  }
  // It is the field inside that gets the keyboard.
  if (aspect_ == Aspect::Spoken) widget.lineEdit()->setAccessibleName(ToQt(box.SpokenName.Get()));
  if (aspect_ == Aspect::Text && widget.currentText() != ToQt(box.Text.Get())) widget.setEditText(ToQt(box.Text.Get()));
  Common(box);
}

void WidgetUpdater::Visit(Frame& frame) {
  if (aspect_ == Aspect::Caption) widget_.update();
  Common(frame);
  widget_.setAccessibleName(ToQt(frame.Caption.Get()));
}

void WidgetUpdater::Visit(PictureBox& box) {
  if (aspect_ == Aspect::Drawing) static_cast<PictureWidget&>(widget_).DrawingChanged();
  Common(box);
}

void WidgetUpdater::Visit(ToolBar& bar) {
  if (aspect_ == Aspect::ToolTip) {
    static_cast<ToolBarWidget&>(widget_).UpdateToolTips();
  } else {
    Common(bar);
  }
}

}  // namespace platform::qt
