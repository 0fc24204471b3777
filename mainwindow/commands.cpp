#include "commands.h"

#include "main_window.h"

namespace mainwindow {
namespace {

using platform::AltBackspace;
using platform::Ctrl;
using platform::Function;
using W = MainWindow;

constexpr Command kCommands[] = {
    {{"mnuFile", 0, "&Spiel"}, 1},
    {{"mnuGameNew", 1, "&Neues Spiel", Ctrl('N')}, 2, 1, &W::F1_mnuGameNew_Click},
    {{"mnuFileLoad", 1, "Ö&ffnen...", Ctrl('F')}, 3, 2, &W::F1_mnuFileLoad_Click},
    {{"mnuFileSaveAs", 1, "&Speichern unter...", Ctrl('S')}, 4, 3, &W::F1_mnuFileSaveAs_Click},
    {{"mnuGameInfo", 1, "Spiel-&Info", Ctrl('I')}, 5, 4, &W::F1_mnuGameInfo_Click},
    {{"mnuFilePrint", 1, "&Drucken...", Ctrl('P')}, 6, 5, &W::F1_mnuFilePrint_Click},
    {{"mnuGameEmpty", 1, "-"}},
    {{"mnuFileQuit", 1, "Programm b&eenden", Ctrl('Q')}, 7, 0, &W::F1_mnuFileQuit_Click},
    {{"mnuExtra", 0, "&Extra"}, 8},
    {{"mnuExtraZS", 1, "Zwischens&tand anzeigen", Ctrl('T')}, 9, 7, &W::F1_mnuExtraZS_Click},
    {{"mnuSpecialLHS", 1, "&Handelsstraße freigeben", Ctrl('H')}, 10, 8, &W::F1_mnuSpecialLHS_Click},
    {{"mnuExtraDelLastW", 1, "&Letzten Würfelwert rückgängig machen", AltBackspace()},
     11,
     9,
     &W::F1_mnuExtraDelLastW_Click},
    {{"mnuExtraClock", 1, "&Uhr anhalten", Function(7)}, 0, 0, &W::F1_mnuExtraClock_Click},
    {{"mnuExtraLeer", 1, "-"}},
    {{"mnuExtraSettings", 1, "&Einstellungen...", Function(8)}, 12, 10, &W::F1_mnuExtraSettings_Click},
    {{"mnuExtraLeer2", 1, "-"}},
    {{"mnuExtraAutoDice", 1, "Würfeln !", Function(9)}, 118, 0, &W::F1_mnuExtraAutoDice_Click},
    {{"mnuHelp", 0, "&?"}, 13},
    {{"mnuHelpKeys", 1, "Tastatur-Belegung", Function(11)}, 14, 12, &W::F1_mnuHelpKeys_Click},
    {{"mnuHelpInfo", 1, "&Info", Function(12)}, 15, 13, &W::F1_mnuHelpInfo_Click},
};

}  // namespace

std::span<const Command> Commands() { return kCommands; }

std::unique_ptr<platform::Menu> MakeMenu() {
  std::vector<platform::MenuRow> rows;
  for (const Command& command : kCommands) rows.push_back(command.Menu);
  return std::make_unique<platform::Menu>(rows);
}

}  // namespace mainwindow
