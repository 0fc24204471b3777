// Keeps the screen from going dark by the desktop's service on the session bus. All calls are asynchronous. Without a
// bus or such a service nothing happens.
#pragma once

#include <QObject>
#include <QString>
#include <optional>
#include <string>

namespace platform::qt {

class ScreenSaver : private QObject {
 public:
  /// Lets the screen go dark again.
  ~ScreenSaver() override { KeepAway(false, {}); }

  /// Keeps the screen on, or lets it go dark again. Desktops show the reason. The bus is not used before the first call
  /// that keeps it on.
  void KeepAway(bool away, const std::string& reason);

 private:
  void SendRequest();
  void Inhibit();
  void UnInhibit();

  bool wanted_ = false;
  QString reason_;
  bool asking_ = false;            ///< waiting for the answer of the service
  std::optional<uint> inhibited_;  ///< the service's number for the request
};

}  // namespace platform::qt
