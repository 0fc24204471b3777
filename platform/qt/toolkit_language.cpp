#include "toolkit_language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <algorithm>

#include "../mnemonic.h"
#include "convert.h"

namespace platform::qt {
namespace {

/// A word stands for each of these. Where it says something of a file, "%1" is the place of the file's name. An English
/// text without access key takes none.
constexpr std::pair<const char*, Word> kSaid[] = {
    {"&Yes", Word::Yes},
    {"&No", Word::No},
    {"OK", Word::Ok},
    {"&OK", Word::Ok},
    {"Cancel", Word::Cancel},
    {"&Cancel", Word::Cancel},
    {"Open", Word::Open},
    {"&Open", Word::Open},
    {"Save", Word::Save},
    {"&Save", Word::Save},
    {"File &name:", Word::FileName},
    {"Files of type:", Word::FileType},
    {"Look in:", Word::Folder},
    {"Directory:", Word::Folder},
    {"Folder", Word::Folder},
    {"Back", Word::Back},
    {"Go back", Word::Back},
    {"Forward", Word::Forward},
    {"Go forward", Word::Forward},
    {"Parent Directory", Word::ParentFolder},
    {"Go to the parent directory", Word::ParentFolder},
    {"Create New Folder", Word::NewFolder},
    {"Create a New Folder", Word::NewFolder},
    {"&New Folder", Word::NewFolder},
    {"New Folder", Word::NewFolder},
    {"List View", Word::List},
    {"Change to list view mode", Word::List},
    {"Files", Word::List},
    {"Detail View", Word::Details},
    {"Change to detail view mode", Word::Details},
    {"Name", Word::Name},
    {"Invalid filename", Word::Name},
    {"Size", Word::Size},
    {"Type", Word::Type},
    {"Kind", Word::Type},
    {"Date Modified", Word::Modified},
    {"Computer", Word::Computer},
    {"My Computer", Word::Computer},
    {"&Rename", Word::Rename},
    {"&Delete", Word::Delete},
    {"Delete", Word::Delete},
    {"Show &hidden files", Word::ShowHidden},
    {"Remove", Word::Remove},
    {"Recent Places", Word::RecentPlaces},
    {"Sidebar", Word::RecentPlaces},
    {"List of places and bookmarks", Word::RecentPlaces},
    {"%1 already exists.\nDo you want to replace it?", Word::AskOverwrite},
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.", Word::NoSuchFolder},
    {"%1\nFile not found.\nPlease verify the correct file name was given.", Word::NoSuchFile},
    {"Are you sure you want to delete '%1'?", Word::AskDelete},
    {"'%1' is write protected.\nDo you want to delete it anyway?", Word::AskDelete},
    {"Could not delete directory.", Word::CannotDelete},
    {"<b>The name \"%1\" cannot be used.</b><p>Try using another name, with fewer characters or no punctuation marks.",
     Word::BadName},
    {"&Undo", Word::Undo},
    {"&Redo", Word::Redo},
    {"Cu&t", Word::Cut},
    {"&Copy", Word::Copy},
    {"&Paste", Word::Paste},
    {"Select All", Word::SelectAll},
    {"Ctrl", Word::Ctrl},
    {"Shift", Word::Shift},
    {"Alt", Word::Alt},
    {"Backspace", Word::Backspace},
};

/// By code or, where there is none, by name; without territory. A language that is not known counts as English.
QLocale LocaleOf(const Words& words) {
  if (!words.Code.empty()) return QLocale(ToQt(words.Code));
  const QString name = ToQt(words.Name);
  const auto all = QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
  const auto found = std::find_if(all.begin(), all.end(), [&name](const QLocale& locale) {
    return locale.nativeLanguageName().compare(name, Qt::CaseInsensitive) == 0;
  });
  return found == all.end() ? QLocale::c() : *found;
}

}  // namespace

ToolkitLanguage::ToolkitLanguage() {
  LoadCatalogue(QLocale::system());
  QCoreApplication::installTranslator(this);
}

void ToolkitLanguage::LoadCatalogue(const QLocale& language) {
  (void)load(language, "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath));  // empty where there is none
}

void ToolkitLanguage::Use(const Words& words) {
  words_.clear();
  for (const auto& [source, word] : kSaid) {
    const auto number = static_cast<std::size_t>(word);
    if (number >= words.Said.size() || words.Said[number].empty()) continue;
    const QByteArray english(source);
    const QString said = ToQt(english.contains('&') ? words.Said[number] : WithoutMnemonic(words.Said[number]));
    words_[english] = english.contains("%1") ? "%1\n\n" + said : said;
  }
  LoadCatalogue(LocaleOf(words));
}

/// The toolkit puts "Show " before the names of columns; that they are ticked says it in every language.
QString ToolkitLanguage::translate(const char* context, const char* source, const char* disambiguation, int n) const {
  const auto said = words_.constFind(QByteArray::fromRawData(source, static_cast<int>(qstrlen(source))));
  if (qstrcmp(source, "Show ") == 0) return QString("");
  return said != words_.constEnd() ? *said : QTranslator::translate(context, source, disambiguation, n);
}

}  // namespace platform::qt
