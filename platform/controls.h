// The kinds of control that forms are made of. Setting a property from code has the same effects as user input: a check
// box whose value changes runs its click, a text that changes runs its change, an option button that is set clears its
// siblings.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "control.h"

namespace platform {

enum class Alignment { Left, Right, Centre };

class Label : public Control {
 public:
  using Control::Control;
  Property<std::string> Caption{*this, Aspect::Caption};
  Alignment Align = Alignment::Left;
  bool Middle = false;  ///< the text is in the middle of the height, else at the top
};

/// A button with a caption, a picture or both, the picture above the caption.
class CommandButton : public Control {
 public:
  using Control::Control;
  Property<std::string> Caption{*this, Aspect::Caption};
  Property<Picture> Image{*this, Aspect::Picture};
  bool Default = false;  ///< Enter clicks it
  bool Cancel = false;   ///< Esc clicks it
  std::function<void()> Click;

  bool TakesFocus() const override { return true; }
  void UserClick() override {
    if (Click) Click();
  }
  bool IsClickedBy(KeyCode code) const override {
    return (Default && code == kKeyEnter) || (Cancel && code == kKeyEscape);
  }
  bool TakesEnter() const override { return true; }
};

class TextBox : public Control {
 public:
  using Control::Control;
  Property<std::string> Text{*this, Aspect::Text};
  Alignment Align = Alignment::Left;
  bool ReadOnly = false;
  bool MultiLine = false;
  std::function<void()> Change;
  /// What the field has to say of what was typed last; a view shows it beside the field for a while.
  Property<std::string> Notice{*this, Aspect::Notice};
  /// Turns what the user has typed into what the field accepts, and may give a notice. Unset: everything is accepted.
  std::function<std::string(const std::string& typed, std::string& notice)> Filter;

  bool TakesFocus() const override { return true; }
  void UserType(const std::string& text) override;
  void PropertyChanged(Aspect aspect) override;
};

class CheckBox : public Control {
 public:
  using Control::Control;
  Property<std::string> Caption{*this, Aspect::Caption};
  Property<int> Value{*this, Aspect::Value};  ///< 0 unticked, 1 ticked
  std::function<void()> Click;

  bool TakesFocus() const override { return true; }
  void UserClick() override { Value = 1 - Value; }
  void PropertyChanged(Aspect aspect) override;
};

/// One of several in its container, of which at most one is set.
class OptionButton : public Control {
 public:
  using Control::Control;
  Property<std::string> Caption{*this, Aspect::Caption};
  Property<bool> Value{*this, Aspect::Value};
  std::function<void()> Click;  ///< the button has become the one that is set, or was clicked while it was

  bool TakesFocus() const override { return true; }
  void UserClick() override;
  bool TabPassesBy() const override;
  Control* GroupNeighbour(int step) override;
  void PropertyChanged(Aspect aspect) override;

 private:
  /// The usable option buttons among which only one can be set.
  std::vector<OptionButton*> Group() const;
};

/// A list with a field into which text can be typed as well.
class ComboBox : public Control {
 public:
  using Control::Control;
  Property<std::string> Text{*this, Aspect::Text};
  int ListIndex = -1;            ///< of the entry picked last, -1 for none
  std::function<void()> Change;  ///< the text has changed, but not because an entry was picked
  std::function<void()> Click;   ///< an entry was picked

  const std::vector<std::string>& List() const { return list_; }
  /// Empties the list and the text.
  void Clear();
  void AddItem(std::string item);
  /// The user picks an entry. An index outside the list does nothing.
  void Pick(int index);

  bool TakesFocus() const override { return true; }
  void UserType(const std::string& text) override { Text = text; }
  void PropertyChanged(Aspect aspect) override;

 private:
  std::vector<std::string> list_;
  bool picking_ = false;
};

class Frame : public Container {
 public:
  using Container::Container;
  Property<std::string> Caption{*this, Aspect::Caption};
};

/// A background picture, unscaled from the top left, with a drawing over it.
class PictureBox : public Control {
 public:
  PictureBox(Container* parent, std::string name, Place place);
  Property<Picture> Image{*this, Aspect::Picture};
  Surface Drawing;               ///< in pixels of the box
  int Border = 0;                ///< width of the frame inside the place, in pixels; 2 is drawn sunken
  bool Opaque = true;            ///< false: what is behind it shows through
  std::optional<Colour> Ground;  ///< colour around the picture; none: that of the desktop
};

/// The bar below the menu. A click on a picture reports its index, from 1; an entry without picture is a separator.
class ToolBar : public Control {
 public:
  ToolBar(Container* parent, std::string name, Place place, std::vector<Picture> pictures);
  std::function<void(int index)> ButtonClick;

  int Count() const { return static_cast<int>(pictures_.size()); }
  const Picture& Image(int index) const { return pictures_.at(index - 1); }
  const std::string& ToolTip(int index) const { return toolTips_.at(index - 1); }
  void SetToolTip(int index, std::string text);

 private:
  std::vector<Picture> pictures_;
  std::vector<std::string> toolTips_;
};

/// Controls of one kind and name with consecutive indexes.
template <typename T>
class ControlArray {
 public:
  ControlArray(Container* parent, const std::string& name, std::span<const Place> places, int first = 0)
      : first_(first) {
    int index = first;
    for (const Place& place : places) {
      controls_.push_back(std::make_unique<T>(parent, name + "(" + std::to_string(index++) + ")", place));
    }
  }

  /// The control with this index; throws std::out_of_range for one that does not exist.
  T& operator()(int index) const { return *controls_.at(static_cast<std::size_t>(index - first_)); }
  int First() const { return first_; }
  int Last() const { return first_ + static_cast<int>(controls_.size()) - 1; }

 private:
  int first_;
  std::vector<std::unique_ptr<T>> controls_;
};

}  // namespace platform
