// The screen is kept on through the desktop's service or the login service, here on a bus of the test's own.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTest>
#include <set>

#include "../../platform/qt/screen_saver.h"

namespace {

/// Numbers what it is asked for, or as the login service gives a lock.
class Desktop : public QDBusVirtualObject {
 public:
  QStringList Asked;  ///< what each request was given

  bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
    if (call.member() == "UnInhibit") return numbers_.erase(call.arguments()[0].toUInt()) == 1;
    Asked += QVariant(call.arguments()).toStringList().join(",");
    if (call.interface() == "org.freedesktop.ScreenSaver")
      return bus.send(call.createReply(*numbers_.insert(40U + static_cast<uint>(Asked.size())).first));
    int ends[2];
    if (pipe2(ends, O_NONBLOCK) != 0) return false;
    locks_.push_back(ends[0]);
    QDBusUnixFileDescriptor given;
    given.giveFileDescriptor(ends[1]);
    return bus.send(call.createReply(QVariant::fromValue(given)));
  }
  QString introspect(const QString&) const override { return {}; }
  /// Requests that were not taken back: reading from a lock says -1 as long as its other end is open.
  auto Held() const {
    char byte;
    const auto open = [&byte](int lock) { return read(lock, &byte, 1) == -1; };
    return std::ssize(numbers_) + std::ranges::count_if(locks_, open);
  }

 private:
  std::set<uint> numbers_;
  std::vector<int> locks_;
};

TEST(ScreenSaver, IsKeptAwayWhileWantedEvenIfThatChangesBeforeTheAnswer) {
  QProcess daemon;
  daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
  ASSERT_TRUE(daemon.waitForReadyRead()) << "dbus-daemon is needed";
  const QByteArray address = daemon.readLine().trimmed();
  for (const char* bus : {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"}) qputenv(bus, address);
  QDBusConnection bus = QDBusConnection::connectToBus(address, "desktop");
  const std::tuple<QString, QString, QString> rows[] = {
      {"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver", "qt_tests,%1"},
      {"org.freedesktop.login1", "/org/freedesktop/login1", "idle,qt_tests,%1,block"}};
  for (const auto& [service, path, asks] : rows) {
    Desktop desktop;
    ASSERT_TRUE(bus.registerService(service) && bus.registerVirtualObject(path, &desktop));
    auto screenSaver = platform::qt::ScreenSaver::Make();
    for (const bool away : {false, true, true, false}) screenSaver->KeepAway(away, "why");
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.Asked.size() == 1 && desktop.Held() == 0; }));
    for (const char* reason : {"why", "warum"}) screenSaver->KeepAway(true, reason);
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.Asked.size() == 3; }));
    QTest::qWait(50);  // for the answer
    EXPECT_EQ(desktop.Held(), 1);
    screenSaver.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.Held() == 0; }));
    EXPECT_EQ(desktop.Asked, (QStringList{asks.arg("why"), asks.arg("why"), asks.arg("warum")}));
    bus.unregisterService(service);
  }
  daemon.terminate();
  daemon.waitForFinished();
}

}  // namespace
