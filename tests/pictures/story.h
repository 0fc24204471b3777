// Stories: what a user does and what comes of it, line by line in a text file. A line that begins with ">" is a step;
// the lines behind it are what it has changed: windows that opened or closed, the lock of the main window, boxes, and
// each control, line of the game file and line of the settings that is another now. Of drawings these have only the
// words; a step "show" tells all of a window. ORVANBEG_WRITE_PICTURES=1 in the environment writes the outcomes anew.
#pragma once

#include <cstdlib>
#include <map>
#include <numeric>
#include <regex>
#include <sstream>
#include <utility>

#include "../../storage/code_page.h"
#include "../../storage/game_file.h"
#include "../../storage/settings_file.h"
#include "../main_window_fixture.h"
#include "described.h"

namespace tests {

using State = std::map<std::string, std::string>;  ///< what there is to see, by its name

inline const std::map<std::string, platform::KeyCode> kKeyNames{
    {"Esc", platform::kKeyEscape},          {"Enter", platform::kKeyEnter},        {"Tab", platform::kKeyTab},
    {"Space", platform::kKeySpace},         {"Right", platform::kKeyRight},        {"Down", platform::kKeyDown},
    {"Backspace", platform::kKeyBackspace}, {"Pad1", platform::kKeyNumberPad0 + 1}};

class Stories : public MainWindowTest, public testing::WithParamInterface<std::string> {
 protected:
  Stories() {
    services.State = Folder / "state";  // of a program that is started from now on
    create_directories(copies_);
  }

  /// Plays the file that the parameter names, and compares.
  void Play() {
    const std::filesystem::path path = PicturesFolder() / GetParam();
    std::istringstream story(Bytes(path));
    std::string told;
    State before = Now();
    for (std::string line; std::getline(story, line);) {
      if (line.starts_with("#") || line.empty()) told += line + "\n";
      if (!line.starts_with(">")) continue;
      Act(line.substr(1));
      State after = Now();
      told += line + "\n" + std::exchange(shown_, "") + Changes(before, after);
      before = std::move(after);
    }
    if (std::getenv("ORVANBEG_WRITE_PICTURES")) Put(path, told);
    EXPECT_EQ(told, Bytes(path)) << path << ": if it is meant, ORVANBEG_WRITE_PICTURES=1 writes it anew";
  }

