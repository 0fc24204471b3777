// A text too long to be shown.
#include "../main_window_fixture.h"

namespace tests {
namespace {

using FilesTest = MainWindowTest;

TEST_F(FilesTest, OfALongTextTheBeginningIsShownWithAMark) {
  const std::string line(40000, 'x');
  Put(Folder / "tastatur.txt", "tw\xF6\n" + line + "\n" + line);
  Choose("mnuHelpKeys");
  EXPECT_EQ(window.F2.txtInfo.Text.Get(), "\r\ntwö\r\n" + line + "\r\n" + window.State.Text(177));
}

}  // namespace
}  // namespace tests
