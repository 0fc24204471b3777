#include "form.h"

#include <algorithm>
#include <utility>

#include "desktop.h"

namespace platform {
namespace {

void CollectFocusable(const Container& container, std::vector<Control*>& found) {
  for (Control* control : container.Controls()) {
    if (control->TakesFocus() && control->Usable()) found.push_back(control);
    if (auto* inner = dynamic_cast<Container*>(control)) CollectFocusable(*inner, found);
  }
}

/// The usable option buttons among which only one can be set.
std::vector<OptionButton*> GroupOf(const OptionButton& option) {
  std::vector<OptionButton*> group;
  for (Control* control : option.Parent()->Controls()) {
    auto* sibling = dynamic_cast<OptionButton*>(control);
    if (sibling && sibling->Usable()) group.push_back(sibling);
  }
  return group;
}

/// Of a group Tab stops at the button that is set; arrows reach the others.
bool AnotherIsSet(const Control& control) {
  const auto* option = dynamic_cast<const OptionButton*>(&control);
  if (!option || option->Value) return false;
  const std::vector<OptionButton*> group = GroupOf(*option);
  return std::any_of(group.begin(), group.end(), [](const OptionButton* sibling) { return sibling->Value.Get(); });
}

using ButtonRole = bool CommandButton::*;

CommandButton* FindButton(const Container& container, ButtonRole role) {
  for (Control* control : container.Controls()) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button && button->*role && button->Usable()) return button;
    auto* inner = dynamic_cast<Container*>(control);
    if (inner && (button = FindButton(*inner, role))) return button;
  }
  return nullptr;
}

}  // namespace

Form::Form(Desktop& desktop, std::string name, int clientWidth, int clientHeight, CloseBox closeBox)
    : Container(nullptr, std::move(name), {0, 0, clientWidth, clientHeight}), HasCloseBox(closeBox), desktop_(desktop) {
  Visible = false;
  Drawing.OnChange = [this] { PropertyChanged(Aspect::Drawing); };
  desktop_.Add(*this);
}

Form::~Form() { desktop_.Remove(*this); }

void Form::MoveTo(int left, int top) {
  const Place place = Position;
  Position = Place{left, top, place.Width, place.Height};
}

void Form::Show() {
  if (Visible) {
    desktop_.BringToFront(*this);
  } else {
    Visible = true;
  }
}

bool Form::AcceptsInput() const { return Visible && Enabled && desktop_.Lets(*this); }

void Form::PropertyChanged(Aspect aspect) {
  if (aspect == Aspect::Visible || aspect == Aspect::Enabled) {
    ForgetKeys();
    desktop_.FormChanged(*this, aspect);
  }
  if (View) View->ControlChanged(*this, aspect);
}

void Form::KeyPress(KeyCode code, Modifiers with) {
  if (!AcceptsInput() || std::find(held_.begin(), held_.end(), code) != held_.end()) return;
  held_.push_back(code);
  MenuItem* item = MenuBar ? MenuBar->Find(code, with) : nullptr;
  if (item) {
    ClickMenu(*item);
  } else if (code == kKeyTab && !with.Control && !with.Alt) {
    MoveFocus(with.Shift ? -1 : 1);
  } else if (code >= kKeyLeft && code <= kKeyDown) {
    MoveOption(code == kKeyLeft || code == kKeyUp ? -1 : 1);
  }
}

void Form::KeyRelease(KeyCode code, Modifiers with) {
  const auto found = std::find(held_.begin(), held_.end(), code);
  if (found == held_.end() || !AcceptsInput()) return;
  const std::vector<KeyCode> later(found + 1, held_.end());
  held_.erase(found);
  RouteRelease(code, with);
  Form* next = AcceptsInput() ? nullptr : desktop_.KeyReceiver(*this);
  if (next) next->held_.insert(next->held_.end(), later.begin(), later.end());
}

