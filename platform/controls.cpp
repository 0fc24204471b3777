#include "controls.h"

#include <utility>

namespace platform {

void TextBox::PropertyChanged(Aspect aspect) {
  Control::PropertyChanged(aspect);
  if (aspect == Aspect::Text && Change) Change();
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
  Text = list_[static_cast<std::size_t>(index)];
  if (Click) Click();
}

void ComboBox::PropertyChanged(Aspect aspect) {
  Control::PropertyChanged(aspect);
  if (aspect == Aspect::Text && Change) Change();
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

void Label::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
void CommandButton::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
void TextBox::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
void CheckBox::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
void OptionButton::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
void ComboBox::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
void Frame::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
void PictureBox::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
void ToolBar::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

}  // namespace platform
