// What stands in the place of the program's files: a pipe, and a text too long to be shown.
#include <sys/stat.h>
#include <unistd.h>

#include "../../storage/game_file.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using mainwindow::MainWindow;
using FilesTest = MainWindowTest;

TEST_F(FilesTest, APipeIsLeftAloneInThePlaceOfAny) {
  const auto put = [this](const char* name) { remove(Folder / name), mkfifo((Folder / name).c_str(), 0600); };
  alarm(60);  // who opens one waits for ever
  for (const char* name : {"orvanbeg.ini", "readme.txt", "evening.obg"}) put(name);
  services.ChosenFile = Folder / "evening.obg";
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

TEST_F(FilesTest, OfALongTextTheBeginningIsShownWithAMark) {
  const std::string line(40000, 'x');
  Put(Folder / "tastatur.txt", "tw\xF6\n" + line + "\n" + line);
  Choose("mnuHelpKeys");
  EXPECT_EQ(window.F2.txtInfo.Text.Get(), "\r\ntwö\r\n" + line + "\r\n" + window.State.Text(177));
}

}  // namespace
}  // namespace tests
