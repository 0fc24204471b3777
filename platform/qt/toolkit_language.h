// What the toolkit says: the words that the program's language has for it, else those of the toolkit's own catalogue
// for that language, else English. Numbers and dates stay those of the system.
#pragma once

#include <QHash>
#include <QTranslator>

#include "../words.h"

namespace platform::qt {

class ToolkitLanguage : public QTranslator {
 public:
  /// Begins with the system's language.
  ToolkitLanguage();
  void Use(const Words& words);

  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char* disambiguation, int n) const override;

 private:
  void LoadCatalogue(const QLocale& language);
  QHash<QByteArray, QString> words_;  ///< by what the toolkit says in English
};

}  // namespace platform::qt
