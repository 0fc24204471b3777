// An evening is long: what is opened, saved, rolled and taken back again and again takes no more memory than it did the
// first times. ORVANBEG_ROUNDS sets how often, 1000 for a long look.
#include <malloc.h>

#include <QTemporaryDir>
#include <QTimer>
#include <cstdlib>

#include "../../platform/qt/qt_services.h"
#include "real_windows.h"

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // the compiler brings no header for it
#endif

namespace {

// In rounds and bytes. The toolkit's own caches fill up in some hundred rounds; a window that is forgotten has
// thousands.
constexpr long kRounds = 40;
constexpr long kCaches = 100'000;
constexpr long kMostGrowthPerRound = 16;

long HeapBytes() {
#ifdef __SANITIZE_ADDRESS__
  return static_cast<long>(__sanitizer_get_current_allocated_bytes());
#else
  const auto heap = mallinfo2();
  return static_cast<long>(heap.uordblks + heap.hblkhd);
#endif
}

class Memory : public tests::RealWindows {
 protected:
  Memory() {
    const std::filesystem::path folder = folder_.path().toStdString();
    std::filesystem::copy(tests::RunFolder(), folder, std::filesystem::copy_options::recursive);
    Services.Folder = folder;
    Services.ChosenFile = folder / "game.obg";
  }

  template <typename Round>
  void ExpectNoGrowth(Round round) {
    const char* told = std::getenv("ORVANBEG_ROUNDS");
    const long rounds = told ? std::atol(told) : kRounds;
    for (long i = 0; i < kRounds; ++i) round();
    const long before = HeapBytes();
    for (long i = 0; i < rounds; ++i) round();
    EXPECT_LE(HeapBytes() - before, kCaches + rounds * kMostGrowthPerRound) << "bytes in " << rounds << " rounds";
  }

  void Show() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  /// By Enter or the close box; the next two boxes are answered with Yes.
  void LeaveAll() {
    Show();
    for (platform::Form* form : Window.Desktop.Forms()) {
      if (form != &Window.F1 && form->Visible) tests::Key(*form, platform::kKeyEnter);
      if (form != &Window.F1 && form->Visible) form->PressCloseBox();
    }
    Show();
    Services.Boxes.clear();
    Services.FileDialogs.clear();
    Services.Answers.assign(2, platform::Answer::Yes);
  }

  QTemporaryDir folder_;
};

TEST_F(Memory, DoesNotGrowWithCommandsAndDialogs) {
  ExpectNoGrowth([this] {
    for (const mainwindow::Command& command : mainwindow::Commands()) {
      if (command.Run) Window.F1.ClickMenu((*Window.F1.MenuBar)[command.Menu.Name]);
      LeaveAll();
    }
    for (const platform::Modifiers with : {platform::Modifiers{}, platform::Modifiers{.Shift = true}}) {
      tests::Key(Window.F1, platform::FunctionKey(2), with);
      LeaveAll();
    }
  });
}

TEST_F(Memory, DoesNotGrowWithBoxesAndFileDialogs) {
  platform::qt::QtServices services({});
  const auto closeSoon = [] { QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); }); };
  ExpectNoGrowth([&] {
    closeSoon();
    services.MessageBox("Wirklich?", "", platform::Buttons::YesNo, platform::Icon::Critical);
    closeSoon();
    platform::FileDialog dialog;
    dialog.InitDir = tests::RunFolder().string();
    services.ChooseFile(dialog);
    Show();
  });
}

}  // namespace
