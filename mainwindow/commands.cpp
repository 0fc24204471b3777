#include "commands.h"

#include "../core/texts.h"
#include "../windows/image_lists.h"
#include "main_window.h"

namespace mainwindow {
namespace {

using namespace core::text;
using platform::AltBackspace;
using platform::Ctrl;
using platform::Function;
using platform::MenuRow;
using W = MainWindow;

constexpr MenuRow Opens(std::string_view name, std::string_view caption) {
  return {.Name = name, .Level = 0, .Caption = caption};
}
constexpr MenuRow Entry(std::string_view name, std::string_view caption, platform::Shortcut key) {
  return {.Name = name, .Level = 1, .Caption = caption, .Key = key};
}
constexpr MenuRow Separator(std::string_view name) { return {.Name = name, .Level = 1, .Caption = "-"}; }

constexpr Command kCommands[] = {
    {.Menu = Opens("mnuFile", "&Spiel"), .Text = MenuGame},
    {.Menu = Entry("mnuGameNew", "&Neues Spiel", Ctrl('N')),
     .Text = MenuNewGame,
     .HasButton = true,
     .Run = &W::F1_mnuGameNew_Click},
    {.Menu = Entry("mnuFileLoad", "Ö&ffnen...", Ctrl('F')),
     .Text = MenuOpen,
     .HasButton = true,
     .Run = &W::F1_mnuFileLoad_Click},
    {.Menu = Entry("mnuFileSaveAs", "&Speichern unter...", Ctrl('S')),
     .Text = MenuSaveAs,
     .HasButton = true,
     .Run = &W::F1_mnuFileSaveAs_Click},
    {.Menu = Entry("mnuGameInfo", "Spiel-&Info", Ctrl('I')),
     .Text = MenuGameInfo,
     .HasButton = true,
     .Run = &W::F1_mnuGameInfo_Click},
    {.Menu = Entry("mnuFilePrint", "&Drucken...", Ctrl('P')),
     .Text = MenuPrint,
     .HasButton = true,
     .Run = &W::F1_mnuFilePrint_Click},
    {.Menu = Separator("mnuGameEmpty")},
    {.Menu = Entry("mnuFileQuit", "Programm b&eenden", Ctrl('Q')), .Text = MenuQuit, .Run = &W::F1_mnuFileQuit_Click},
    {.Menu = Opens("mnuExtra", "&Extra"), .Text = MenuExtra},
    {.Menu = Entry("mnuExtraZS", "Zwischens&tand anzeigen", Ctrl('T')),
     .Text = MenuStanding,
     .HasButton = true,
     .Run = &W::F1_mnuExtraZS_Click},
    {.Menu = Entry("mnuSpecialLHS", "&Handelsstraße freigeben", Ctrl('H')),
     .Text = MenuFreeLongestRoad,
     .HasButton = true,
     .Run = &W::F1_mnuSpecialLHS_Click},
    {.Menu = Entry("mnuExtraDelLastW", "&Letzten Würfelwert rückgängig machen", AltBackspace()),
     .Text = MenuUndoRoll,
     .HasButton = true,
     .Run = &W::F1_mnuExtraDelLastW_Click},
    {.Menu = Entry("mnuExtraClock", "&Uhr anhalten", Function(7)), .Run = &W::F1_mnuExtraClock_Click},
    {.Menu = Separator("mnuExtraLeer")},
    {.Menu = Entry("mnuExtraSettings", "&Einstellungen...", Function(8)),
     .Text = MenuSettings,
     .HasButton = true,
     .Run = &W::F1_mnuExtraSettings_Click},
    {.Menu = Separator("mnuExtraLeer2")},
    {.Menu = Entry("mnuExtraAutoDice", "Würfeln !", Function(9)),
     .Text = MenuRollDice,
     .Run = &W::F1_mnuExtraAutoDice_Click},
    {.Menu = Opens("mnuHelp", "&?"), .Text = MenuHelp},
    {.Menu = Entry("mnuHelpKeys", "Tastatur-Belegung", Function(11)),
     .Text = MenuKeys,
     .HasButton = true,
     .Run = &W::F1_mnuHelpKeys_Click},
    {.Menu = Entry("mnuHelpInfo", "&Info", Function(12)),
     .Text = MenuAbout,
     .HasButton = true,
     .Run = &W::F1_mnuHelpInfo_Click},
};

}  // namespace

std::span<const Command> Commands() { return kCommands; }

std::vector<const Command*> ToolButtons() {
  std::vector<const Command*> buttons;
  bool newMenu = false;
  for (const Command& command : kCommands) {
    newMenu = newMenu || command.Menu.Level == 0;
    if (!command.HasButton) continue;
    if (newMenu && !buttons.empty()) buttons.push_back(nullptr);
    buttons.push_back(&command);
    newMenu = false;
  }
  return buttons;
}

std::vector<platform::Picture> ToolPictures() {
  std::vector<platform::Picture> pictures;
  int image = 0;
  for (const Command* command : ToolButtons()) {
    pictures.push_back(command ? windows::imlToolbar.Image(++image) : platform::Picture{});
  }
  return pictures;
}

std::unique_ptr<platform::Menu> MakeMenu() {
  std::vector<platform::MenuRow> rows;
  for (const Command& command : kCommands) rows.push_back(command.Menu);
  return std::make_unique<platform::Menu>(rows);
}

}  // namespace mainwindow
