#include "timer.h"

#include <utility>

#include "form.h"

namespace platform {

Timer::Timer(Form& form, std::string name, int interval) : Name(std::move(name)), Interval(interval) {
  form.Timers.push_back(this);
}

}  // namespace platform
