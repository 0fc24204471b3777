#include "f10_print.h"

#include <algorithm>

#include "../platform/mnemonic.h"
#include "game_report.h"

namespace printing {
namespace {

using platform::FileDialog;
using platform::Place;

constexpr int kClientWidth = 5745;
constexpr int kClientHeight = 1980;
constexpr Place kLabelPlace{480, 150, 1515, 255};
constexpr Place kListPlace{2100, 90, 3615, 315};
constexpr Place kPrintPlace{4140, 1590, 1575, 375};
constexpr Place kCancelPlace{120, 1590, 1575, 375};

constexpr const char* kPdfFilter = "PDF (*.pdf)|*.pdf";
constexpr const char* kPrintingFailed = "Das Spiel konnte nicht gedruckt werden:\n";
constexpr const char* kPrintingFailedEnglish = "\n\nThe game could not be printed:\n";

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
  Caption = platform::WithoutMnemonic(state().Text(6));
  lblDrucker.Caption = comDruckerListe.SpokenName = state().Text(91);
  cmdPrintnow.Caption = state().Text(95);
  cmdPrintCancel.Caption = state().Text(77);
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
  SetCaptions();
  SetFocus(comDruckerListe);
  Open();
}

void F10::F10_cmdPrintnow_Click() {
  current_ = printers_.at(static_cast<std::size_t>(printerIndex_));
  if (!PrintGame(current_))
    context_.services.MessageBox(kPrintingFailed + current_ + kPrintingFailedEnglish + current_);
  Leave();
}

/// True also where the user chooses no name for the file.
bool F10::PrintGame(const std::string& printer) {
  platform::Surface page;
  DrawGameReport(state(), context_.services.DecimalSeparator(), page);
  if (printer != kPdfEntry) return context_.services.Print(printer, page);
  pdf_ = {.Filter = kPdfFilter,
          .InitDir = context_.Places().FirstFolder().string(),
          .DialogTitle = platform::WithoutMnemonic(state().Text(6)),
          .Flags = FileDialog::kAskBeforeOverwriting | FileDialog::kPathMustExist,
          .FileName = pdf_.FileName};
  if (!context_.services.ChooseFile(pdf_) || pdf_.FileName.empty()) return true;
  return context_.services.PrintToFile(pdf_.FileName, page);
}

}  // namespace printing
