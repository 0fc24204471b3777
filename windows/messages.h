// What message boxes say that no text of the language covers.
#pragma once

#include <string>

namespace windows {

/// The German words with the English ones below.
inline std::string InTwoLanguages(const std::string& german, const std::string& english) {
  return german + "\n\n" + english;
}

}  // namespace windows
