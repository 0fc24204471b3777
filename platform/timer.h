// A timer of a form. It ticks while it is enabled, even if the form is hidden or disabled.
#pragma once

#include <functional>
#include <string>

#include "property.h"

namespace platform {

class Form;

class Timer : public PropertyOwner {
 public:
  Timer(Form& form, std::string name, int interval);
  const std::string Name;
  const int Interval;  ///< milliseconds
  Property<bool> Enabled{*this, Aspect::Enabled, true};
  std::function<void()> Tick;

  /// Set by a view. Called when the timer is started or stopped.
  std::function<void()> OnChange;
  void PropertyChanged(Aspect) override {
    if (OnChange) OnChange();
  }
  /// The interval has passed.
  void Elapsed() {
    if (Enabled && Tick) Tick();
  }
};

}  // namespace platform
