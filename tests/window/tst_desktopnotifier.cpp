// SPDX-License-Identifier: GPL-3.0-or-later
// Runs on a session bus of its own (dbus-run-session).
#include "window/desktopnotifier.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
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
};

class Server : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    explicit Server(QObject *parent) : QDBusAbstractAdaptor(parent) {}
    QList<Shown> shown;

public Q_SLOTS:
    // clang-format off
    uint Notify(const QString &, uint replaces, const QString &, const QString &title, const QString &body,
                const QStringList &, const QVariantMap &, int)
    // clang-format on
    {
        const uint id = replaces != 0 ? replaces : ++m_lastId;
        CloseNotification(id);
        shown.append({id, title, body});
        return id;
    }

    void CloseNotification(uint id)
    {
        shown.removeIf([id](const Shown &one) { return one.id == id; });
    }

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
        notifier.notify(u"call"_s, u"Incoming call"_s, u"first"_s);
        QTRY_COMPARE(m_server->shown.size(), 2);
        QCOMPARE(m_server->shown.first().body, u"from &lt;b&gt;0170&lt;/b&gt;"_s);
        // The answer with the server's number has to be back before the next ring can name it.
        QTRY_VERIFY(ringReplaces(notifier));
        notifier.withdraw(u"call"_s);
        QTRY_COMPARE(m_server->shown.size(), 1);
        QCOMPARE(m_server->shown.first().title, u"New message"_s);
        QVERIFY(m_fallen.isEmpty());
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

    bool ringReplaces(DesktopNotifier &notifier)
    {
        notifier.notify(u"call"_s, u"Incoming call"_s, u"again"_s);
        const auto isShown = [this](const QString &body) {
            return std::any_of(m_server->shown.begin(), m_server->shown.end(),
                               [&](const Shown &one) { return one.body == body; });
        };
        return QTest::qWaitFor([&] { return isShown(u"again"_s); }) && !isShown(u"first"_s) &&
               m_server->shown.size() == 2;
    }

    QDBusConnection m_bus{QString()};
    QObject m_desktop;
    Server *m_server = nullptr;
    QStringList m_fallen;
};

QTEST_GUILESS_MAIN(TestDesktopNotifier)
#include "tst_desktopnotifier.moc"
