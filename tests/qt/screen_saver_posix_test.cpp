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

#include "../../platform/qt/screen_saver.h"

namespace {

class Desktop : public QDBusVirtualObject {
 public:
  QStringList Calls;  ///< each with what it was given
  int Lock = -1;      ///< the other end of the lock that the login service has given

  bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
    Calls += call.member();
    for (const QVariant& argument : call.arguments()) Calls.last() += "," + argument.toString();
    if (call.member() == "UnInhibit") return true;
    if (call.interface() == "org.freedesktop.ScreenSaver")
      return bus.send(call.createReply(40U + static_cast<uint>(Calls.size())));
    int ends[2];
    if (pipe2(ends, O_NONBLOCK) != 0) return false;
    Lock = ends[0];
    QDBusUnixFileDescriptor given;
    given.giveFileDescriptor(ends[1]);
    return bus.send(call.createReply(QVariant::fromValue(given)));
  }
  QString introspect(const QString&) const override { return {}; }
  /// What reading at this end tells: 0 that the other is closed, -1 that it is not.
  ssize_t Read() const {
    char byte;
    return read(Lock, &byte, 1);
  }
};

const QString kAsked = "Inhibit,qt_tests,why";
const QString kLocked = "Inhibit,idle,qt_tests,why,block";

TEST(ScreenSaver, IsKeptAwayWhileWantedEvenIfThatChangesBeforeTheAnswer) {
  QProcess daemon;
  daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
  ASSERT_TRUE(daemon.waitForReadyRead()) << "dbus-daemon is needed";
  const QByteArray address = daemon.readLine().trimmed();
  for (const char* bus : {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"}) qputenv(bus, address);
  Desktop desktop;
  QDBusConnection bus = QDBusConnection::connectToBus(address, "desktop");
  ASSERT_TRUE(bus.registerService("org.freedesktop.ScreenSaver"));
  ASSERT_TRUE(bus.registerVirtualObject("/org/freedesktop/ScreenSaver", &desktop));
  {
    const auto screenSaver = platform::qt::ScreenSaver::Make();
    for (const bool away : {false, true, true, false}) screenSaver->KeepAway(away, "why");
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.Calls == QStringList{kAsked, "UnInhibit,41"}; }));
    for (const char* reason : {"why", "warum"}) screenSaver->KeepAway(true, reason);
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.Calls.size() == 5; }));
    QTest::qWait(50);  // for the answer
  }
  const QStringList all{kAsked, "UnInhibit,41", kAsked, "UnInhibit,43", "Inhibit,qt_tests,warum", "UnInhibit,45"};
  EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.Calls == all; }));
  bus.unregisterService("org.freedesktop.ScreenSaver");
  ASSERT_TRUE(bus.registerService("org.freedesktop.login1"));
  ASSERT_TRUE(bus.registerVirtualObject("/org/freedesktop/login1", &desktop));
  const auto screenSaver = platform::qt::ScreenSaver::Make();
  screenSaver->KeepAway(true, "why");
  EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.Calls.last() == kLocked; }));
  QTest::qWait(50);  // for the answer
  EXPECT_EQ(desktop.Read(), -1);
  screenSaver->KeepAway(false, {});
  EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.Read() == 0; }));
  close(desktop.Lock);
  QDBusConnection::disconnectFromBus("desktop");
  daemon.terminate();
  daemon.waitForFinished();
}

}  // namespace