void Form::RouteRelease(KeyCode code, Modifiers with) {
  if (PressDialogKey(code)) return;
  if (KeyPreview && KeyUp) KeyUp(code, with);
  Control* focus = Focus();
  if (!focus || !AcceptsInput()) return;
  if (focus->KeyUp) {
    focus->KeyUp(code, with);
  } else if (code == kKeySpace && !KeyPreview) {
    focus->UserClick();
  }
}

bool Form::PressDialogKey(KeyCode code) {
  CommandButton* button = ButtonFor(code);
  if (button) button->UserClick();
  return button != nullptr;
}

CommandButton* Form::ButtonFor(KeyCode code) const {
  if (code == kKeyEscape) return FindButton(*this, &CommandButton::Cancel);
  if (code != kKeyEnter) return nullptr;
  auto* focused = KeyPreview ? nullptr : dynamic_cast<CommandButton*>(Focus());
  return focused ? focused : FindButton(*this, &CommandButton::Default);
}

void Form::Click(Control& control) {
  if (!Takes(control)) return;
  if (control.TakesFocus()) SetFocus(control);
  control.UserClick();
}

void Form::ClickMenu(MenuItem& item) {
  if (AcceptsInput() && item.Click) item.Click();
}

void Form::ClickTool(ToolBar& bar, int index) {
  if (Takes(bar) && bar.ButtonClick) bar.ButtonClick(index);
}

void Form::Type(Control& control, const std::string& text) {
  if (!Takes(control)) return;
  if (auto* box = dynamic_cast<TextBox*>(&control); box && !box->ReadOnly) {
    box->Text = box->Filter ? box->Filter(text) : text;
    // What the filter took away is still in the widget.
    if (View && box->Text.Get() != text) View->ControlChanged(control, Aspect::Text);
  }
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) combo->Text = text;
}

void Form::Pick(ComboBox& combo, int index) {
  if (Takes(combo)) combo.Pick(index);
}

void Form::MouseUp(Control& control, MouseButton button) {
  if (!Takes(control)) return;
  if (auto* box = dynamic_cast<PictureBox*>(&control); box && box->MouseUp) box->MouseUp(button);
  if (auto* option = dynamic_cast<OptionButton*>(&control); option && option->MouseUp) option->MouseUp(button);
}

void Form::PressCloseBox() {
  if (AcceptsInput() && Close) Close();
}

std::vector<Control*> Form::TabOrder() const {
  std::vector<Control*> order;
  CollectFocusable(*this, order);
  std::erase_if(order, [this](Control* control) { return control != focus_ && AnotherIsSet(*control); });
  return order;
}

Control* Form::Focus() const {
  if (focus_ && focus_->Usable()) return focus_;
  const std::vector<Control*> order = TabOrder();
  return order.empty() ? nullptr : order.front();
}

void Form::SetFocus(Control& control) {
  if (focus_ == &control) return;
  focus_ = &control;
  if (View) View->ControlChanged(control, Aspect::Focus);
}

/// Arrows walk along the option buttons of a group and set the one they come to.
void Form::MoveOption(int step) {
  auto* focused = dynamic_cast<OptionButton*>(Focus());
  if (!focused) return;
  const std::vector<OptionButton*> group = GroupOf(*focused);
  const auto at = std::find(group.begin(), group.end(), focused) - group.begin();
  const auto count = static_cast<std::ptrdiff_t>(group.size());
  OptionButton& next = *group[static_cast<std::size_t>((at + step + count) % count)];
  SetFocus(next);
  next.Value = true;
}

void Form::MoveFocus(int step) {
  const std::vector<Control*> order = TabOrder();
  if (order.empty()) return;
  const auto at = std::find(order.begin(), order.end(), Focus());
  const auto count = static_cast<std::ptrdiff_t>(order.size());
  const auto next = ((at - order.begin()) + step + count) % count;
  SetFocus(*order[static_cast<std::size_t>(next)]);
}

}  // namespace platform
