#include "f10_print.h"

#include <algorithm>

#include "../core/texts.h"
#include "../platform/mnemonic.h"
#include "../storage/path_text.h"
#include "../storage/safe_file.h"
#include "../windows/saving.h"
#include "game_report.h"

namespace printing {
namespace {

namespace text = core::text;
using platform::Place;

constexpr int kClientWidth = 5745;
constexpr int kClientHeight = 1980;
constexpr Place kLabelPlace{480, 150, 1515, 255};
constexpr Place kListPlace{2100, 90, 3615, 315};
constexpr Place kPrintPlace{4140, 1590, 1575, 375};
constexpr Place kCancelPlace{120, 1590, 1575, 375};

}  // namespace

F10::F10(const windows::Context& context)
    : Dialog(context, "F10", kClientWidth, kClientHeight),
      lblDrucker(this, "lblDrucker", kLabelPlace),
      comDruckerListe(this, "comDruckerListe", kListPlace),
      cmdPrintnow(this, "cmdPrintnow", kPrintPlace),
      cmdPrintCancel(this, "cmdPrintCancel", kCancelPlace) {
  lblDrucker.Align = platform::Alignment::Right;
  comDruckerListe.Click = [this] { printerIndex_ = comDruckerListe.ListIndex; };
  cmdPrintnow.Default = true;
  cmdPrintnow.Click = [this] { F10_cmdPrintnow_Click(); };
  cmdPrintCancel.Cancel = true;
  cmdPrintCancel.Click = [this] { Leave(); };
  Close = [this] { Leave(); };
}

void F10::SetCaptions() {
  Caption = platform::WithoutMnemonic(state().Text(text::MenuPrint));
  lblDrucker.Caption = comDruckerListe.SpokenName = state().Text(text::PrintOn);
  cmdPrintnow.Caption = state().Text(text::Print);
  cmdPrintCancel.Caption = state().Text(text::Cancel);
}

/// What the box shows is what is printed on, so the current printer comes first.
void F10::ListPrinters() {
  printers_ = context_.services.PrinterNames();
  printers_.emplace_back(kPdfEntry);
  const auto current = std::find(printers_.begin(), printers_.end(), current_);
  if (current != printers_.end()) std::rotate(printers_.begin(), current, current + 1);
  comDruckerListe.Clear();
  comDruckerListe.Text = printers_.front();
  for (const std::string& printer : printers_) comDruckerListe.AddItem(printer);
  printerIndex_ = 0;
}

void F10::OpenPrint() {
  ListPrinters();
  SetFocus(comDruckerListe);
  Open();
}

void F10::F10_cmdPrintnow_Click() {
  current_ = printers_.at(static_cast<std::size_t>(printerIndex_));
  PrintGame();
  Leave();
}

void F10::PrintGame() {
  platform::Page page{.UnitsPerInch = kUnitsPerInch,
                      .Width = kPageWidth,
                      .Height = kPageHeight,
                      .TextRight = kTextRight,
                      .Landscape = true};
  DrawGameReport(state(), context_.services.DecimalSeparator(), page.Drawing);
  if (current_ == kPdfEntry) {
    WritePdf(page);
  } else if (!context_.services.Print(current_, page)) {
    context_.services.MessageBox(state().Text(text::GameNotPrinted) + "\n" + current_);
  }
}

/// Nothing happens where the user chooses no name.
void F10::WritePdf(const platform::Page& page) {
  pdfFile_.Filter = "PDF (*.pdf)|*.pdf";
  pdfFile_.DefaultExt = "pdf";
  pdfFile_.Objection = [this](const std::string& file) {
    return windows::ObjectionToSaving(state(), storage::PathOf(file), false);
  };
  pdfFile_.InitDir = storage::TextOf(context_.places.FirstFolder());
  pdfFile_.DialogTitle = Caption;
  if (!context_.services.ChooseFile(pdfFile_) || pdfFile_.FileName.empty()) return;
  const std::filesystem::path chosen = storage::PathOf(pdfFile_.FileName);
  const auto written = storage::WriteWhole(chosen, context_.services.PdfOf(page));
  if (!written) context_.services.MessageBox(windows::TextOfFailure(state(), text::GameNotPrinted, chosen, written));
}

}  // namespace printing
