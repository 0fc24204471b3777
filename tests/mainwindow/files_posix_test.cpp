// What stands in the place of the program's files: a pipe.
#include <sys/stat.h>
#include <unistd.h>

#include "../../storage/game_file.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using mainwindow::MainWindow;
using PipeTest = MainWindowTest;

TEST_F(PipeTest, APipeIsLeftAloneInThePlaceOfAny) {
  const auto put = [this](const char* name) { remove(Folder / name), mkfifo((Folder / name).c_str(), 0600); };
  alarm(60);  // who opens one waits for ever
  for (const char* name : {"orvanbeg.ini", "readme.txt", "evening.obg"}) put(name);
  services.ChosenFile = storage::TextOf(Folder / "evening.obg");
  MainWindow later(services);
  later.Load();
  later.F1.ClickMenu((*later.F1.MenuBar)["mnuFileLoad"]);
  later.F3.ShowReadme();
  EXPECT_TRUE(later.F1.AcceptsInput());
  EXPECT_EQ(storage::GameFileText(later.State), storage::GameFileText(window.State));
  put("language.ini");
  EXPECT_EQ(MainWindow(services).Load(), mainwindow::Started::NoLanguage);
  alarm(0);
}

}  // namespace
}  // namespace tests
