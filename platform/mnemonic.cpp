#include "mnemonic.h"

namespace platform {

std::string WithoutMnemonic(const std::string& caption) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && i + 1 < caption.size()) ++i;
    text += caption[i];
  }
  const std::string dots = "...";
  if (text.ends_with(dots)) text.resize(text.size() - dots.size());
  return text;
}

}  // namespace platform
