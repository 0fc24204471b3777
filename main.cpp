// Joins the rooms: the application, the services of the machine, the main window and what shows it.
#include "mainwindow/main_window.h"
#include "platform/qt/application.h"
#include "platform/qt/qt_services.h"
#include "platform/qt/shell.h"
#include "storage/view_file.h"
#include "windows/image_lists.h"

int main(int, char** arguments) {
  platform::qt::Application application(
      arguments[0], {"Orvan Begleiter", "orvanbeg", windows::kProgramIcon, windows::kSmallProgramIcon});
  platform::qt::QtServices services({ORVANBEG_VERSION_MAJOR, ORVANBEG_VERSION_MINOR, ORVANBEG_VERSION_REVISION});
  mainwindow::MainWindow window(services);
  const storage::Places& places = window.Places();
  platform::qt::Shell shell(window.Desktop, window.F1, storage::ReadViewSize(places.ViewFile()));
  shell.OnResize = [&places](int size) { storage::WriteViewSize(places.ViewFile(), size); };
  if (window.Load() != mainwindow::Started::Yes) return 1;
  return application.Run();
}
