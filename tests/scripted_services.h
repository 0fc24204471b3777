// Services for tests: answers are given beforehand, what was asked is kept.
#pragma once

#include <deque>
#include <set>
#include <string>
#include <vector>

#include "../platform/services.h"

namespace tests {

class ScriptedServices : public platform::Services {
 public:
  struct Box {
    std::string Text;
    std::string Title;
    platform::Buttons Buttons;
    platform::Icon Icon;
    bool operator==(const Box&) const = default;
  };

  std::vector<Box> Boxes;                 ///< the message boxes shown so far
  std::deque<platform::Answer> Answers;   ///< to the next boxes; then Ok and No
  std::deque<double> RandomNumbers;       ///< the next ones; then 0
  std::set<std::string> MissingPictures;  ///< by name
  std::filesystem::path Folder = ORVANBEG_RUN_FOLDER;
  std::string Separator = ",";
  std::string LanguageCode = "de";
  int QuitStatus = -1;  ///< -1: not asked to quit

  platform::Answer MessageBox(const std::string& text, const std::string& title, platform::Buttons buttons,
                              platform::Icon icon) override {
    Boxes.push_back({text, title, buttons, icon});
    return Next(Answers, buttons == platform::Buttons::Ok ? platform::Answer::Ok : platform::Answer::No);
  }
  bool CanShow(const platform::Picture& picture) override {
    return !MissingPictures.contains(picture.Name) && (picture.IsResource || exists(Folder / picture.Name));
  }
  double Random() override { return Next(RandomNumbers, 0.0); }
  std::filesystem::path ProgramFolder() override { return Folder; }
  std::string Today() override { return "22.11.2026"; }
  std::string DecimalSeparator() override { return Separator; }
  std::string SystemLanguage() override { return LanguageCode; }
  void Quit(int status) override { QuitStatus = status; }

 private:
  template <typename T>
  static T Next(std::deque<T>& queue, T otherwise) {
    if (queue.empty()) return otherwise;
    const T next = queue.front();
    queue.pop_front();
    return next;
  }
};

}  // namespace tests
