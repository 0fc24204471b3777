#include "storable_field.h"

#include "../storage/code_page.h"

namespace windows {

void KeepStorable(platform::TextBox& field, const core::State& state) {
  field.Filter = [&state](const std::string& typed, std::string& notice) {
    std::string refused;
    std::string text = storage::Storable(typed, &refused);
    if (!refused.empty()) notice = state.Text(core::text::CharacterRefused) + " " + refused;
    return text;
  };
}

}  // namespace windows
