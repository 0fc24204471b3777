// Paper: the installed printers, and a page drawn on one of them or into a PDF file, by the same steps as the screen.
#pragma once

#include <string>
#include <vector>

#include "../surface.h"

namespace platform::qt {

/// The names of the installed printers, the system's default first.
std::vector<std::string> InstalledPrinters();

/// Prints the page, whose unit is 1/300 inch from the corner of the sheet. False if the printer is gone, stands still
/// or does not take it.
bool PrintOn(const std::string& printer, const Surface& page);

/// The page as the bytes of a PDF file, on the paper of the system's country.
std::string PdfBytes(const Surface& page);

}  // namespace platform::qt
