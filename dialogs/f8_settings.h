// F8, the settings dialog: what the main window shows, the background, the language and the keys of the event die. It
// has no cancel; some settings take effect at once, the others at OK. At the first run it asks for the language only.
#pragma once

#include <functional>

#include "../windows/dialog.h"

namespace dialogs {

class F8 : public windows::Dialog {
 public:
  explicit F8(const windows::Context& context);

  platform::Frame fraDisplay;
  platform::CheckBox cbxLastSix;
  platform::CheckBox cbxSieger;
  platform::TextBox txtSieger;
  platform::CheckBox cbxBarbarians;
  platform::CheckBox chkHGAuto;
  platform::Label lblHG;
  platform::ComboBox cmbHG;
  platform::CheckBox cbxShowGameTime;
  platform::CheckBox cbxShowPlayerTime;
  platform::CheckBox cbxRedGreen;
  platform::Frame fraHotkeys;
  platform::ControlArray<platform::PictureBox> picEWShow;  ///< the faces of the event die
  platform::ControlArray<platform::TextBox> txtEWHotkey;   ///< and their keys
  platform::Frame fraSelectLang;
  platform::ComboBox comSelectLang;
  platform::Frame fraMustSL;
  platform::Label lblmustSL;
  platform::CommandButton cmdOK;

  /// What the main window does for the dialog.
  std::function<void(int theme)> LoadThemeImages = [](int) {};
  std::function<bool()> LoadLanguage = [] { return false; };  ///< false: there is no language to load
  std::function<void()> HotkeysChanged = [] {};

  /// Brings the controls into line with the variables and opens the dialog.
  void OpenSettings();
  /// Shows the dialog with nothing but the choice of a language, and returns when one was chosen.
  void SelectFirstLanguage();
  /// The themes and ticks that the form shows before a language is loaded.
  void ShowStartValues();
  /// Ticks clocks and contrast as the settings have them; from then on the boxes keep their state.
  void TickClocksAndContrast();
  /// Shows the keys of the event die as they are set.
  void ShowHotkeys();
  /// Fills the list with the languages of the file.
  void ListLanguages();
  /// Takes title, captions and the names of the themes from the language.
  void SetCaptions() override;
  /// Chooses a theme, 1 to 3, in the list, as if the user had; that loads it.
  void ShowTheme(int theme) { cmbHG.Pick(theme - 1); }

 private:
  void WireEvents();
  void ShowLayout(bool firstRun);
  void SelectBackground();
  bool AllHotkeysValid() const;
  void F8_chkHGAuto_Click();
  void F8_txtEWHotkey_Change(int index);
  void F8_txtSieger_Change();
  void F8_txtSieger_KeyUp();
  void F8_Close();
  void F8_cmdOK_Click();
  void StoreChoices();
};

}  // namespace dialogs
