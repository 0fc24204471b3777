// What the program needs from the machine besides windows. Tests have an implementation with scripted answers. All text
// is UTF-8.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "picture.h"
#include "surface.h"
#include "words.h"

namespace platform {

class Form;

/// The three numbers of the program's version.
struct Version {
  int Major = 0;
  int Minor = 0;
  int Revision = 0;
};

enum class Buttons { Ok, YesNo };  ///< of YesNo, No is the default button
enum class Icon { None, Critical };
enum class Answer { Ok, Yes, No };

/// The file dialog of a form. Its properties are set before it is shown; the name chosen last is kept for the next
/// time.
struct FileDialog {
  std::string Filter;  ///< pairs of name and pattern, all separated by "|"
  std::string InitDir;
  std::string DialogTitle;
  bool OpensFile = false;  ///< it opens a file that exists; else it saves one
  std::string DefaultExt;  ///< added to a name typed without extension; empty: the name stays as typed
  /// Why a file cannot be saved there, in words for the user; empty: it can. The dialog stays open below them.
  std::function<std::string(const std::string& path)> Objection;
  std::string FileName;              ///< with its path; empty as long as none was chosen
  std::filesystem::path SideFolder;  ///< a place of its own at the side, where there is such a folder
  std::string SideName;              ///< what it is called there
};

/// A drawing for paper. Fonts have their size in points, pictures 96 pixels to an inch.
struct Page {
  double UnitsPerInch = 300;
  double Width = 0;   ///< of the part of the sheet that is used, from its top left corner, in units. On smaller paper
  double Height = 0;  ///< the page is scaled down
  double TextRight = 0;  ///< no text reaches further, in units
  bool Landscape = false;
  Surface Drawing = {};
};

class Services {
 public:
  virtual ~Services() = default;

  /// Gives the toolkit's own boxes, dialogs and menus the words of a language. Before the first time they are in the
  /// system's language.
  virtual void Speak(const Words& words) = 0;

  /// Shows a message box and waits for the answer. Forms take no input meanwhile; timers go on. Without a title the
  /// box has the program's name. Closing a YesNo box answers No.
  virtual Answer MessageBox(const std::string& text, const std::string& title = {}, Buttons buttons = Buttons::Ok,
                            Icon icon = Icon::None) = 0;

  /// Handles events until the form is hidden. For modal forms.
  virtual void WaitWhileVisible(Form& form) = 0;

  /// Lets the user choose a file; false if none was chosen. `dialog.FileName` is the chosen one.
  virtual bool ChooseFile(FileDialog& dialog) = 0;

  /// The names of the installed printers, the system's default first.
  virtual std::vector<std::string> PrinterNames() = 0;

  /// Prints a page; false if the printer does not take it.
  virtual bool Print(const std::string& printer, const Page& page) = 0;

  /// The bytes of a PDF file that holds the page.
  virtual std::string PdfOf(const Page& page) = 0;

  /// The version of the program.
  virtual Version ProgramVersion() = 0;

  /// Whether the picture is there and can be decoded.
  virtual bool CanShow(const Picture& picture) = 0;

  /// A random number, at least 0 and below 1.
  virtual double Random() = 0;

  /// The folder that holds the running program.
  virtual std::filesystem::path ProgramFolder() = 0;

  /// Today's date in the system's short form or, where that is not written in ASCII, as "2026-11-22".
  virtual std::string Today() = 0;

  /// The folder for the user's own settings of all programs.
  virtual std::filesystem::path ConfigurationFolder() = 0;

  /// The folder for the user's own documents; the home folder where there is none.
  virtual std::filesystem::path DocumentsFolder() = 0;

  /// The folder for what the user's programs keep by themselves.
  virtual std::filesystem::path StateFolder() = 0;

  /// The system's decimal separator, "." or "," as a rule.
  virtual std::string DecimalSeparator() = 0;

  /// Keeps the screen on while nobody touches keyboard or mouse, where the system can do that. It is shown to the user
  /// for which `reason`.
  virtual void KeepScreenAwake(bool awake, const std::string& reason) = 0;

  /// Ends the process after the current event. Status 0: success.
  virtual void Quit(int status) = 0;
};

}  // namespace platform
