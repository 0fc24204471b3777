// The printed page as its drawing list, and the dialog that sends it to a printer or into a file.
#include "../../printing/game_report.h"

#include <algorithm>

#include "../../core/dice_stats.h"
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using testing::_;
using testing::Contains;
using testing::ElementsAre;

struct ReportTest : MainWindowTest {
  Lines page;

  ReportTest() {
    game.GameTitle = "Abend";
    game.GameInfo = "Runde 2";
    for (core::TPlayer& player : game.Players) player = {};
  }
  void Print(const std::string& separator = ",") {
    platform::Surface surface;
    core::ComputeDiceFigures(game);
    printing::DrawGameReport(window.State, separator, surface);
    page = Drawn(surface);
  }
  /// Count and percent of a sum with its bars, as "texts | end of the frame, end of the bar, colour of the bar".
  std::string Row(int sum) const {
    const auto row = std::find(page.begin(), page.end(),
                               At(1000, 305 + 95 * sum) + " '" + std::to_string(sum) + "' Arial 14 000000");
    const auto between = [](const std::string& line, char first, char last) {
      const auto from = line.find(first) + 1;
      return line.substr(from, line.find(last, from) - from);
    };
    return between(row[1], '\'', '\'') + " " + between(row[2], '\'', '\'') + " | " + between(row[7], '[', ',') + " " +
           between(row[6], '-', ',') + " " + row[6].substr(row[6].size() - 6);
  }
};

TEST_F(ReportTest, APageWithoutRollsLeavesAGapForWhoDoesNotPlay) {
  game.Players[1] = {.Name = "Ada", .Settlements = 1, .Active = true};
  game.Players[2] = {.Name = "Ben", .Settlements = 5};
  game.Players[6] = {.Name = "Cy", .Cities = 1, .LargestArmy = true, .Active = true};
  game.PlayerPoints = {0, 9, 5, 0, 0, 0, 10};
  Print();
  ASSERT_EQ(page.size(), 2U + 4 + 5 + 3 + 11 * 8 + 2);
  EXPECT_THAT(
      Lines(page.begin(), page.begin() + 22),
      ElementsAre("100,100 'Abend' Arial 20+ 000000", "100,200 'Runde 2' Arial 14 000000", "(100,400-900,560) 000000",
                  "101,401 imlIcons/01.svg", "101,440 'Ada' Arial 18+ 000000<599", "700,400 ' 9 ' Arial 34+ 000000",
                  "(100,1400-900,1560) 000000", "101,1401 imlIcons/02.svg", "161,1401 imlIcons/08.svg",
                  "101,1440 'Cy' Arial 18+ 000000<519", "620,1400 ' 10 ' Arial 34+ 000000",
                  "1150,305 'Anzahl' Arial 14 000000", "1900,305 '%' Arial 14 000000",
                  "2200,305 'Theorie' Arial 14 000000", "1000,495 '2' Arial 14 000000",
                  "1150,495 '0 Würfe' Arial 14 000000<240", "1900,495 '0%' Arial 14 000000",
                  "2200,495 '2,8%' Arial 14 000000", "[1400,495-1400,505] 0000FF", "[1400,585-1400,575] 0000FF",
                  "[1400,505-1400,575] FF0000", "[1400,495-1400,585] 0000FF"));
  EXPECT_THAT(Lines(page.end() - 2, page.end()),
              ElementsAre("100,1600 'Würfe' Arial 14 000000", "350,1675 '0x' Arial 25 000000"));
}

TEST_F(ReportTest, SymbolsStandInTheirOrderAndAMetropolisIsNoPlainCity) {
  game.Players[6] = {"Zoë", 2, 1, true, true, true, true, false, 2, true, true};
  for (const auto& [cities, symbols] : {std::pair(1, "341178699"), {4, "34221178699"}}) {
    game.Players[6].Cities = static_cast<std::int16_t>(cities);
    Print();
    std::string numbers;
    for (const std::string& line : page) {
      if (const auto name = line.find("imlIcons/0"); name != std::string::npos) numbers += line[name + 10];
    }
    EXPECT_EQ(numbers, symbols);
  }
}

TEST_F(ReportTest, FramesAndBarsHaveTheirOwnScale) {
  using Counts = decltype(game.DiceCount);
  const std::tuple<Counts, int, const char*> rows[] = {
      {{0, 0, 1, 2, 3, 4, 5, 6, 5, 4, 3, 2, 1}, 7, "6 Würfe 16.7% | 1850 1850 00FF00"},
      {{0, 0, 5, 2, 3, 4, 5, 6, 5, 4, 3, 2, 1}, 3, "2 Würfe 5.0% | 1566 1550 FF0000"},  // 166.5, a tie
      {{0, 0, 0, 0, 0, 0, 0, 450}, 7, "450 Würfe 100.0% | 1475 1850 00FF00"},
      {{0, 0, 0, 0, 0, 0, 0, 451}, 7, "451 Würfe 100.0% | 1400 1400 00FF00"}};
  for (const auto& [counts, sum, row] : rows) {
    game.DiceCount = counts;
    Print(".");
    EXPECT_EQ(Row(sum), row);
  }
  EXPECT_THAT(page, Contains("2200,970 '16.7%' Arial 14 000000"));
}

