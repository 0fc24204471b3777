#include "storable_field.h"

#include "../storage/code_page.h"

namespace windows {

void KeepStorable(platform::TextBox& field, const core::State& state) {
  field.Filter = [&field, &state](const std::string& typed) {
    if (typed == field.Text.Get()) return typed;  // the view repeats what it was given
    std::string refused;
    std::string text = storage::Storable(typed, &refused);
    field.Notice = std::string();
    if (!refused.empty()) field.Notice = state.Text(core::text::CharacterRefused) + " " + refused;
    return text;
  };
}

}  // namespace windows
