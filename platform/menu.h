// The menu of a form: a tree of entries with captions, shortcuts and clicks, made from one table.
#pragma once

#include <deque>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "keys.h"
#include "property.h"

namespace platform {

/// One row of a menu's table. A row of level 0 is a menu, the rows of level 1 after it are its entries.
struct MenuRow {
  std::string_view Name;
  int Level = 1;
  std::string_view Caption;  ///< "-" separates; an ampersand marks the access key
  Shortcut Key = {};
};

class Menu;

class MenuItem : public PropertyOwner {
 public:
  MenuItem(Menu& menu, const MenuRow& row);
  const std::string Name;
  const int Level;
  const Shortcut Key;
  Property<std::string> Caption;
  std::function<void()> Click;

  bool Separates() const { return Caption.Get() == "-"; }
  void PropertyChanged(Aspect aspect) override;

 private:
  Menu& menu_;
};

class Menu {
 public:
  explicit Menu(std::span<const MenuRow> rows);
  /// Set by a view. Called with the entry whose caption has changed.
  std::function<void(MenuItem&)> OnChange;

  /// The entry with this name; throws std::out_of_range if the table has none.
  MenuItem& operator[](std::string_view name);
  std::deque<MenuItem>& Items() { return items_; }
  /// The entry with this shortcut, or null.
  MenuItem* Find(KeyCode code, Modifiers with);

 private:
  std::deque<MenuItem> items_;
};

}  // namespace platform