TEST_F(ReportTest, TheEventDieStandsBelowInEveryGameButTheBaseGame) {
  game.EventCount = {0, 1, 2, 3, 1};
  const auto belowTheRows = [&](std::int16_t gameType, std::int16_t rolls) {
    game.GameType = gameType;
    game.DiceCount[6] = rolls;
    Print();
    return Lines(page.begin() + 2 + 3 + 11 * 8, page.end() - 1);
  };
  EXPECT_THAT(
      belowTheRows(3, 9),
      ElementsAre("1000,1600 imlW/13.svg", "1150,1600 '1x' Arial 10 000000", "1150,1650 '11%' Arial 10 000000",
                  "1300,1600 imlW/14.svg", "1450,1600 '2x' Arial 10 000000", "1450,1650 '22%' Arial 10 000000",
                  "1600,1600 imlW/15.svg", "1750,1600 '3x' Arial 10 000000", "1750,1650 '33%' Arial 10 000000",
                  "1900,1600 imlW/16.svg", "2050,1600 '1x' Arial 10 000000", "2050,1650 '11%' Arial 10 000000", _));
  EXPECT_EQ(page.back(), "350,1675 '9x' Arial 25 000000");
  EXPECT_EQ(belowTheRows(0, 10).size(), 13U);
  EXPECT_EQ(page.back(), "400,1675 '10x' Arial 25 000000");
  EXPECT_EQ(belowTheRows(2, 10).size(), 1U);
}

struct PrintDialogTest : MainWindowTest {
  printing::F10& F10 = window.F10;

  PrintDialogTest() { services.Printers = {"Laser", "Tinte"}; }
  /// Opens the dialog: the text of the box, then the list.
  std::string Open() {
    Press('P', {.Control = true});
    EXPECT_TRUE(Locking(F10));
    std::string text = F10.comDruckerListe.Text.Get() + ":";
    for (const std::string& printer : F10.comDruckerListe.List()) text += " " + printer;
    return text;
  }
  void Print(int index) {
    Open();
    F10.Pick(F10.comDruckerListe, index);
    Click(F10.cmdPrintnow);
    EXPECT_TRUE(Closed(F10));
  }
};

TEST_F(PrintDialogTest, TheCurrentPrinterIsFirstAndChangesByPrintingOnly) {
  EXPECT_EQ(Open(), "Laser: Laser Tinte PDF (*.pdf)");
  F10.Pick(F10.comDruckerListe, 1);
  Click(F10.cmdPrintCancel);
  EXPECT_TRUE(services.Printed.first.empty());
  Open();
  F10.Type(F10.comDruckerListe, "Tinte");
  Key(F10, platform::kKeyEnter);
  EXPECT_EQ(services.Printed.first, "Laser") << "typing chooses nothing";
  Print(1);
  EXPECT_EQ(services.Printed.first, "Tinte");
  platform::Surface report;
  printing::DrawGameReport(window.State, ",", report);
  EXPECT_EQ(services.Printed.second.Steps(), report.Steps());
  services.Printers = {"Laser", "Matrix", "Tinte"};
  EXPECT_EQ(Open(), "Tinte: Tinte Laser Matrix PDF (*.pdf)");
  services.Printed.first.clear();
  Click(F10.cmdPrintnow);
  EXPECT_EQ(services.Printed.first, "Tinte");
  services.Printers = {"Laser"};
  EXPECT_EQ(Open(), "Laser: Laser PDF (*.pdf)") << "the printer is gone";
}

TEST_F(PrintDialogTest, PdfGoesWhereTheUserWantsItAndWhatFailsIsTold) {
  services.Printers = {"PDF"};  // a printer may well bear that name
  Print(1);
  ASSERT_EQ(services.FileDialogs.size(), 1U);
  EXPECT_EQ(services.FileDialogs[0].Filter, "PDF (*.pdf)|*.pdf");
  EXPECT_TRUE(services.Printed.first.empty() && services.Boxes.empty()) << "no name chosen";
  services.ChosenFile = (Folder / "evening.pdf").string();
  services.Printers.clear();
  EXPECT_EQ(Open(), "PDF (*.pdf): PDF (*.pdf)");
  Key(F10, platform::kKeyEnter);
  platform::Surface report;
  printing::DrawGameReport(window.State, ",", report);
  EXPECT_EQ(Bytes(services.ChosenFile), services.PdfOf(report));
  EXPECT_TRUE(Closed(F10) && services.Boxes.empty());

  services.ChosenFile = Folder.string();
  services.Printers = {"PDF"};
  services.PrinterFails = true;
  for (const auto& [index, where] : {std::pair(0, services.ChosenFile + " ("), {1, "\nPDF\n"}}) {
    Print(index);
    ASSERT_EQ(services.Boxes.size(), 1U + index);
    EXPECT_THAT(services.Boxes.back().Text, testing::HasSubstr(where));
  }
}

}  // namespace
}  // namespace tests
