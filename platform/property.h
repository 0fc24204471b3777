// A property of a control: a value that reports its changes to its owner. Assigning an equal value is no change.
#pragma once

#include <utility>

namespace platform {

/// What has changed about a control.
enum class Aspect {
  Visible,
  Enabled,
  Caption,
  Text,
  Value,
  Picture,
  Drawing,
  ToolTip,
  Place,
  List,
  Focus,
  Font,
  Title,
  Spoken,
  Notice
};

/// Is told when one of its properties has changed.
class PropertyOwner {
 public:
  virtual ~PropertyOwner() = default;
  virtual void PropertyChanged(Aspect aspect) = 0;
};

template <typename T>
class Property {
 public:
  Property(PropertyOwner& owner, Aspect aspect, T initial = {})
      : owner_(owner), aspect_(aspect), value_(std::move(initial)) {}
  Property(const Property&) = delete;

  Property& operator=(T value) {
    if (value == value_) return *this;
    value_ = std::move(value);
    owner_.PropertyChanged(aspect_);
    return *this;
  }
  Property& operator=(const Property& other) { return *this = T(other.value_); }

  const T& Get() const { return value_; }
  operator const T&() const { return value_; }  // NOLINT(google-explicit-constructor): reads like the value
  friend bool operator==(const Property& property, const T& value) { return property.value_ == value; }

 private:
  PropertyOwner& owner_;
  Aspect aspect_;
  T value_;
};

}  // namespace platform
