// Keeps the screen from going dark, through the desktop's own service on the session bus. Nothing here waits: calls are
// sent off, and answers are taken as they come. Where there is no bus or no such service nothing happens.
#pragma once

#include <QObject>
#include <optional>

namespace platform::qt {

class ScreenSaver : private QObject {
 public:
  /// Gives the screen free.
  ~ScreenSaver() override { KeepAway(false); }

  /// From now on the screen stays on, or may go dark again. The bus is not looked for before it is needed.
  void KeepAway(bool away);

 private:
  void Settle();
  void Inhibit();
  void UnInhibit();

  bool wanted_ = false;
  bool asking_ = false;            ///< the answer is still to come
  std::optional<uint> inhibited_;  ///< the number under which the service holds the screen
};

}  // namespace platform::qt
