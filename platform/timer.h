// A timer of a form: it ticks as long as it is enabled, whether or not the form is shown or locked.
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

  /// Called when the timer is started or stopped; a view sets it.
  std::function<void()> OnChange;
  void PropertyChanged(Aspect) override {
    if (OnChange) OnChange();
  }
  /// The interval has passed; a view calls it.
  void Elapsed() {
    if (Enabled && Tick) Tick();
  }
};

}  // namespace platform
