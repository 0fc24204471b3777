// One application object for all tests of this program, on a screen that nobody sees.
#include <gmock/gmock.h>

#include "../../platform/qt/application.h"

int main(int count, char** arguments) {
  // Windows measures type on its own screen only.
  if (QSysInfo::kernelType() != "winnt") qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleMock(&count, arguments);
  if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();  // while it is built
  const QApplication application(count, arguments);
  platform::qt::SetLook();
  return RUN_ALL_TESTS();
}
