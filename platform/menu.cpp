#include "menu.h"

#include <stdexcept>

namespace platform {

MenuItem::MenuItem(Menu& menu, const MenuRow& row)
    : Name(row.Name),
      Level(row.Level),
      Key(row.Key),
      Caption(*this, Aspect::Caption, std::string(row.Caption)),
      menu_(menu) {}

void MenuItem::PropertyChanged(Aspect) {
  if (menu_.OnChange) menu_.OnChange(*this);
}

Menu::Menu(std::span<const MenuRow> rows) {
  for (const MenuRow& row : rows) items_.emplace_back(*this, row);
}

MenuItem& Menu::operator[](std::string_view name) {
  for (MenuItem& item : items_) {
    if (item.Name == name) return item;
  }
  throw std::out_of_range("no menu entry " + std::string(name));
}

MenuItem* Menu::Find(KeyCode code, Modifiers with) {
  for (MenuItem& item : items_) {
    if (item.Key.Code != kKeyUnknown && item.Key.Code == code && item.Key.With == with) return &item;
  }
  return nullptr;
}

}  // namespace platform
