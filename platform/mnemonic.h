// Captions of menus mark an access key by an ampersand; where such a caption serves as a tooltip or a title, the mark
// goes.
#pragma once

#include <string>

namespace platform {

/// The text without its mark; "&&" is a visible ampersand. The dots that announce a dialog stay.
std::string WithoutMnemonic(const std::string& caption);

}  // namespace platform
