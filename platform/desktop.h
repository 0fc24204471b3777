// All forms of the program: in which order they were opened, which one is modal, and which one gets a key that arrives
// at the window below because a new window does not have the keyboard yet.
#pragma once

#include <functional>
#include <vector>

#include "property.h"

namespace platform {

class Form;

class Desktop {
 public:
  /// Set by a view. Called when a form was shown, hidden, enabled or disabled, and with `Focus` when it has to come to
  /// the front.
  std::function<void(Form&, Aspect)> OnChange;

  void Add(Form& form);
  void Remove(Form& form);
  void FormChanged(Form& form, Aspect aspect);
  const std::vector<Form*>& Forms() const { return forms_; }

  /// Whether another form is modal.
  bool IsBlocked(const Form& form) const { return modal_ && modal_ != &form; }
  void SetModal(Form* form) { modal_ = form; }

  /// Puts a form that is already shown before the others.
  void BringToFront(Form& form);
  /// The form opened last among those that take input; null if none does.
  Form* Front() const;

  /// The window system has given this form the keyboard.
  void Activated(Form& form);

  /// The form that gets a key which arrived at the window of `form`: `form` itself while it takes input, else the form
  /// that was shown or enabled last if it has not had the keyboard yet, so that quick typing loses no key, else none
  /// (null). A hidden window may keep the keyboard for a moment; its keys go to the form in front.
  Form* KeyReceiver(Form& form) const;

 private:
  std::vector<Form*> forms_;
  std::vector<Form*> opened_;  ///< the visible ones, the latest last
  Form* modal_ = nullptr;
  Form* awaited_ = nullptr;
};

}  // namespace platform
