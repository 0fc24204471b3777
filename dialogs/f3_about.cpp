#include "f3_about.h"

#include "../core/texts.h"
#include "../platform/mnemonic.h"
#include "../windows/form_metrics.h"
#include "../windows/image_lists.h"

namespace dialogs {
namespace {

using platform::Place;

constexpr int kClientWidth = 4935;
constexpr int kClientHeight = 2985;
constexpr Place kLogoPlace{60, 60, 1500, 1500};
constexpr Place kNamePlace{1650, 90, 3165, 240};
constexpr Place kVersionPlace{1650, 420, 765, 195};
constexpr Place kCopyrightPlace{1650, 720, 3165, 195};
constexpr Place kListPlace{60, 1590, 4815, 1005};
constexpr Place kReadmePlace{60, 2640, 1335, 315};
constexpr Place kOkPlace{3540, 2640, 1335, 315};
constexpr int kListTick = 2000;  // milliseconds

/// A piece of the running list with its place in pixels. Each step prints its pieces; step 0 clears the box.
struct Piece {
  int Step;
  int X, Y;
  const char* Text;
};
constexpr Piece kList[] = {
    {1, 0, 0, "Orvan Begleiter Homepage:"},
    {2, 162, 0, "orvan-begleiter.example"},
    {3, 0, 12, "Private Homepage:"},
    {4, 162, 12, "orvan-begleiter.example"},
    {5, 0, 24, "e-mail:"},
    {6, 162, 24, "hi@orvan-begleiter.example"},
    {7, 0, 36, "Danke / Thanks to:"},
    {8, 162, 36, "all who play"},
    {8, 162, 48, "(beta-testing & support)"},
};
constexpr int kLastStep = 8;

std::string VersionText(const platform::Version& version) {
  std::string text = "V" + std::to_string(version.Major) + "." + std::to_string(version.Minor);
  if (version.Revision != 0) text += "." + std::to_string(version.Revision);
  return text;
}

}  // namespace

F3::F3(const windows::Context& context)
    : Dialog(context, "F3", kClientWidth, kClientHeight, platform::CloseBox::None),
      picLogo(this, "picLogo", kLogoPlace),
      lblPN(this, "lblPN", kNamePlace),
      lblFreeware(this, "lblFreeware", kVersionPlace),
      lblCopyr(this, "lblCopyr", kCopyrightPlace),
      picFlash(this, "picFlash", kListPlace),
      cmdShowReadme(this, "cmdShowReadme", kReadmePlace),
      cmdOK(this, "cmdOK", kOkPlace),
      timClock(*this, "timClock", kListTick) {
  picLogo.Image = windows::kLogo;
  picLogo.Opaque = false;
  picFlash.Ground = windows::kPaper;
  lblPN.Caption = picLogo.SpokenName = "Orvan Begleiter";
  lblPN.Face = platform::Font{"Verdana", 9.75, true};
  lblCopyr.Caption = "© 2026 Orvan Begleiter";
  cmdShowReadme.Caption = "Readme.txt";
  cmdShowReadme.Click = [this] { ShowReadme(); };
  cmdOK.Caption = "OK";
  cmdOK.Default = true;
  cmdOK.Click = [this] { F3_cmdOK_Click(); };
  Close = [this] { F3_cmdOK_Click(); };  // where a desktop shows a close box that was not asked for
  timClock.Tick = [this] { F3_timClock_Timer(); };
}

void F3::SetCaptions() { Caption = platform::WithoutMnemonic(state().Text(core::text::MenuAbout)); }

void F3::OpenAbout() {
  lblFreeware.Caption = VersionText(context_.services.ProgramVersion());
  timClock.Enabled = true;
  SetFocus(cmdOK);
  Open();
}

void F3::F3_cmdOK_Click() {
  timClock.Enabled = false;
  Leave();
}

/// The list goes on where it stopped when the window was closed.
void F3::F3_timClock_Timer() {
  std::int16_t& step = state().AboutFrame;
  step = static_cast<std::int16_t>(step >= kLastStep ? 0 : step + 1);
  if (step == 0) picFlash.Drawing.Cls();
  for (const Piece& piece : kList) {
    if (piece.Step == step) picFlash.Drawing.PrintAt(piece.X, piece.Y, piece.Text);
  }
  picFlash.SpokenName = picFlash.Drawing.Spoken();
}

}  // namespace dialogs
