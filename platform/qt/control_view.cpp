#include "control_view.h"

#include <typeindex>
#include <unordered_map>

#include "convert.h"

namespace platform::qt {
namespace {

using Maker = ControlView* (*)(Control&, QWidget*);

template <typename Kind>
ControlView* MakeAs(Control& control, QWidget* parent) {
  return MakeView(static_cast<Kind&>(control), parent);
}

template <typename... Kinds>
std::unordered_map<std::type_index, Maker> MakersOf() {
  return {{typeid(Kinds), MakeAs<Kinds>}...};
}

constexpr Aspect kScaled[] = {Aspect::Place, Aspect::Font, Aspect::Caption};
constexpr Aspect kOthers[] = {Aspect::List,    Aspect::Text,   Aspect::Value,   Aspect::Picture,
                              Aspect::ToolTip, Aspect::Spoken, Aspect::Enabled, Aspect::Visible};

}  // namespace

ControlView* MakeView(Control& control, QWidget* parent) {
  static const auto kMakers =
      MakersOf<Label, CommandButton, CheckBox, OptionButton, Frame, TextBox, ComboBox, PictureBox, ToolBar>();
  return kMakers.at(typeid(control))(control, parent);
}

ControlView* ControlView::Of(QWidget* widget) {
  for (; widget; widget = widget->parentWidget()) {
    if (auto* view = dynamic_cast<ControlView*>(widget)) return view;
  }
  return nullptr;
}

void ControlView::UpdateAll() {
  widget_.setObjectName(ToQt(control_.Name));
  Rescale();
  for (const Aspect aspect : kOthers) Update(aspect);
}

void ControlView::Rescale() {
  for (const Aspect aspect : kScaled) Update(aspect);
}

void ControlView::Update(Aspect aspect) {
  switch (aspect) {
    case Aspect::Visible: widget_.setVisible(control_.Visible); break;
    case Aspect::Enabled: widget_.setEnabled(control_.Enabled); break;
    case Aspect::ToolTip: widget_.setToolTip(ToQt(control_.ToolTipText.Get())); break;
    case Aspect::Place: widget_.setGeometry(ToQt(control_.Position.Get())); break;
    case Aspect::Font: widget_.setFont(ToQt(control_.Face.Get())); break;
    case Aspect::Focus: widget_.setFocus(Qt::TabFocusReason); break;  // which selects the text of a field
    case Aspect::Spoken: widget_.setAccessibleName(ToQt(control_.SpokenName.Get())); break;
    case Aspect::Picture: widget_.update(); break;
    default: break;
  }
}

MouseButton ButtonOf(Qt::MouseButton button) {
  if (button == Qt::RightButton) return MouseButton::Right;
  return button == Qt::LeftButton ? MouseButton::Left : MouseButton::Middle;
}

}  // namespace platform::qt
