#include "widget_builder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTextOption>

#include "../form.h"
#include "button_widget.h"
#include "convert.h"
#include "fonts.h"
#include "frame_widget.h"
#include "option_widget.h"
#include "surface_widget.h"
#include "tool_bar_widget.h"
#include "widget_updater.h"

namespace platform::qt {
namespace {

Qt::Alignment ToQt(Alignment align) {
  return align == Alignment::Centre ? Qt::AlignHCenter : align == Alignment::Right ? Qt::AlignRight : Qt::AlignLeft;
}

constexpr Aspect kInitialAspects[] = {Aspect::Font,    Aspect::Caption, Aspect::List,    Aspect::Text,
                                      Aspect::Value,   Aspect::Picture, Aspect::ToolTip, Aspect::Spoken,
                                      Aspect::Enabled, Aspect::Visible};

}  // namespace

void WidgetBuilder::Build(Container& container, QWidget* parent) {
  QWidget* const before = parent_;
  parent_ = parent;
  for (Control* control : container.Controls()) control->Accept(*this);
  parent_ = before;
}

void WidgetBuilder::Adopt(Control& control, QWidget* widget) {
  widgets_.insert(&control, widget);
  widget->setGeometry(ToQt(control.Position.Get()));
  widget->setObjectName(ToQt(control.Name));
  for (const Aspect aspect : kInitialAspects) Update(control, aspect);
}

void WidgetBuilder::Update(Control& control, Aspect aspect) {
  QWidget* widget = WidgetOf(control);
  if (!widget) return;
  WidgetUpdater updater(*widget, aspect);
  control.Accept(updater);
}

Control* WidgetBuilder::ControlOf(QWidget* widget) const {
  for (; widget; widget = widget->parentWidget()) {
    for (auto entry = widgets_.begin(); entry != widgets_.end(); ++entry) {
      if (entry.value() == widget) return const_cast<Control*>(entry.key());
    }
  }
  return nullptr;
}

void WidgetBuilder::Visit(Label& label) {
  auto* widget = new QLabel(parent_);
  widget->setAlignment(ToQt(label.Align) | Qt::AlignTop);
  widget->setWordWrap(true);
  widget->setTextFormat(Qt::PlainText);
  Adopt(label, widget);
}

void WidgetBuilder::Visit(CommandButton& button) {
  auto* widget = new ButtonWidget(button, parent_);
  QObject::connect(widget, &QPushButton::clicked, widget, [&button] { button.Owner()->Click(button); });
  Adopt(button, widget);
}

void WidgetBuilder::Visit(TextBox& box) {
  if (box.MultiLine) {
    auto* widget = new QPlainTextEdit(parent_);
    widget->setReadOnly(box.ReadOnly);
    widget->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    widget->setWordWrapMode(QTextOption::WordWrap);  // a word without an end would be broken for minutes
    return Adopt(box, widget);
  }
  auto* widget = new QLineEdit(parent_);
  widget->setReadOnly(box.ReadOnly);
  widget->setAlignment(ToQt(box.Align));
  QObject::connect(widget, &QLineEdit::textChanged, widget,
                   [&box](const QString& text) { box.Owner()->Type(box, text.toStdString()); });
  Adopt(box, widget);
}

void WidgetBuilder::Visit(CheckBox& box) {
  auto* widget = new QCheckBox(parent_);
  QObject::connect(widget, &QCheckBox::clicked, widget, [this, &box] {
    box.Owner()->Click(box);
    Update(box, Aspect::Value);  // the model may not have followed
  });
  Adopt(box, widget);
}

void WidgetBuilder::Visit(OptionButton& button) {
  auto* widget = new OptionWidget(button, parent_);
  QObject::connect(widget, &QRadioButton::clicked, widget, [this, &button] {
    button.Owner()->Click(button);
    Update(button, Aspect::Value);
  });
  Adopt(button, widget);
}

void WidgetBuilder::Visit(ComboBox& box) {
  auto* widget = new QComboBox(parent_);
  widget->setEditable(true);
  widget->setInsertPolicy(QComboBox::NoInsert);
  widget->setCompleter(nullptr);
  QObject::connect(widget, &QComboBox::activated, widget, [&box](int index) { box.Owner()->Pick(box, index); });
  QObject::connect(widget, &QComboBox::editTextChanged, widget,
                   [&box](const QString& text) { box.Owner()->Type(box, text.toStdString()); });
  Adopt(box, widget);
}

void WidgetBuilder::Visit(Frame& frame) {
  auto* widget = new FrameWidget(frame, parent_);
  Adopt(frame, widget);
  Build(frame, widget);
}

void WidgetBuilder::Visit(PictureBox& box) { Adopt(box, new PictureWidget(box, parent_)); }

void WidgetBuilder::Visit(ToolBar& bar) { Adopt(bar, new ToolBarWidget(bar, parent_)); }

}  // namespace platform::qt
