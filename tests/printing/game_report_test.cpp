// The printed page as its drawing list, and the dialog that sends it to a printer or into a file.
#include "../../printing/game_report.h"

#include <algorithm>

#include "../../core/dice_stats.h"
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using testing::Contains;
using testing::ElementsAre;

struct ReportTest : MainWindowTest {
  Lines page;
  std::ptrdiff_t outlines = 0;  ///< boxes that are not filled

  ReportTest() {
    game.GameTitle = "Abend";
    game.GameInfo = "Runde 2";
    for (core::TPlayer& player : game.Players) player = {};
  }
  void Print(const std::string& separator = ",") {
    core::ComputeDiceFigures(game);
    PrintFigures(separator);
  }
  void PrintFigures(const std::string& separator = ",") {
    platform::Surface surface;
    printing::DrawGameReport(window.State, separator, surface);
    page = Drawn(surface);
    outlines = std::count_if(surface.Steps().begin(), surface.Steps().end(), [](const platform::DrawingStep& step) {
      const auto* box = std::get_if<platform::BoxStep>(&step);
      return box && !box->Filled;
    });
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
  game.Players[3] = {.Name = "Cy", .Cities = 1, .LargestArmy = true, .Active = true};
  game.PlayerPoints = {0, 9, 5, 10};
  Print();
  ASSERT_EQ(page.size(), 2U + 4 + 5 + 3 + 11 * 8 + 2);
  EXPECT_THAT(Lines(page.begin(), page.begin() + 22),
              ElementsAre("100,100 'Abend' Arial 20+ 000000", "100,200 'Runde 2' Arial 14 000000",
                          "[100,400-900,560] 000000", "101,401 imlIcons/01.svg", "101,440 'Ada' Arial 18+ 000000",
                          "700,400 ' 9 ' Arial 34+ 000000", "[100,800-900,960] 000000", "101,801 imlIcons/02.svg",
                          "161,801 imlIcons/08.svg", "101,840 'Cy' Arial 18+ 000000", "620,800 ' 10 ' Arial 34+ 000000",
                          "1150,305 'Anzahl' Arial 14 000000", "1900,305 '%' Arial 14 000000",
                          "2200,305 'Theorie' Arial 14 000000", "1000,495 '2' Arial 14 000000",
                          "1150,495 '0 Würfe' Arial 14 000000", "1900,495 '0%' Arial 14 000000",
                          "2200,495 '2,8%' Arial 14 000000", "[1400,495-1400,505] 0000FF", "[1400,585-1400,575] 0000FF",
                          "[1400,505-1400,575] FF0000", "[1400,495-1400,585] 0000FF"));
  EXPECT_EQ(outlines, 2);
  EXPECT_THAT(Lines(page.end() - 2, page.end()),
              ElementsAre("100,1600 'Würfe' Arial 14 000000", "350,1675 '0x' Arial 25 000000"));
}

TEST_F(ReportTest, SymbolsStandInTheirOrderAndAMetropolisIsNoPlainCity) {
  game.Players[6] = {"Zoë", 2, 1, true, true, true, true, false, 2, true, true};
  const auto symbols = [&] {
    Print();
    std::string numbers;
    for (const std::string& line : page) {
      const auto name = line.find(" imlIcons/0");
      if (name == std::string::npos) continue;
      EXPECT_EQ(line.substr(0, name), At(101 + 60.0 * static_cast<double>(numbers.size()), 1401));
      numbers += line[name + 11];
    }
    return numbers;
  };
  EXPECT_EQ(symbols(), "341178699");
  game.Players[6].Cities = 4;
  EXPECT_EQ(symbols(), "34221178699");
  EXPECT_THAT(page, Contains("[100,1400-900,1560] 000000"));
}

TEST_F(ReportTest, FramesAndBarsHaveTheirOwnScale) {
  using Counts = decltype(game.DiceCount);
  const std::tuple<Counts, int, const char*> rows[] = {
      {{0, 0, 1, 2, 3, 4, 5, 6, 5, 4, 3, 2, 1}, 7, "6 Würfe 16,7% | 1850 1850 00FF00"},
      {{0, 0, 1, 2, 3, 4, 5, 6, 5, 4, 3, 2, 1}, 12, "1 Würfe 2,8% | 1475 1475 00FF00"},
      {{0, 0, 5, 2, 3, 4, 5, 6, 5, 4, 3, 2, 1}, 3, "2 Würfe 5,0% | 1566 1550 FF0000"},  // 166.5, a tie
      {{0, 0, 0, 0, 0, 0, 0, 450}, 7, "450 Würfe 100,0% | 1475 1850 00FF00"},
      {{0, 0, 0, 0, 0, 0, 0, 451}, 7, "451 Würfe 100,0% | 1400 1400 00FF00"},
      {{0, 0, 0, 0, 0, 0, 0, 451}, 8, "0 Würfe 0% | 1400 1400 FF0000"}};
  for (const auto& [counts, sum, row] : rows) {
    game.DiceCount = counts;
    Print();
    EXPECT_EQ(Row(sum), row);
  }
  game.DiceCount = std::get<0>(rows[0]);
  Print(".");
  EXPECT_EQ(Row(7), "6 Würfe 16.7% | 1850 1850 00FF00");
  EXPECT_THAT(page, Contains("2200,970 '16.7%' Arial 14 000000"));
  game.DicePercent[7] = 16.66F;
  PrintFigures();
  EXPECT_EQ(Row(7), "6 Würfe 16,7% | 1850 1850 FF0000") << "no more than its share";
  for (const auto& [rolls, total] :
       {std::pair(9, "350,1675 '9x' Arial 25 000000"), {10, "400,1675 '10x' Arial 25 000000"}}) {
    game.DiceCount = {0, 0, static_cast<std::int16_t>(rolls)};
    Print();
    EXPECT_EQ(page.back(), total);
  }
}

TEST_F(ReportTest, TheEventDieStandsBelowInEveryGameButTheBaseGame) {
  game.EventCount = {0, 1, 2, 3, 1};
  const auto belowTheRows = [&](std::int16_t gameType) {
    game.GameType = gameType;
    Print();
    return Lines(page.begin() + 2 + 3 + 11 * 8, page.end() - 2);
  };
  EXPECT_THAT(belowTheRows(3), Contains("1150,1650 '0%' Arial 10 000000")) << "counts of a file without rolls";
  game.DiceCount[6] = 7;
  EXPECT_THAT(
      belowTheRows(3),
      ElementsAre("1000,1600 imlW/13.svg", "1150,1600 '1x' Arial 10 000000", "1150,1650 '14%' Arial 10 000000",
                  "1300,1600 imlW/14.svg", "1450,1600 '2x' Arial 10 000000", "1450,1650 '28%' Arial 10 000000",
                  "1600,1600 imlW/15.svg", "1750,1600 '3x' Arial 10 000000", "1750,1650 '42%' Arial 10 000000",
                  "1900,1600 imlW/16.svg", "2050,1600 '1x' Arial 10 000000", "2050,1650 '14%' Arial 10 000000"));
  EXPECT_EQ(belowTheRows(0).size(), 12U);
  EXPECT_TRUE(belowTheRows(2).empty());
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
  const Act waysOut[] = {[&] { Click(F10.cmdPrintCancel); }, [&] { Key(F10, platform::kKeyEscape); },
                         [&] { F10.PressCloseBox(); }};
  for (const Act& leave : waysOut) {
    EXPECT_EQ(Open(), "Laser: Laser Tinte PDF (*.pdf)");
    F10.Pick(F10.comDruckerListe, 1);
    leave();
    EXPECT_TRUE(Closed(F10) && services.Printed.first.empty());
  }
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
  platform::Surface report;
  printing::DrawGameReport(window.State, ",", report);
  services.ChosenFile = (Folder / "evening.pdf").string();
  services.Printers.clear();
  EXPECT_EQ(Open(), "PDF (*.pdf): PDF (*.pdf)");
  Key(F10, platform::kKeyEnter);
  EXPECT_TRUE(Closed(F10) && services.Boxes.empty());
  EXPECT_EQ(Bytes(services.ChosenFile), services.PdfOf(report));
  services.Printers = {"PDF"};
  services.PrinterFails = true;
  services.ChosenFile = Folder.string();
  for (const std::string& where : {services.ChosenFile + " (", std::string(":\nPDF\n")}) {
    Print(where.front() == ':');
    ASSERT_FALSE(services.Boxes.empty());
    EXPECT_THAT(services.Boxes.back().Text, testing::HasSubstr(where));
    services.Boxes.clear();
  }
}

}  // namespace
}  // namespace tests
