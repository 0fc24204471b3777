// How a menu shows the key of an entry.
#pragma once

#include <QString>

#include "../keys.h"

namespace platform::qt {

/// "Ctrl+N", "F7", in the toolkit's own words; empty where there is no key.
QString TextOf(const Shortcut& shortcut);

}  // namespace platform::qt
