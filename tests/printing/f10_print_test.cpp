// The dialog that sends the report to a printer or into a file.
#include "../../printing/game_report.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

struct PrintDialogTest : MainWindowTest {
  printing::F10& F10 = window.F10;

  PrintDialogTest() { services.Printers = {"Laser", "Tinte"}; }
  /// Opens the dialog: the text of the box, then the list.
  std::string Open() {
    Press('P', kCtrl);
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
  platform::Surface Report() {
    platform::Surface report;
    printing::DrawGameReport(window.State, ",", report);
    return report;
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
  EXPECT_EQ(services.Printed.second.Steps(), Report().Steps());
  services.Printers = {"Laser", "Matrix", "Tinte"};
  EXPECT_EQ(Open(), "Tinte: Tinte Laser Matrix PDF (*.pdf)");
  Click(F10.cmdPrintnow);
  EXPECT_EQ(services.Printed.first, "Tinte");
  services.Printers = {"Laser"};
  EXPECT_EQ(Open(), "Laser: Laser PDF (*.pdf)") << "the printer is gone";
}

TEST_F(PrintDialogTest, PdfGoesWhereTheUserWantsItAndWhatFailsIsTold) {
  services.Printers = {"PDF"};  // a printer may well bear that name
  Print(1);
  EXPECT_EQ(services.FileDialogs.at(0).Filter + services.FileDialogs[0].DefaultExt, "PDF (*.pdf)|*.pdfpdf");
  EXPECT_TRUE(services.Printed.first.empty() && services.Boxes.empty()) << "no name chosen";
  services.ChosenFile = (Folder / "evening.pdf").string();
  Print(0);
  EXPECT_EQ(Bytes(services.ChosenFile), services.PdfOf({.Drawing = Report()}));
  EXPECT_TRUE(services.Boxes.empty());
  services.ChosenFile = Folder.string();
  services.PrinterFails = true;
  for (const auto& [index, where] : {std::pair(0, services.ChosenFile + "\n\n"), {1, "\nPDF"}}) {
    Print(index);
    EXPECT_THAT(services.Boxes.at(static_cast<std::size_t>(index)).Text, testing::HasSubstr(where));
  }
}

}  // namespace
}  // namespace tests