  virtual void Act(const std::string& step) {
    std::istringstream words(step);
    std::string verb, name, rest;
    words >> verb >> name;
    std::getline(words >> std::ws, rest);
    if (verb == "game") return LoadWith(name + " " + rest);
    if (verb == "show") return Show(name);
    if (verb == "key") return PressNamed(name);
    if (verb == "keys") return Type(name);
    if (verb == "menu") return Choose(name.c_str());
    if (verb == "tool") return ClickTool(window.F1.tbrMenu, std::stoi(name));
    if (verb == "tick") return FormOf(name).Timers.front()->Elapsed();
    if (verb == "close") return PressCloseBox(FormOf(name));
    if (verb == "click") {
      const auto button = rest == "right"    ? platform::MouseButton::Right
                          : rest == "middle" ? platform::MouseButton::Middle
                                             : platform::MouseButton::Left;
      for (int times = rest.starts_with("*") ? std::stoi(rest.substr(1)) : 1; times > 0; --times) {
        ClickOn(ControlOf(name), button);
      }
      return;
    }
    if (verb == "focus") return FormOf(name).SetFocus(ControlOf(name));
    if (verb == "write") return Write(ControlOf(name), rest);
    if (verb == "pick") return Pick(dynamic_cast<platform::ComboBox&>(ControlOf(name)), std::stoi(rest));
    if (verb == "start") return StartAnew();
    if (verb == "during") return AddToFirstRun(name + " " + rest);
    if (verb == "kept") return WaitForACopy();
    if (verb == "file")
      return Put(Folder / name, std::regex_replace(storage::ToCodePage(rest), std::regex(R"(\\n)"), "\r\n"));
    if (verb == "cut") return resize_file(Folder / name, std::stoul(rest));
    if (verb == "miss") return static_cast<void>(services.MissingPictures.insert(name));
    if (verb == "separator") return static_cast<void>(services.Separator = name);
    if (verb == "folder") return static_cast<void>(create_directory(Folder / name));
    if (verb == "printers") return services.Printers.assign({name, rest});
    if (verb == "jam") return static_cast<void>(services.PrinterFails = true);
    if (verb == "lose") return static_cast<void>(remove(Folder / name));
    if (verb == "answer")
      return services.Answers.push_back(name == "yes" ? platform::Answer::Yes : platform::Answer::No);
    if (verb == "random") return services.RandomNumbers.push_back(std::stod(name));
    if (verb == "choose")
      return static_cast<void>(services.ChosenFile = name == "nothing" ? "" : storage::TextOf(Folder / name));
    FAIL() << "no step: " << verb;
  }
  /// Loads the game as it is but for lines of its file, such as "2=Ada 3=4".
  void LoadWith(const std::string& all) {
    std::vector<std::string> lines;
    std::istringstream changes(all), file(storage::GameFileText(window.State));
    for (std::string line; std::getline(file, line);) lines.push_back(line + "\n");
    for (std::string change; changes >> change;) {
      lines.at(std::stoul(change) - 1) = change.substr(change.find('=') + 1) + "\r\n";
    }
    const std::filesystem::path changed = Folder / "changed.obg";
    services.ChosenFile = storage::TextOf(changed);
    Put(changed, std::accumulate(lines.begin(), lines.end(), std::string()));
    Choose("mnuFileLoad");
    services.ChosenFile.clear();
    remove(changed);
  }
  /// A window, or the page that was printed last.
  void Show(const std::string& name) {
    shown_ = name == "page" ? Drawing(services.Printed.second) : Described(FormOf(name));
  }
  /// Ends the program, counts the copies of games that it has left, and starts it without them.
  void StartAnew() {
    std::destroy_at(&window);
    ended_ = "run " + std::to_string(++runs_) + " left copies: " + std::to_string(Names("state/orvanbeg").size());
    remove_all(copies_);
    create_directories(copies_);
    std::construct_at(&window, services);
    window.Load();
  }
  /// Takes the step while the selection of the first run is open.
  void AddToFirstRun(const std::string& step) {
    services.WhileVisible = [this, before = services.WhileVisible, step](platform::Form& form) {
      if (before) before(form);
      Act(step);
    };
  }
  /// Until one of the copies is the game as it stands.
  void WaitForACopy() {
    const std::string now = storage::GameFileText(window.State);
    const auto isNow = [&](const std::string& name) { return Bytes(copies_ / name) == now; };
    for (int i = 0; i < 5000; ++i) {
      if (std::ranges::any_of(Names("state/orvanbeg"), isNow)) return;
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    ADD_FAILURE() << "no copy is the game as it stands";
  }
  /// "Shift+F1", "Ctrl+N", "Enter", "7".
  void PressNamed(std::string name) {
    platform::Modifiers with;
    for (const auto& [word, held] : {std::pair("Shift+", &with.Shift), {"Ctrl+", &with.Control}, {"Alt+", &with.Alt}}) {
      *held = name.starts_with(word);
      if (*held) name.erase(0, std::string(word).size());
    }
    const bool isFunction = name[0] == 'F' && name.size() > 1;
    const auto named = kKeyNames.find(name);
    Press(isFunction                 ? platform::FunctionKey(std::stoi(name.substr(1)))
          : named == kKeyNames.end() ? name[0]
                                     : named->second,
          with);
  }
  platform::Form& FormOf(const std::string& name) {
    const auto isIt = [&name](const platform::Form* form) { return form->Name == name.substr(0, name.find('.')); };
    return **std::ranges::find_if(window.Desktop.Forms(), isIt);
  }
  platform::Control& ControlOf(const std::string& name) {
    platform::Control* found = Find(FormOf(name), name.substr(name.find('.') + 1));
    if (!found) throw std::out_of_range("no control " + name);
    return *found;
  }
  static platform::Control* Find(const platform::Container& container, const std::string& name) {
    for (platform::Control* control : container.Controls()) {
      if (control->Name == name) return control;
      const auto* inner = dynamic_cast<platform::Container*>(control);
      if (platform::Control* deeper = inner ? Find(*inner, name) : nullptr) return deeper;
    }
    return nullptr;
  }

  static std::string WithSlashes(std::string path) {
    std::ranges::replace(path, '\\', '/');
    return path;
  }
  /// What stories leave to the pictures: places, grounds, borders, tooltips; the temporary folder has no name.
  std::string Plain(const std::string& line) const {
    static const std::regex kLook(
        " -?[0-9.]+,-?[0-9.]+ [0-9]+x[0-9]+| on [0-9A-F]{6}| tip \"[^\"]*\"| border [0-9]| clear");
    std::string plain = std::regex_replace(line, kLook, "");
    const std::string folder = WithSlashes(storage::TextOf(Folder / ""));
    for (auto at = plain.find(folder); at != std::string::npos; at = plain.find(folder))
      plain.replace(at, folder.size(), "/");
    return plain;
  }
  /// Each line that is no drawing, under the name of its owner and its own first word.
  static void Add(State& state, const std::string& owner, const std::string& lines) {
    std::istringstream all(lines);
    for (std::string line; std::getline(all, line);) {
      if (!line.starts_with("    ")) state[owner + "." + line.substr(0, line.find(' '))] = line;
    }
  }
  static std::string WithNumbers(const std::string& bytes, const std::string& mark) {
    std::string lines;
    std::istringstream all(bytes);
    int number = 0;
    for (std::string line; std::getline(all, line, '\r'); all.ignore())
      lines += mark + std::to_string(++number) + " " + line + "\n";
    return lines;
  }
  virtual State Now() {
    State state;
    for (const platform::Form* form : window.Desktop.Forms()) {
      state[form->Name] = form->Visible ? form->Name + " is open" : form->Name + " is gone";
      state[form->Name + " caption"] = form->Name + " \"" + form->Caption.Get() + "\"";
      Add(state, form->Name, DescribedControls(*form, form == &window.F1 ? nullptr : form->Focus()));
    }
    const auto& [printer, page] = services.Printed;
    state["printed"] =
        printer.empty() ? "" : "printed on " + printer + ", " + std::to_string(page.Steps().size()) + " steps";
    for (const std::string& name : Names()) {
      if (is_regular_file(Folder / name))
        state["file " + name] = "file " + name + ", " + std::to_string(file_size(Folder / name)) + " bytes";
    }
    state["ended"] = ended_;
    state["view"] = ViewOffence();
    state["theme"] = window.F1.Image.Get().Name;
    state["strip"] = "strip" + Quoted(" ", window.F1.Drawing.Spoken());
    state["clock"] = Caption("mnuExtraClock");
    state["lock"] = window.F1.Enabled ? "the main window is free" : "the main window is locked";
    state["quit"] = services.QuitStatus == -1 ? "" : "the program ends";
    state["awake"] = services.ScreenAwake ? "the screen stays on" : "the screen may go dark";
    for (std::size_t i = 0; i < services.Boxes.size(); ++i) {
      const ScriptedServices::Box& box = services.Boxes[i];
      state["box " + std::to_string(i)] = "box" + Quoted(" ", WithSlashes(box.Text)) + Quoted(" ", box.Title) +
                                          Flag(" Yes/No", box.Buttons == platform::Buttons::YesNo);
    }
    for (std::size_t i = 0; i < services.FileDialogs.size(); ++i) {
      const platform::FileDialog& dialog = services.FileDialogs[i];
      state["dialog " + std::to_string(i)] =
          "file dialog" + Quoted(" ", dialog.DialogTitle) + " " + dialog.Filter + Quoted(" adds ", dialog.DefaultExt);
    }
    Add(state, "game", WithNumbers(storage::GameFileText(window.State), "game:"));
    Add(state, "settings", WithNumbers(storage::SettingsText(window.State), "settings:"));
    return state;
  }
  /// What is new, in the order of the names.
  std::string Changes(const State& before, const State& after) const {
    std::string lines;
    for (const auto& [name, line] : after) {
      const auto was = before.find(name);
      if (line.empty() || (was != before.end() && was->second == line)) continue;
      lines += Plain(line) + "\n";
    }
    return lines;
  }

 private:
  const std::filesystem::path copies_ = Folder / "state/orvanbeg";
  int runs_ = 0;
  std::string ended_, shown_;
};

/// The files of a folder below that of the pictures.
inline std::vector<std::string> StoriesIn(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(PicturesFolder() / folder))
    if (entry.path().extension() == ".txt") names.push_back((folder / entry.path().filename()).generic_string());
  std::ranges::sort(names);
  return names;
}

inline std::string TitleOf(const testing::TestParamInfo<std::string>& story) {
  return std::filesystem::path(story.param).stem().string();
}

}  // namespace tests
