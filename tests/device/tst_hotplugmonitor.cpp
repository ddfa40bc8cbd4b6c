// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/hotplugmonitor.h"

#include "mockbus.h"
#include "privatebus.h"

#include <QDBusMessage>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <optional>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

QStringList names(const QSignalSpy &spy)
{
    QStringList list;
    for (const auto &arguments : spy)
        list.append(arguments.constFirst().toString());
    return list;
}

} // namespace

class TestHotplugMonitor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_monitor.emplace();
        m_appeared.emplace(&*m_monitor, &HotplugMonitor::sigPortAppeared);
        m_gone.emplace(&*m_monitor, &HotplugMonitor::sigPortGone);
        m_changed.emplace(&*m_monitor, &HotplugMonitor::sigUsbChanged);
        m_resumed.emplace(&*m_monitor, &HotplugMonitor::sigResumed);
    }

    void cardComesAndGoes()
    {
        MockCard card;
        card.id = {0x1209, 0x0001};
        card.ports = {{0, u"ttyUSB0"_s}, {1, u"ttyUSB1"_s}, {2, u"ttyUSB2"_s}};
        const QStringList ports{u"/dev/ttyUSB0"_s, u"/dev/ttyUSB1"_s, u"/dev/ttyUSB2"_s};
        m_bus.plug(card);
        QTRY_COMPARE(m_changed->size(), 1); // for the stick and its three ports
        QCOMPARE(names(*m_appeared), ports);
        QCOMPARE(names(*m_gone), QStringList());

        const QObject scope;
        qsizetype changesBefore = 0;
        connect(&*m_monitor, &HotplugMonitor::sigPortGone, &scope,
                [&] { changesBefore = m_changed->size(); });
        m_bus.unplug(card);
        QTRY_COMPARE(names(*m_gone), ports);
        QCOMPARE(changesBefore, 1); // gone is told before things have settled
        QTRY_COMPARE(m_changed->size(), 2);
    }

    void linkOfAnEmulatedCard()
    {
        const QTemporaryDir folder;
        const QString port = folder.filePath(u"at"_s);
        QVERIFY(QFile::link(u"/dev/null"_s, port));
        m_monitor->watchPorts({port});
        QVERIFY(QFile::remove(port));
        QTRY_COMPARE(names(*m_gone), QStringList{port});
        QVERIFY(QFile::link(u"/nowhere"_s, port)); // leads to no port yet
        QFile unrelated(folder.filePath(u"log"_s));
        QVERIFY(unrelated.open(QIODevice::WriteOnly));
        QTRY_COMPARE(m_changed->size(), 1);
        QCOMPARE(names(*m_appeared), QStringList());
        QVERIFY(QFile::remove(port) && QFile::link(u"/dev/null"_s, port));
        QTRY_COMPARE(names(*m_appeared), QStringList{port});
    }

    void linkReplacedAtOnce()
    {
        const QTemporaryDir folder;
        const QString port = folder.filePath(u"at"_s);
        QVERIFY(QFile::link(u"/dev/null"_s, port));
        m_monitor->watchPorts({port});
        QVERIFY(QFile::remove(port) && QFile::link(u"/dev/null"_s, port));
        QTRY_COMPARE(names(*m_appeared), QStringList{port});
        QCOMPARE(names(*m_gone), QStringList{port});
    }

    void folderComesAndGoes()
    {
        const QTemporaryDir top;
        const QString port = top.filePath(u"run/card/at"_s);
        m_monitor->watchPorts({port});
        for (int round = 1; round <= 3; ++round) {
            QVERIFY(QDir(top.path()).mkpath(u"run/card"_s) && QFile::link(u"/dev/null"_s, port));
            QTRY_COMPARE(m_appeared->size(), round);
            QVERIFY(QDir(top.filePath(u"run"_s)).removeRecursively());
            QTRY_COMPARE(m_gone->size(), round);
        }
    }

    void resume()
    {
        QDBusConnection login = m_systemBus.connection(u"login"_s);
        QVERIFY(login.registerService(u"org.freedesktop.login1"_s));
        const auto send = [&](bool start) {
            QDBusMessage signal = QDBusMessage::createSignal(
                u"/org/freedesktop/login1"_s, u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s);
            signal << start;
            return login.send(signal);
        };
        QVERIFY(send(true));
        QVERIFY(send(false));
        QTRY_COMPARE(m_resumed->size(), 1);
        QDBusConnection::disconnectFromBus(u"login"_s);
    }

private:
    PrivateBus m_systemBus;
    MockBus m_bus;
    std::optional<HotplugMonitor> m_monitor;
    std::optional<QSignalSpy> m_appeared;
    std::optional<QSignalSpy> m_gone;
    std::optional<QSignalSpy> m_changed;
    std::optional<QSignalSpy> m_resumed;
};

QTEST_GUILESS_MAIN(TestHotplugMonitor)
#include "tst_hotplugmonitor.moc"
