#include "f8_settings.h"

#include <algorithm>
#include <span>
#include <utility>

#include "../core/new_game.h"
#include "../core/numbers.h"
#include "../core/texts.h"
#include "../platform/mnemonic.h"
#include "../storage/code_page.h"
#include "../storage/language_file.h"
#include "../windows/form_metrics.h"
#include "../windows/image_lists.h"

namespace dialogs {
namespace {

namespace text = core::text;
using platform::Place;

constexpr int kClientWidth = 5490;
constexpr int kClientHeight = 6300;

constexpr Place kDisplayFrame{30, 0, 5415, 3195};
constexpr Place kLastSixPlace{120, 360, 4815, 255};
constexpr Place kWinnerPlace{120, 660, 4455, 375};
constexpr Place kWinPointsPlace{4620, 660, 435, 345};
constexpr Place kBarbariansPlace{120, 960, 5055, 585};
constexpr Place kAutoThemePlace{120, 1560, 4815, 255};
constexpr Place kThemeLabelPlace{90, 1860, 1695, 255};
constexpr Place kThemePlace{1920, 1800, 3435, 315};
constexpr Place kGameTimePlace{120, 2160, 5115, 255};
constexpr Place kPlayerTimePlace{120, 2460, 5175, 255};
constexpr Place kContrastPlace{120, 2760, 5175, 255};

constexpr Place kHotkeyFrame{60, 3300, 5355, 1575};
constexpr std::array<Place, 4> kFaces{
    {{240, 330, 525, 525}, {240, 930, 525, 525}, {2760, 300, 525, 525}, {2760, 930, 525, 525}}};
constexpr std::array<Place, 4> kHotkeys{
    {{840, 330, 555, 525}, {840, 930, 555, 525}, {3360, 330, 555, 525}, {3360, 930, 555, 525}}};

constexpr Place kLanguageFrame{60, 5040, 5355, 765};
constexpr int kLanguageTopAtFirstRun = 2250;
constexpr Place kLanguagePlace{150, 330, 3765, 315};
constexpr Place kFirstRunFrame{30, 0, 5265, 2085};
constexpr Place kFirstRunPlace{90, 360, 4845, 1665};
constexpr Place kOkPlace{4020, 5880, 1395, 375};

// No language is loaded when these are shown, so they are the same in every language.
constexpr const char* kFirstRunPrompt = "Sprache wählen / Select Language:";
constexpr const char* kFirstRunMessage =
    "Sie benutzen den 'Orvan Begleiter' zum ersten Mal. Bitte wählen Sie die gewünschte Bedienungssprache aus der "
    "Liste.\r\n\r\nYou are running 'Orvan Begleiter' for the first time. Please select your desired language below:";
constexpr const char* kNoSuchLanguage = "Bitte Sprache auswählen\nPlease select language";

int TickFor(bool on) { return on ? 1 : 0; }
bool IsTicked(const platform::CheckBox& box) { return box.Value.Get() == 1; }
bool IsHotkey(const std::string& text) { return text.size() == 1 && text[0] >= 'A' && text[0] <= 'Z'; }

/// The first character of a typed text, as a capital.
std::string FirstCapital(const std::string& text) {
  std::string first = storage::ToCodePage(storage::Storable(text)).substr(0, 1);
  if (first.empty()) return first;
  const auto byte = static_cast<unsigned char>(first[0]);
  const bool small = (byte >= 'a' && byte <= 'z') || (byte >= 0xE0 && byte <= 0xFE && byte != 0xF7);
  if (small) first[0] = static_cast<char>(byte - 0x20);
  return storage::FromCodePage(first);
}

}  // namespace

F8::F8(const windows::Context& context)
    : Dialog(context, "F8", kClientWidth, kClientHeight, platform::CloseBox::None),
      fraDisplay(this, "fraDisplay", kDisplayFrame),
      cbxLastSix(&fraDisplay, "cbxLastSix", kLastSixPlace),
      cbxSieger(&fraDisplay, "cbxSieger", kWinnerPlace),
      txtSieger(&fraDisplay, "txtSieger", kWinPointsPlace),
      cbxBarbarians(&fraDisplay, "cbxBarbarians", kBarbariansPlace),
      chkHGAuto(&fraDisplay, "chkHGAuto", kAutoThemePlace),
      lblHG(&fraDisplay, "lblHG", kThemeLabelPlace),
      cmbHG(&fraDisplay, "cmbHG", kThemePlace),
      cbxShowGameTime(&fraDisplay, "cbxShowGameTime", kGameTimePlace),
      cbxShowPlayerTime(&fraDisplay, "cbxShowPlayerTime", kPlayerTimePlace),
      cbxRedGreen(&fraDisplay, "cbxRedGreen", kContrastPlace),
      fraHotkeys(this, "fraHotkeys", kHotkeyFrame),
      picEWShow(&fraHotkeys, "picEWShow", kFaces),
      txtEWHotkey(&fraHotkeys, "txtEWHotkey", kHotkeys),
      fraSelectLang(this, "fraSelectLang", kLanguageFrame),
      comSelectLang(&fraSelectLang, "comSelectLang", kLanguagePlace),
      fraMustSL(this, "fraMustSL", kFirstRunFrame),
      lblmustSL(&fraMustSL, "lblmustSL", kFirstRunPlace),
      cmdOK(this, "cmdOK", kOkPlace) {
  Caption = "Anzeigeoptionen";
  fraSelectLang.Caption = "Sprache auswählen / Select Language";
  fraMustSL.Caption = "Neuer Start / 1st use";
  fraMustSL.Visible = false;
  txtSieger.Text = std::to_string(core::KindOf(core::kBaseGame)->WinPoints);
  cmdOK.Caption = "OK";
  cmdOK.Default = true;
  for (int i = 0; i < core::kEventFaces; ++i) {
    picEWShow(i).Image = windows::EventDie(i + 1);
    picEWShow(i).Border = 2;
    txtEWHotkey(i).Face = platform::Font{"Verdana", 18, true};
    txtEWHotkey(i).Align = platform::Alignment::Centre;
  }
  WireEvents();
}

void F8::WireEvents() {
  cbxSieger.Click = [this] { txtSieger.Enabled = IsTicked(cbxSieger); };
  cbxRedGreen.Click = [this] { state().settings.Contrast = IsTicked(cbxRedGreen) ? core::kOn : core::kOff; };
  cbxShowGameTime.Click = [this] { state().settings.ShowGameTime = IsTicked(cbxShowGameTime); };
  cbxShowPlayerTime.Click = [this] { state().settings.ShowPlayerTime = IsTicked(cbxShowPlayerTime); };
  chkHGAuto.Click = [this] { F8_chkHGAuto_Click(); };
  cmbHG.Change = [this] { SelectBackground(); };
  cmbHG.Click = [this] { LoadThemeImages(cmbHG.ListIndex + 1); };
  txtSieger.Change = [this] { F8_txtSieger_Change(); };
  txtSieger.KeyUp = [this](platform::KeyCode, platform::Modifiers) { F8_txtSieger_KeyUp(); };
  for (int i = 0; i < core::kEventFaces; ++i) txtEWHotkey(i).Change = [this, i] { F8_txtEWHotkey_Change(i); };
  cmdOK.Click = [this] { F8_cmdOK_Click(); };
  Close = [this] { F8_Close(); };
}

void F8::ShowStartValues() {
  for (const char* theme : {"Basisspiel", "Burgen & Wächter Erweiterung", "Flottillen Erweiterung"}) {
    cmbHG.AddItem(theme);
  }
  for (platform::CheckBox* box : {&cbxLastSix, &cbxSieger, &cbxBarbarians, &chkHGAuto}) box->Value = 1;
}

void F8::TickClocksAndContrast() {
  const core::Settings settings = state().settings;  // each box writes its setting back
  cbxShowGameTime.Value = TickFor(settings.ShowGameTime);
  cbxShowPlayerTime.Value = TickFor(settings.ShowPlayerTime);
  cbxRedGreen.Value = TickFor(settings.Contrast.IsOn());
  state().settings = settings;
}

void F8::ShowHotkeys() {
  for (int i = 0; i < core::kEventFaces; ++i) {
    txtEWHotkey(i).Text = storage::CharacterOf(state().settings.EventHotkey[i + 1]);
  }
}

void F8::ListLanguages() {
  comSelectLang.Clear();
  for (const std::string& name : std::span(state().language.Languages).subspan(1)) comSelectLang.AddItem(name);
}

void F8::SetCaptions() {
  Caption = platform::WithoutMnemonic(state().Text(text::MenuSettings));
  fraDisplay.Caption = state().Text(text::Display);
  cbxLastSix.Caption = state().Text(text::ShowLastSix);
  cbxSieger.Caption = txtSieger.SpokenName = state().Text(text::ShowWinner);
  cbxBarbarians.Caption = state().Text(text::ShowBarbarians);
  chkHGAuto.Caption = state().Text(text::ChooseThemeAutomatically);
  lblHG.Caption = cmbHG.SpokenName = state().Text(text::Theme);
  cbxShowGameTime.Caption = state().Text(text::ShowGameTime);
  cbxShowPlayerTime.Caption = state().Text(text::ShowTurnTime);
  cbxRedGreen.Caption = state().Text(text::StrongContrast);
  fraHotkeys.Caption = state().Text(text::EventDieKeys);
  comSelectLang.SpokenName = fraSelectLang.Caption;
  for (int i = 0; i < core::kEventFaces; ++i) {
    picEWShow(i).SpokenName = txtEWHotkey(i).SpokenName = state().Text(windows::TextOfEventFace(i + 1));
  }
  cmbHG.Clear();
  for (const int theme : {text::BaseGame, text::FirstExpansion, text::SecondExpansion}) {
    cmbHG.AddItem(state().Text(theme));
  }
}

void F8::OpenSettings() {
  const core::Settings& settings = state().settings;
  cbxLastSix.Value = TickFor(settings.ShowLast6);
  cbxSieger.Value = TickFor(settings.ShowWinner);
  chkHGAuto.Value = TickFor(settings.AutoHG.IsOn());
  lblHG.Enabled = cmbHG.Enabled = !IsTicked(chkHGAuto);
  txtSieger.Text = std::to_string(state().game.WinPoints);
  cbxBarbarians.Value = TickFor(settings.ShowBarbarians);
  comSelectLang.Text = state().language.Languages[0];
  ShowTheme(settings.HG);
  SetFocus(cbxLastSix);
  Open();
}

void F8::ShowLayout(bool firstRun) {
  fraDisplay.Visible = fraHotkeys.Visible = !firstRun;
  fraMustSL.Visible = firstRun;
  Place place = kLanguageFrame;
  if (firstRun) place.Top = kLanguageTopAtFirstRun;
  fraSelectLang.Position = place;
}

void F8::SelectFirstLanguage() {
  ShowLayout(true);
  comSelectLang.Text = kFirstRunPrompt;
  lblmustSL.Caption = kFirstRunMessage;
  SetFocus(comSelectLang);
  cmdOK.Enabled = true;  // the keys cannot be seen, so they cannot hold the user up
  Visible = true;
  context_.desktop.SetModal(this);
  context_.services.WaitWhileVisible(*this);
  context_.desktop.SetModal(nullptr);
}

/// Half-typed text is no theme and changes nothing.
void F8::SelectBackground() {
  const std::vector<std::string>& themes = cmbHG.List();
  const auto found = std::find(themes.begin(), themes.end(), cmbHG.Text.Get());
  if (found != themes.end()) LoadThemeImages(static_cast<int>(found - themes.begin()) + 1);
}

void F8::F8_chkHGAuto_Click() {
  const bool automatic = IsTicked(chkHGAuto);
  state().settings.AutoHG = automatic ? core::kOn : core::kOff;
  lblHG.Enabled = cmbHG.Enabled = !automatic;
  if (!automatic) return;
  const int theme = core::ThemeOf(state().game);
  ShowTheme(theme == 0 ? state().settings.HG : theme);
}

bool F8::AllHotkeysValid() const {
  for (int i = 0; i < core::kEventFaces; ++i) {
    if (!IsHotkey(txtEWHotkey(i).Text)) return false;
  }
  return true;
}

void F8::F8_txtEWHotkey_Change(int index) {
  txtEWHotkey(index).Text = FirstCapital(txtEWHotkey(index).Text);
  cmdOK.Enabled = AllHotkeysValid();
}

void F8::F8_txtSieger_Change() {
  if (const auto points = core::WholeNumberIn(txtSieger.Text.Get())) state().game.WinPoints = *points;
}

void F8::F8_txtSieger_KeyUp() {
  const core::Kind* kind = core::KindOf(state().game.GameType);
  if (kind && !core::NumberIn(txtSieger.Text.Get())) txtSieger.Text = std::to_string(kind->WinPoints);
}

/// Stores what takes effect with OK only.
void F8::StoreChoices() {
  state().settings.ShowLast6 = IsTicked(cbxLastSix);
  state().settings.ShowWinner = IsTicked(cbxSieger);
  state().settings.ShowBarbarians = IsTicked(cbxBarbarians);
  for (int i = 0; i < core::kEventFaces; ++i) {
    const std::string key = storage::ToCodePage(txtEWHotkey(i).Text.Get());
    if (key.empty()) continue;
    state().settings.EventHotkey[i + 1] = static_cast<unsigned char>(key[0]);
  }
  HotkeysChanged();
}

/// Some desktops show a close box that was not asked for. The first run is not left without a language.
void F8::F8_Close() {
  if (!fraMustSL.Visible) Click(cmdOK);
}

void F8::F8_cmdOK_Click() {
  StoreChoices();
  const std::string chosen = comSelectLang.Text;
  if (!storage::IsListed(state().language, chosen)) {
    context_.services.MessageBox(kNoSuchLanguage);
    return;
  }
  ShowLayout(false);
  const std::string before = std::exchange(state().language.Languages[0], chosen);
  if (!LoadLanguage()) state().language.Languages[0] = before;
  Leave([this] {
    screen().DrawPlayerPanels();
    screen().DrawDiceStats();
  });
}

}  // namespace dialogs
