#include "f2_text_viewer.h"

#include "../core/texts.h"
#include "../storage/path_text.h"
#include "../storage/text_lines.h"

namespace dialogs {
namespace {

using platform::Place;

constexpr int kClientWidth = 8175;
constexpr int kClientHeight = 6870;
constexpr Place kTextPlace{60, 60, 8055, 6315};
constexpr Place kOkPlace{3420, 6420, 1395, 375};

constexpr std::size_t kMostShown = 1 << 16;  // bytes; a text field is slow with more

}  // namespace

F2::F2(const windows::Context& context)
    : Form(context.desktop, "F2", kClientWidth, kClientHeight),
      txtInfo(this, "txtInfo", kTextPlace),
      cmdOK(this, "cmdOK", kOkPlace),
      context_(context) {
  Caption = "Orvan Begleiter";
  txtInfo.MultiLine = true;
  txtInfo.ReadOnly = true;
  txtInfo.Face = platform::Font{"Lucida Console", 8.25};  // the files have columns
  cmdOK.Caption = "OK";
  cmdOK.Default = true;
  cmdOK.Click = [this] { Visible = false; };
  Close = [this] { Visible = false; };
}

/// "readme_fr.txt" for "readme.txt" while the program speaks French.
std::ifstream F2::OpenInLanguage(const std::filesystem::path& file) {
  const std::string& code = context_.state.Text(core::text::LanguageCode);
  std::filesystem::path translated = file.parent_path() / file.stem();
  translated += storage::PathOf("_" + code);
  translated += file.extension();
  std::ifstream found = storage::OpenRegularFile(translated);
  return found.is_open() ? std::move(found) : storage::OpenRegularFile(file);
}

void F2::ShowFile(const std::string& name) {
  txtInfo.Text = std::string();
  Caption = txtInfo.SpokenName = "Orvan Begleiter Readme";
  std::ifstream file = OpenInLanguage(context_.places.ProgramFiles() / storage::PathOf(name));
  if (!file.is_open()) return;
  storage::LineReader reader(file, storage::LineFeeds::EndLines);
  std::string text;
  for (std::string line; reader.Next(line);) {
    const bool fits = text.size() + line.size() < kMostShown;
    text += "\r\n" + (fits ? line : context_.state.Text(core::text::TextGoesOn));
    if (!fits) break;
  }
  txtInfo.Text = text;
  SetFocus(txtInfo);  // so that the keys scroll
  Show();
}

}  // namespace dialogs
