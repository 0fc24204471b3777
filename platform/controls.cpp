#include "controls.h"

#include <algorithm>
#include <utility>

namespace platform {

void TextBox::PropertyChanged(Aspect aspect) {
  Control::PropertyChanged(aspect);
  if (aspect != Aspect::Text) return;
  Notice = std::string();
  if (Change) Change();
}

void TextBox::UserType(const std::string& text) {
  if (ReadOnly) return;
  std::string notice;
  Text = Filter ? Filter(text, notice) : text;
  // What the filter has removed is still in the widget.
  if (Text.Get() != text) Control::PropertyChanged(Aspect::Text);
  Notice = std::string();  // so that the same notice is given again
  Notice = notice;
}

void CheckBox::PropertyChanged(Aspect aspect) {
  Control::PropertyChanged(aspect);
  if (aspect == Aspect::Value && Click) Click();
}

void OptionButton::UserClick() {
  if (!Value) {
    Value = true;
  } else if (Click) {
    Click();
  }
}

std::vector<OptionButton*> OptionButton::Group() const {
  std::vector<OptionButton*> group;
  for (Control* control : Parent()->Controls()) {
    auto* sibling = dynamic_cast<OptionButton*>(control);
    if (sibling && sibling->Usable()) group.push_back(sibling);
  }
  return group;
}

bool OptionButton::TabPassesBy() const {
  const std::vector<OptionButton*> group = Group();
  return !Value &&
         std::any_of(group.begin(), group.end(), [](const OptionButton* option) { return option->Value.Get(); });
}

Control* OptionButton::GroupNeighbour(int step) {
  const std::vector<OptionButton*> group = Group();
  const auto count = static_cast<std::ptrdiff_t>(group.size());
  const auto at = std::find(group.begin(), group.end(), this) - group.begin();
  return group[static_cast<std::size_t>((at + step + count) % count)];
}

void OptionButton::PropertyChanged(Aspect aspect) {
  Control::PropertyChanged(aspect);
  if (aspect != Aspect::Value || !Value) return;
  for (Control* sibling : Parent()->Controls()) {
    auto* option = dynamic_cast<OptionButton*>(sibling);
    if (option && option != this) option->Value = false;
  }
  if (Click) Click();
}

void ComboBox::Clear() {
  list_.clear();
  ListIndex = -1;
  PropertyChanged(Aspect::List);
  Text = std::string();
}

void ComboBox::AddItem(std::string item) {
  list_.push_back(std::move(item));
  PropertyChanged(Aspect::List);
}

void ComboBox::Pick(int index) {
  if (index < 0 || index >= static_cast<int>(list_.size())) return;
  ListIndex = index;
  picking_ = true;
  Text = list_[static_cast<std::size_t>(index)];
  picking_ = false;
  if (Click) Click();
}

void ComboBox::PropertyChanged(Aspect aspect) {
  Control::PropertyChanged(aspect);
  if (aspect == Aspect::Text && Change && !picking_) Change();
}

PictureBox::PictureBox(Container* parent, std::string name, Place place) : Control(parent, std::move(name), place) {
  Drawing.OnChange = [this] { PropertyChanged(Aspect::Drawing); };
}

ToolBar::ToolBar(Container* parent, std::string name, Place place, std::vector<Picture> pictures)
    : Control(parent, std::move(name), place), pictures_(std::move(pictures)), toolTips_(pictures_.size()) {}

void ToolBar::SetToolTip(int index, std::string text) {
  toolTips_.at(static_cast<std::size_t>(index - 1)) = std::move(text);
  PropertyChanged(Aspect::ToolTip);
}

}  // namespace platform
