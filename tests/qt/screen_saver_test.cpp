// The screen is kept on through the desktop's service, here on a session bus of the test's own.
#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTest>

#include "../../platform/qt/screen_saver.h"

namespace {

class Desktop : public QDBusVirtualObject {
 public:
  QStringList Calls;  ///< "U" and a number for the calls that release one

  bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
    Calls += call.member().left(1) + (call.arguments().size() == 1 ? call.arguments()[0].toString() : QString());
    return call.member() != "Inhibit" || bus.send(call.createReply(40U + static_cast<uint>(Calls.size())));
  }
  QString introspect(const QString&) const override { return {}; }
};

TEST(ScreenSaver, IsKeptAwayWhileWantedEvenIfThatChangesBeforeTheAnswer) {
  QProcess daemon;
  daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
  ASSERT_TRUE(daemon.waitForReadyRead()) << "dbus-daemon is needed";
  const QByteArray address = daemon.readLine().trimmed();
  qputenv("DBUS_SESSION_BUS_ADDRESS", address);
  Desktop desktop;
  QDBusConnection bus = QDBusConnection::connectToBus(address, "desktop");
  ASSERT_TRUE(bus.registerService("org.freedesktop.ScreenSaver"));
  ASSERT_TRUE(bus.registerVirtualObject("/org/freedesktop/ScreenSaver", &desktop));
  {
    platform::qt::ScreenSaver screenSaver;
    for (const bool away : {false, true, true, false}) screenSaver.KeepAway(away, "why");
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.Calls == QStringList{"I", "U41"}; }));
    screenSaver.KeepAway(true, "why");
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.Calls.size() == 3; }));
    QTest::qWait(50);  // for the answer
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.Calls == QStringList{"I", "U41", "I", "U43"}; }));
  QDBusConnection::disconnectFromBus("desktop");
  daemon.terminate();
  daemon.waitForFinished();
}

}  // namespace
