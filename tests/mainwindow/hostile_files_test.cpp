// What is no file of the program, in the place of one: it is let be at once, and does not fill the memory.
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>

#include "../../storage/game_file.h"
#include "../main_window_fixture.h"
#include "../storage/temporary_folder.h"

namespace tests {
namespace {

using std::filesystem::path;

long PeakMegabytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss / 1024;
}

struct HostileFilesTest : TemporaryFolder {
  HostileFilesTest() {
    services.Folder = Folder;
    services.ChosenFile = Folder / "evening.obg";
    alarm(60);  // who waits for a pipe waits for ever
  }
  ~HostileFilesTest() override { alarm(0); }
  mainwindow::Started Start() {
    window = std::make_unique<mainwindow::MainWindow>(services);
    return window->Load();
  }

  ScriptedServices services;
  std::unique_ptr<mainwindow::MainWindow> window;
};

TEST_F(HostileFilesTest, AreLetBeAtOnceWhateverTheyStandFor) {
  const std::pair<const char*, std::function<void(const path&)>> kinds[] = {
      {"folder", [](const path& at) { create_directory(at); }},
      {"pipe", [](const path& at) { mkfifo(at.c_str(), 0600); }},
      {"loop", [](const path& at) { create_symlink(at.filename(), at); }},
      {"endless device", [](const path& at) { create_symlink("/dev/zero", at); }},
      {"100 MB", [](const path& at) { Put(at, "#PLR1\r\n"), resize_file(at, 100'000'000); }},
  };
  const long peak = PeakMegabytes();
  for (const auto& [kind, make] : kinds) {
    const auto begin = std::chrono::steady_clock::now();
    for (const char* name : {"orvanbeg.ini", "readme.txt", "evening.obg"}) make(Folder / name);
    copy_file(path(ORVANBEG_RUN_FOLDER) / "language.ini", Folder / "language.ini");
    ASSERT_EQ(Start(), mainwindow::Started::Yes) << kind;
    const std::string game = storage::GameFileText(window->State);
    window->F3.ShowReadme();
    window->F1_mnuFileLoad_Click();
    EXPECT_EQ(storage::GameFileText(window->State), game) << kind;
    remove(Folder / "language.ini");
    make(Folder / "language.ini");
    EXPECT_EQ(Start(), mainwindow::Started::NoLanguage) << kind;
    for (const std::string& name : Names()) remove_all(Folder / name);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(4)) << kind;  // one for each file
  }
  EXPECT_LT(PeakMegabytes() - peak, 50);
}

}  // namespace
}  // namespace tests
