#include "screen_saver.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>

namespace platform::qt {
namespace {

QDBusMessage CallOf(const char* method) {
  auto call = QDBusMessage::createMethodCall("org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver",
                                             "org.freedesktop.ScreenSaver", method);
  call.setAutoStartService(false);  // a desktop that has the service runs it
  return call;
}

}  // namespace

void ScreenSaver::KeepAway(bool away, const std::string& reason) {
  wanted_ = away;
  reason_ = QString::fromStdString(reason);
  SendRequest();
}

void ScreenSaver::SendRequest() {
  if (asking_) return;
  if (!wanted_ || reason_ != asked_) UnInhibit();
  if (wanted_ && !inhibited_ && !lock_.isValid()) Inhibit();
}

/// Takes the answer when it comes, an empty one where there is no bus.
void ScreenSaver::Ask(const QDBusConnection& bus, const QDBusMessage& call, const Taker& take) {
  asking_ = true;
  if (!bus.isConnected()) return take({});
  auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [answer, take] {
    answer->deleteLater();
    take(answer->reply());
  });
}

void ScreenSaver::Inhibit() {
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
void ScreenSaver::InhibitIdle() {
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

void ScreenSaver::UnInhibit() {
  if (inhibited_) QDBusConnection::sessionBus().send(CallOf("UnInhibit") << *inhibited_);
  inhibited_.reset();
  lock_ = {};
}

}  // namespace platform::qt
