// By the desktop's service on the session bus, or by a lock of the login service where there is none. All calls are
// asynchronous. Without a bus or such services nothing happens.
#include "screen_saver.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <functional>
#include <optional>

namespace platform::qt {
namespace {

/// The bus is not used before the first call that keeps the screen on.
class BusScreenSaver : public ScreenSaver, private QObject {
 public:
  ~BusScreenSaver() override { UnInhibit(); }
  void KeepAway(bool away, const std::string& reason) override;

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

QDBusMessage CallOf(const char* method) {
  auto call = QDBusMessage::createMethodCall("org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver",
                                             "org.freedesktop.ScreenSaver", method);
  call.setAutoStartService(false);  // a desktop that has the service runs it
  return call;
}

void BusScreenSaver::KeepAway(bool away, const std::string& reason) {
  wanted_ = away;
  reason_ = QString::fromStdString(reason);
  SendRequest();
}

void BusScreenSaver::SendRequest() {
  if (asking_) return;
  if (!wanted_ || reason_ != asked_) UnInhibit();
  if (wanted_ && !inhibited_ && !lock_.isValid()) Inhibit();
}

/// Takes the answer when it comes, an empty one where there is no bus.
void BusScreenSaver::Ask(const QDBusConnection& bus, const QDBusMessage& call, const Taker& take) {
  asking_ = true;
  if (!bus.isConnected()) return take({});
  auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [answer, take] {
    answer->deleteLater();
    take(answer->reply());
  });
}

void BusScreenSaver::Inhibit() {
  asked_ = reason_;
  const auto call = CallOf("Inhibit") << QCoreApplication::applicationName() << asked_;
  Ask(QDBusConnection::sessionBus(), call, [this](const QDBusMessage& answer) {
    const QDBusReply<uint> number = answer;
    if (!number.isValid()) return InhibitIdle();
    asking_ = false;
    inhibited_ = number.value();
    SendRequest();  // it may not be wanted any more
  });
}

/// For desktops without the service: the daemon that darkens their screen minds the locks of the login service. A
/// request that is refused here too is not repeated before the next call of KeepAway.
void BusScreenSaver::InhibitIdle() {
  const auto call = QDBusMessage::createMethodCall("org.freedesktop.login1", "/org/freedesktop/login1",
                                                   "org.freedesktop.login1.Manager", "Inhibit")
                    << "idle" << QCoreApplication::applicationName() << asked_ << "block";
  Ask(QDBusConnection::systemBus(), call, [this](const QDBusMessage& answer) {
    const QDBusReply<QDBusUnixFileDescriptor> lock = answer;
    asking_ = false;
    if (!lock.isValid()) return;
    lock_ = lock.value();
    SendRequest();  // it may not be wanted any more
  });
}

void BusScreenSaver::UnInhibit() {
  if (inhibited_) QDBusConnection::sessionBus().send(CallOf("UnInhibit") << *inhibited_);
  inhibited_.reset();
  lock_ = {};
}

}  // namespace

std::unique_ptr<ScreenSaver> ScreenSaver::Make() { return std::make_unique<BusScreenSaver>(); }

}  // namespace platform::qt
