// Captions mark an access key by an ampersand; where a caption serves as a tooltip or a title, the mark goes.
#pragma once

#include <QString>
#include <string>

namespace platform::qt {

/// The text without its mark; "&&" is a visible ampersand. The dots that announce a dialog stay.
QString WithoutMnemonic(const std::string& caption);

}  // namespace platform::qt
