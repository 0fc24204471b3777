#include "mnemonic.h"

namespace platform::qt {

QString WithoutMnemonic(const std::string& caption) {
  QString text;
  const QString marked = QString::fromStdString(caption);
  for (int i = 0; i < marked.size(); ++i) {
    if (marked[i] == '&' && i + 1 < marked.size()) ++i;
    text += marked[i];
  }
  return text;
}

}  // namespace platform::qt
