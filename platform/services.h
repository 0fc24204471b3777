// What the program needs of the machine beyond its windows, as one small interface: tests put one with scripted
// answers in its place. All text is UTF-8.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "file_dialog.h"
#include "picture.h"

namespace platform {

class Form;
class Surface;

/// The three numbers of the program's version.
struct Version {
  int Major = 0;
  int Minor = 0;
  int Revision = 0;
};

enum class Buttons { Ok, YesNo };  ///< of YesNo, No is the default button
enum class Icon { None, Critical };
enum class Answer { Ok, Yes, No };

class Services {
 public:
  virtual ~Services() = default;

  /// Asks or tells; returns when the user has answered. Nothing reaches a form meanwhile; timers go on. A box without
  /// a title of its own bears the program's. A YesNo box that is closed otherwise answers No.
  virtual Answer MessageBox(const std::string& text, const std::string& title = {}, Buttons buttons = Buttons::Ok,
                            Icon icon = Icon::None) = 0;

  /// Lets events come until the form is hidden; for the one form that is modal.
  virtual void WaitWhileVisible(Form& form) = 0;

  /// Lets the user choose a file; false if none was chosen. `dialog.FileName` is the chosen one.
  virtual bool ChooseFile(FileDialog& dialog) = 0;

  /// The installed printers by name, the system's default first; none where there is none.
  virtual std::vector<std::string> PrinterNames() = 0;

  /// Prints a page, drawn in 1/300 inch from the top left of the sheet; false if the printer does not take it.
  virtual bool Print(const std::string& printer, const Surface& page) = 0;

  /// The bytes of a PDF file that holds the page.
  virtual std::string PdfOf(const Surface& page) = 0;

  /// The version of the program.
  virtual Version ProgramVersion() = 0;

  /// Whether the picture is there and can be decoded.
  virtual bool CanShow(const Picture& picture) = 0;

  /// A random number, at least 0 and below 1.
  virtual double Random() = 0;

  /// The folder that holds the running program.
  virtual std::filesystem::path ProgramFolder() = 0;

  /// Today's date in the system's short form.
  virtual std::string Today() = 0;

  /// The folder for the user's own settings of all programs.
  virtual std::filesystem::path ConfigurationFolder() = 0;

  /// The folder for the user's own documents; the home folder where there is none.
  virtual std::filesystem::path DocumentsFolder() = 0;

  /// The system's decimal separator, "." or "," as a rule.
  virtual std::string DecimalSeparator() = 0;

  /// Whether the screen stays on though nobody touches keyboard or mouse. Where the system cannot do that, it does not.
  virtual void KeepScreenAwake(bool awake) = 0;

  /// Ends the process in an orderly way once the current event is done. Status 0: all is well.
  virtual void Quit(int status) = 0;
};

}  // namespace platform
