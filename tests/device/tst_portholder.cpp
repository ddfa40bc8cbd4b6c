// SPDX-License-Identifier: GPL-3.0-or-later
#include "../files.h"
#include "../rows.h"
#include "device/cardfinder.h"
#include "device/portaccess.h"
#include "device/portclaim.h"
#include "device/portholder.h"

#include "privatebus.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QScopeGuard>
#include <QThread>
#include <csignal>
#include <fcntl.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

using Interfaces = QMap<QString, QVariantMap>;
using Objects = QMap<QDBusObjectPath, Interfaces>;
struct ModemPort {
    QString name;
    uint type = 0;
};
using ModemPorts = QList<ModemPort>;

QDBusArgument &operator<<(QDBusArgument &argument, const ModemPort &port)
{
    argument.beginStructure();
    argument << port.name << port.type;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, ModemPort &port)
{
    argument.beginStructure();
    argument >> port.name >> port.type;
    argument.endStructure();
    return argument;
}

/// A pseudo-terminal of this process.
struct Terminal {
    Terminal() { isOpen = openpty(&far, &near, nullptr, nullptr, nullptr) == 0; }
    ~Terminal()
    {
        close(near);
        close(far);
    }
    QString name() const { return QString::fromLocal8Bit(ttyname(near)); }
    int far = -1;
    int near = -1;
    bool isOpen = false;
};

/// Another process that has a port open for itself alone.
class Holder
{
public:
    explicit Holder(const QString &port)
    {
        const QByteArray name = port.toLocal8Bit();
        int ready[2];
        if (pipe(ready) != 0)
            return;
        m_pid = fork();
        if (m_pid == 0) {
            const int fd = open(name.constData(), O_RDWR | O_NOCTTY);
            const char done = fd >= 0 && ioctl(fd, TIOCEXCL) == 0 ? 'y' : 'n';
            [[maybe_unused]] const auto written = write(ready[1], &done, 1);
            pause();
            _exit(0);
        }
        char answer = 'n';
        m_isReady = read(ready[0], &answer, 1) == 1 && answer == 'y';
        close(ready[0]);
        close(ready[1]);
    }
    ~Holder()
    {
        kill(m_pid, SIGKILL);
        waitpid(m_pid, nullptr, 0);
    }
    Q_DISABLE_COPY_MOVE(Holder)
    bool isReady() const { return m_isReady; }
    PortHolder self() const { return {u"tst_portholder"_s, m_pid}; }

private:
    pid_t m_pid = -1;
    bool m_isReady = false;
};

/// Opens the port as a program would; nobody answers there.
ProbeResult openAndListen(const QString &port)
{
    const int fd = open(port.toLocal8Bit().constData(), O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (fd < 0)
        return {ProbeResult::Verdict::CannotOpen, errno};
    close(fd);
    return {ProbeResult::Verdict::Silent, 0};
}

/// What ModemManager answers on the bus about one modem with two ports.
class FakeModemManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.DBus.ObjectManager")

public Q_SLOTS:
    Objects GetManagedObjects() const
    {
        const ModemPorts ports{{u"ttyUSB2"_s, 3}, {u"wwan0"_s, 2}};
        const QVariantMap modem{{u"Ports"_s, QVariant::fromValue(ports)}, {u"PrimaryPort"_s, u"ttyUSB2"_s}};
        return {{QDBusObjectPath(u"/org/freedesktop/ModemManager1/Modem/0"_s),
                 {{u"org.freedesktop.ModemManager1.Modem"_s, modem}}}};
    }
};

} // namespace

Q_DECLARE_METATYPE(ModemPort)

namespace
{

const qint32 parent = getppid();

const Rows<QByteArray, bool> lockFileRows{
    {"ten characters and a line end", QByteArray::number(parent).rightJustified(10) + '\n', true},
    {"with the program's name", QByteArray::number(parent).rightJustified(10) + " minicom root\n", true},
    {"four bytes", QByteArray(reinterpret_cast<const char *>(&parent), sizeof parent), true},
    {"this process", QByteArray::number(getpid()), false},
    {"a process that has ended", "4194304\n", false}, // above any process id
    {"every process, to kill()", "-1\n", false},
    {"nothing", {}, false},
    {"no number", "minicom\n", false},
};

// a part of the text
const Rows<PortHolder, HolderAdvice, QString> adviceRows{
    {"ModemManager", PortHolder{u"ModemManager"_s, 7}, HolderAdvice::StopModemManager,
     u"sudo systemctl stop ModemManager"_s},
    {"message service of another name", PortHolder{u"smsd"_s, 7}, HolderAdvice::StopMessageService,
     u"sudo systemctl stop smstools"_s},
    {"terminal program", PortHolder{u"minicom"_s, 7}, HolderAdvice::CloseProgram, u"minicom is using"_s},
    {"no name", PortHolder{{}, 7}, HolderAdvice::CloseProgram, u"process 7 is using"_s},
    {"name like a place holder", PortHolder{u"%2"_s, 7}, HolderAdvice::CloseProgram,
     u"%2 is using the card on /dev/ttyUSB2"_s},
    {"nobody knows", PortHolder(), HolderAdvice::FindProgram, u"fuser -v /dev/ttyUSB2"_s},
};

const Rows<QString, QString> rightsAtAPortRows{
    {"none", u"/nowhere"_s, {}},
    {"administrator's own", u"/dev/null"_s, u"root"_s},
};

constexpr gid_t without = 54321; // nobody is in it

const Rows<gid_t, mode_t, RightsAdvice> rightsOfAGroupRows{
    {"may do both", without, mode_t(0660), RightsAdvice::JoinGroup},
    {"may only read", without, mode_t(0640), RightsAdvice::AskAdministrator},
    {"may only write", without, mode_t(0620), RightsAdvice::AskAdministrator},
    {"administrator's own", gid_t(0), mode_t(0660), RightsAdvice::AskAdministrator},
    {"had already", getegid(), mode_t(0660), RightsAdvice::AskAdministrator},
};

} // namespace

class TestPortHolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lockFile_data() { addRows(lockFileRows); }
    void lockFile()
    {
        const auto &[name, content, isHeld] = currentRow(lockFileRows);
        const QTemporaryDir folder;
        putFile(folder.filePath(u"LCK..ttyUSB2"_s), content);
        QVERIFY(QFile::link(u"ttyUSB2"_s, folder.filePath(u"at"_s)));
        for (const QString &port : {u"/dev/ttyUSB2"_s, folder.filePath(u"at"_s)}) {
            const PortHolder holder = holderByLockFile(port, folder.path());
            QCOMPARE(holder.isKnown(), isHeld);
            QCOMPARE(holder.pid, isHeld ? qint64(getppid()) : 0);
        }
        QVERIFY(!holderByLockFile(u"/dev/ttyUSB3"_s, folder.path()).isKnown());
    }

    void openFile()
    {
        const Terminal terminal;
        QVERIFY(terminal.isOpen);
        const QString port = terminal.name();
        QCOMPARE(holderByOpenFile(port), PortHolder()); // open here alone
        QCOMPARE(holderByOpenFile(u"/nowhere"_s), PortHolder());
        const Holder other(port);
        QVERIFY(other.isReady());
        QCOMPARE(findPortHolder(port), other.self());
        const QTemporaryDir folder;
        QVERIFY(QFile::link(port, folder.filePath(u"at"_s)));
        QCOMPARE(holderByOpenFile(folder.filePath(u"at"_s)), other.self());
    }

    /// An administrator's program opens the port all the same, and hears nothing: the other one gets the
    /// answers.
    void heldCard()
    {
        const Terminal terminal;
        const Holder other(terminal.name());
        QVERIFY(other.isReady());
        DeviceSettings settings;
        settings.atPort = terminal.name();
        const FoundCard found = CardFinder({}, settings).find(openAndListen);
        QCOMPARE(found.presence, CardPresence::PortBusy);
        QCOMPARE(found.holder, other.self());
        QCOMPARE(found.port, terminal.name());
    }

    void claimedPort()
    {
        const Terminal terminal;
        const QByteArray port = terminal.name().toLocal8Bit();
        const int first = open(port.constData(), O_RDWR | O_NOCTTY);
        const int second = open(port.constData(), O_RDWR | O_NOCTTY);
        QVERIFY(first >= 0 && second >= 0);
        QCOMPARE(claimPort(first), 0);
        QCOMPARE(claimPort(second), EWOULDBLOCK);
        releasePort(first);
        QCOMPARE(claimPort(second), 0);
        close(second); // as after a crash: nothing stays behind
        QCOMPARE(claimPort(first), 0);
        close(first);
        QCOMPARE(claimPort(-1), EBADF);
    }

    void modemManager()
    {
        QCOMPARE(holderByModemManager(u"/dev/ttyUSB2"_s), PortHolder());

        qDBusRegisterMetaType<ModemPort>();
        qDBusRegisterMetaType<ModemPorts>();
        qDBusRegisterMetaType<Interfaces>();
        qDBusRegisterMetaType<Objects>();
        QThread thread; // the question blocks this one
        FakeModemManager fake;
        fake.moveToThread(&thread);
        thread.start();
        const auto end = qScopeGuard([&thread] {
            QDBusConnection::disconnectFromBus(u"fake"_s);
            thread.quit();
            thread.wait();
        });
        QDBusConnection service = m_systemBus.connection(u"fake"_s);
        QVERIFY(service.registerObject(u"/org/freedesktop/ModemManager1"_s, &fake,
                                       QDBusConnection::ExportAllSlots));
        QVERIFY(service.registerService(u"org.freedesktop.ModemManager1"_s));
        QCOMPARE(holderByModemManager(u"/dev/ttyUSB2"_s), (PortHolder{u"ModemManager"_s, getpid()}));
        QCOMPARE(holderByModemManager(u"/dev/ttyUSB3"_s), PortHolder());
    }

    void advice_data() { addRows(adviceRows); }
    void advice()
    {
        const auto &[name, holder, advice, step] = currentRow(adviceRows);
        QCOMPARE(adviceFor(holder), advice);
        const QString text = holderAdviceText(holder, u"/dev/ttyUSB2"_s);
        QVERIFY2(text.contains(step), qPrintable(text));
    }

    void rightsAtAPort_data() { addRows(rightsAtAPortRows); }
    void rightsAtAPort()
    {
        const auto &[name, port, group] = currentRow(rightsAtAPortRows);
        QCOMPARE(portGroup(port), group);
        QCOMPARE(rightsAdvice(port), RightsAdvice::AskAdministrator);
        QVERIFY(!rightsAdviceText(port).contains(u"usermod"_s));
    }

    void rightsOfAGroup_data() { addRows(rightsOfAGroupRows); }
    void rightsOfAGroup()
    {
        const auto &[name, group, mode, advice] = currentRow(rightsOfAGroupRows);
        QCOMPARE(rightsAdvice(group, mode), advice);
    }

private:
    PrivateBus m_systemBus; // from the start: a connection that failed once is kept
};

QTEST_GUILESS_MAIN(TestPortHolder)
#include "tst_portholder.moc"
