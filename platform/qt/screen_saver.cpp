#include "screen_saver.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

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
  if (asking_ || wanted_ == inhibited_.has_value()) return;
  wanted_ ? Inhibit() : UnInhibit();
}

/// A request that was refused is not repeated before the next call of KeepAway.
void ScreenSaver::Inhibit() {
  asking_ = true;
  const auto call = CallOf("Inhibit") << QCoreApplication::applicationName() << reason_;
  auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
    const QDBusPendingReply<uint> number = *answer;
    answer->deleteLater();
    asking_ = false;
    if (!number.isValid()) return;
    inhibited_ = number.value();
    SendRequest();  // it may not be wanted any more
  });
}

void ScreenSaver::UnInhibit() {
  QDBusConnection::sessionBus().send(CallOf("UnInhibit") << *inhibited_);
  inhibited_.reset();
}

}  // namespace platform::qt
