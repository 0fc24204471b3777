// Captions of menus mark an access key by an ampersand and announce a dialog by three dots; where such a caption serves
// as a tooltip or a title, both go.
#pragma once

#include <string>

namespace platform {

/// The text without its mark and without dots at its end; "&&" is a visible ampersand.
std::string WithoutMnemonic(const std::string& caption);

}  // namespace platform
