// Keeps the screen from going dark by the desktop's service on the session bus, or by a lock of the login service where
// there is none. All calls are asynchronous. Without a bus or such services nothing happens.
#pragma once

#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <functional>
#include <optional>
#include <string>

class QDBusConnection;

namespace platform::qt {

class ScreenSaver : private QObject {
 public:
  /// Lets the screen go dark again.
  ~ScreenSaver() override { KeepAway(false, {}); }

  /// Keeps the screen on, or lets it go dark again. Desktops show the reason; another one is asked for anew. The bus is
  /// not used before the first call that keeps it on.
  void KeepAway(bool away, const std::string& reason);

 private:
  using Taker = std::function<void(const QDBusMessage& answer)>;

  void SendRequest();
  void Ask(const QDBusConnection& bus, const QDBusMessage& call, const Taker& take);
  void Inhibit();
  void InhibitIdle();
  void UnInhibit();

  bool wanted_ = false;
  QString reason_;
  QString asked_;                  ///< the reason that was given last
  bool asking_ = false;            ///< waiting for an answer
  std::optional<uint> inhibited_;  ///< the service's number for the request
  QDBusUnixFileDescriptor lock_;   ///< holds the screen as long as it is open
};

}  // namespace platform::qt
