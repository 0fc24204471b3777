// The forms of the program side by side: in which order they were opened, which may take input while another is modal,
// and whose a key is that still reaches the window below because the new window has not got the keyboard yet.
#pragma once

#include <functional>
#include <vector>

#include "property.h"

namespace platform {

class Form;

class Desktop {
 public:
  /// Called for each form that shows, hides or changes its lock (`Focus`: is to come to the front), after the model has
  /// taken note; a view sets it.
  std::function<void(Form&, Aspect)> OnChange;

  void Add(Form& form);
  void Remove(Form& form);
  void FormChanged(Form& form, Aspect aspect);
  const std::vector<Form*>& Forms() const { return forms_; }

  /// False while another form is modal.
  bool Lets(const Form& form) const { return !modal_ || modal_ == &form; }
  void SetModal(Form* form) { modal_ = form; }

  /// A form that is shown already comes before the others.
  void BringToFront(Form& form);
  /// The form opened last that takes input; null if none does.
  Form* Front() const;

  /// The window system gave this form the keyboard.
  void Activated(Form& form);

  /// Whose a key is that arrived at the window of `form`: its own while it takes input; else that of a form that was
  /// shown or unlocked just now and has not had the keyboard since, so that quick typing loses no key; else nobody's
  /// (null). A window that was hidden may still have the keyboard for a moment: its keys are those of the form in
  /// front.
  Form* KeyReceiver(Form& form) const;

 private:
  std::vector<Form*> forms_;
  std::vector<Form*> opened_;  ///< the visible ones, the latest last
  Form* modal_ = nullptr;
  Form* awaited_ = nullptr;
};

}  // namespace platform
