#include "form.h"

#include <algorithm>
#include <utility>

#include "desktop.h"

namespace platform {
namespace {

void CollectFocusable(const Control& container, std::vector<Control*>& found) {
  for (Control* control : container.Controls()) {
    if (control->TakesFocus() && control->Usable()) found.push_back(control);
    CollectFocusable(*control, found);
  }
}

Control* FindClickedBy(KeyCode code, const Control& container) {
  for (Control* control : container.Controls()) {
    if (control->IsClickedBy(code) && control->Usable()) return control;
    if (Control* inner = FindClickedBy(code, *control)) return inner;
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

bool Form::AcceptsInput() const { return Visible && Enabled && !desktop_.IsBlocked(*this); }

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
    MoveInGroup(code == kKeyLeft || code == kKeyUp ? -1 : 1);
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
  } else if (code == kKeySpace && PressesFocusedButtons) {
    focus->UserClick();
  }
}

bool Form::PressDialogKey(KeyCode code) {
  Control* focus = code == kKeyEnter && PressesFocusedButtons ? Focus() : nullptr;
  Control* button = focus && focus->TakesEnter() ? focus : FindClickedBy(code, *this);
  if (button) button->UserClick();
  return button != nullptr;
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
  if (Takes(control)) control.UserType(text);
}

void Form::Pick(ComboBox& combo, int index) {
  if (Takes(combo)) combo.Pick(index);
}

void Form::MouseUp(Control& control, MouseButton button) {
  if (Takes(control) && control.MouseUp) control.MouseUp(button);
}

void Form::PressCloseBox() {
  if (AcceptsInput() && Close) Close();
}

std::vector<Control*> Form::TabOrder() const {
  std::vector<Control*> order;
  CollectFocusable(*this, order);
  std::erase_if(order, [this](Control* control) { return control != focus_ && control->TabPassesBy(); });
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

/// The arrow keys set the option button they come to.
void Form::MoveInGroup(int step) {
  Control* focus = Focus();
  Control* next = focus ? focus->GroupNeighbour(step) : nullptr;
  if (!next || next == focus) return;
  SetFocus(*next);
  next->UserClick();
}

void Form::MoveFocus(int step) {
  const std::vector<Control*> order = TabOrder();
  if (order.empty()) return;
  const auto at = std::find(order.begin(), order.end(), Focus());
  const auto count = static_cast<std::ptrdiff_t>(order.size());
  const auto next = ((at - order.begin()) + step + count) % count;
  SetFocus(*order[static_cast<std::size_t>(next)]);
}

Timer::Timer(Form& form, std::string name, int interval) : Name(std::move(name)), Interval(interval) {
  form.Timers.push_back(this);
}

}  // namespace platform
