// SPDX-License-Identifier: GPL-3.0-or-later
// Runs on a session bus of its own (dbus-run-session).
#include "window/desktopnotifier.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QSignalSpy>
#include <QTest>
#include <QVariantMap>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

/// What a desktop shows.
struct Shown {
    uint id = 0;
    QString title;
    QString body;
    QStringList actions;
};

class Server : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    explicit Server(QObject *parent) : QDBusAbstractAdaptor(parent) {}
    QList<Shown> shown;
    QStringList wasShown;

public Q_SLOTS:
    // clang-format off
    uint Notify(const QString &, uint replaces, const QString &, const QString &title, const QString &body,
                const QStringList &actions, const QVariantMap &, int)
    // clang-format on
    {
        const uint id = replaces != 0 ? replaces : ++m_lastId;
        CloseNotification(id);
        shown.append({id, title, body, actions});
        wasShown += body;
        return id;
    }

    void CloseNotification(uint id)
    {
        shown.removeIf([id](const Shown &one) { return one.id == id; });
    }

Q_SIGNALS:
    void ActionInvoked(uint id, const QString &action); // NOLINT: the name is the interface's

private:
    uint m_lastId = 40;
};

} // namespace

class TestDesktopNotifier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"desktop"_s);
        QVERIFY2(m_bus.isConnected(), "this test needs a session bus");
        m_server = new Server(&m_desktop);
        QVERIFY(m_bus.registerObject(u"/org/freedesktop/Notifications"_s, &m_desktop));
    }

    void init() { m_fallen.clear(); }
    void cleanup() { m_bus.unregisterService(u"org.freedesktop.Notifications"_s); }

    void aRepeatedRingReplacesTheFirst()
    {
        QVERIFY(m_bus.registerService(u"org.freedesktop.Notifications"_s));
        DesktopNotifier notifier(fallback());
        notifier.notify(u"message"_s, u"New message"_s, u"from <b>0170</b>"_s);
        // All before the desktop has told what it calls the first one.
        for (const QString &body : {u"first"_s, u"second"_s, u"third"_s})
            notifier.notify(u"call"_s, u"Incoming call"_s, body);
        QTRY_COMPARE(bodies(), QStringList({u"from &lt;b&gt;0170&lt;/b&gt;"_s, u"third"_s}));
        notifier.withdraw(u"call"_s);
        QTRY_COMPARE(bodies(), QStringList{u"from &lt;b&gt;0170&lt;/b&gt;"_s});
        QVERIFY(m_fallen.isEmpty());
    }

    void aRingThatEndedAtOnceDoesNotStay()
    {
        QVERIFY(m_bus.registerService(u"org.freedesktop.Notifications"_s));
        m_server->shown.clear();
        DesktopNotifier notifier(fallback());
        notifier.notify(u"call"_s, u"Incoming call"_s, u"short"_s);
        notifier.withdraw(u"call"_s);
        QTRY_VERIFY(m_server->wasShown.contains(u"short"_s));
        QTRY_COMPARE(bodies(), QStringList());
    }

    void aClickIsToldOfWhatHasAnAction()
    {
        QVERIFY(m_bus.registerService(u"org.freedesktop.Notifications"_s));
        m_server->shown.clear();
        DesktopNotifier notifier(fallback());
        QSignalSpy activated(&notifier, &DesktopNotifier::sigActivated);
        notifier.notify(u"call"_s, u"Incoming call"_s, u"ring"_s);
        notifier.notify(u"message"_s, u"Anna"_s, u"hello"_s, u"Show"_s);
        QTRY_COMPARE(bodies(), QStringList({u"ring"_s, u"hello"_s}));
        QCOMPARE(m_server->shown.at(0).actions, QStringList());
        QCOMPARE(m_server->shown.at(1).actions, QStringList({u"default"_s, u"Show"_s}));
        Q_EMIT m_server->ActionInvoked(m_server->shown.at(1).id + 1, u"default"_s); // somebody else's
        Q_EMIT m_server->ActionInvoked(m_server->shown.at(1).id, u"default"_s);
        QTRY_COMPARE(activated.size(), 1);
        QCOMPARE(activated.front().front().toString(), u"message"_s);
    }

    void withoutADesktopTheTrayShowsIt()
    {
        DesktopNotifier notifier(fallback());
        notifier.notify(u"call"_s, u"Incoming call"_s, u"The card is ringing."_s);
        QTRY_COMPARE(m_fallen, QStringList{u"Incoming call"_s});
        notifier.withdraw(u"call"_s);
    }

private:
    DesktopNotifier::Fallback fallback()
    {
        return [this](const QString &title, const QString &) { m_fallen += title; };
    }

    QStringList bodies() const
    {
        QStringList all;
        for (const Shown &one : m_server->shown)
            all += one.body;
        return all;
    }

    QDBusConnection m_bus{QString()};
    QObject m_desktop;
    Server *m_server = nullptr;
    QStringList m_fallen;
};

QTEST_GUILESS_MAIN(TestDesktopNotifier)
#include "tst_desktopnotifier.moc"
