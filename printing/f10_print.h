// F10, the print dialog: asks on which printer the report goes. The printer used last stands first in its list; one
// entry always writes a PDF file.
#pragma once

#include "../windows/dialog.h"

namespace printing {

/// The entry of the list that writes a file instead of paper. No printer bears such a name; one may well be called PDF.
inline constexpr const char* kPdfEntry = "PDF (*.pdf)";

class F10 : public windows::Dialog {
 public:
  explicit F10(const windows::Context& context);

  platform::Label lblDrucker;
  platform::ComboBox comDruckerListe;
  platform::CommandButton cmdPrintnow;
  platform::CommandButton cmdPrintCancel;

  /// Lists the printers and opens the dialog.
  void OpenPrint();
  void SetCaptions() override;

 private:
  void ListPrinters();
  void PrintGame();
  void WritePdf(const platform::Page& page);
  void F10_cmdPrintnow_Click();

  std::vector<std::string> printers_;  ///< in the order of the list
  std::string current_;                ///< used last; empty: none yet
  int printerIndex_ = 0;               ///< the place in the list of the printer to use
  platform::FileDialog pdfFile_;       ///< keeps the name chosen last
};

}  // namespace printing
