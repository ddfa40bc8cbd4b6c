// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/cardfinder.h"

#include "../files.h"
#include "../rows.h"
#include "mockbus.h"

#include <QMap>
#include <cerrno>
#include <optional>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

using Verdict = ProbeResult::Verdict;
constexpr ProbeResult answered{Verdict::Answered, 0};
constexpr ProbeResult silent{Verdict::Silent, 0};
constexpr ProbeResult busy{Verdict::CannotOpen, EBUSY};
constexpr ProbeResult refused{Verdict::CannotOpen, EACCES};
constexpr ProbeResult gone{Verdict::CannotOpen, ENODEV};

/// Ports by name with what a probe of each comes to, and the ports that were probed. Others answer.
struct Ports {
    QMap<QString, ProbeResult> results;
    QStringList probed;

    PortProbe probe()
    {
        return [this](const QString &port) {
            probed.append(port);
            return results.value(port, answered);
        };
    }
};

const UsbId knownId{0x1209, 0x0001};
const UsbId unknownId{0xabcd, 0x0001};

QString tty(int number)
{
    return u"/dev/ttyUSB%1"_s.arg(number);
}

/// Three ports on interfaces 0, 1 and 2, the first of them called ttyUSB<first>.
MockCard card(UsbId id, int first = 0, int socket = 2, const QString &serial = {})
{
    MockCard mock;
    mock.id = id;
    mock.socket = socket;
    mock.serial = serial;
    mock.deviceNumber = socket * 10 + first;
    for (int i = 0; i < 3; ++i)
        mock.ports.append({i, tty(first + i).mid(5)});
    return mock;
}

CardFinder finder(const DeviceSettings &settings = {})
{
    return {ModemTypes::load(QStringLiteral(CORVA_SOURCE_DIR "/Data/modem_types.xml")), settings};
}

const Rows<ProbeResult, CardPresence> knownCardAlongTheWayRows{
    {"says nothing", silent, CardPresence::Silent},
    {"held by another program", busy, CardPresence::PortBusy},
    {"locked by another program", ProbeResult{Verdict::CannotOpen, EWOULDBLOCK}, CardPresence::PortBusy},
    {"may not be opened", refused, CardPresence::NoRights},
    {"pulled out meanwhile", gone, CardPresence::Absent},
};

const Rows<QList<ProbeResult>, CardPresence, CardPorts> unknownCardRows{
    {"two answer", QList{answered, silent, answered}, CardPresence::Ready, CardPorts{tty(2), tty(0), {}}},
    {"one answers", QList{silent, answered, silent}, CardPresence::Ready, CardPorts{tty(1), tty(1), {}}},
    {"none answers", QList{silent, silent, silent}, CardPresence::Silent, CardPorts()},
    {"one is held", QList{silent, busy, refused}, CardPresence::PortBusy, CardPorts()},
    {"the dialler has its port", QList{busy, answered, silent}, CardPresence::Ready,
     CardPorts{tty(1), tty(1), {}}},
    {"none may be opened", QList{refused, refused, refused}, CardPresence::NoRights, CardPorts()},
};

constexpr int massStorage = 8;

const Rows<UsbId, int, CardPresence> storageModeRows{
    {"listed by the types file", UsbId{0x1209, 0x0002}, massStorage, CardPresence::StorageMode},
    {"listed by usb_modeswitch", UsbId{0xabcd, 0x0dcd}, massStorage, CardPresence::StorageMode},
    {"a memory stick", UsbId{0xabcd, 0x0002}, massStorage, CardPresence::Absent},
    {"listed, but not as a disk", UsbId{0x1209, 0x0002}, 3, CardPresence::Absent},
};

} // namespace

class TestCardFinder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bus.reset();
        m_bus.emplace();
        m_ports = {};
    }

    void knownCard()
    {
        m_bus->plug(card(knownId, 0, 2, u"0123"_s));
        const FoundCard found = finder().find(m_ports.probe());
        QCOMPARE(found.presence, CardPresence::Ready);
        QCOMPARE(found.deviceName, u"Test Card"_s);
        QCOMPARE(found.family, CardFamily::Wcdma);
        QCOMPARE(found.ports, (CardPorts{tty(2), tty(0), tty(1)}));
        QCOMPARE(found.usb, (UsbIdentity{knownId, 1, 20, u"1-2"_s, u"0123"_s}));
        QCOMPARE(m_ports.probed, QStringList{tty(2)});
    }

    void knownCardAlongTheWay_data() { addRows(knownCardAlongTheWayRows); }
    void knownCardAlongTheWay()
    {
        const auto &[name, result, presence] = currentRow(knownCardAlongTheWayRows);
        m_bus->plug(card(knownId));
        m_ports.results[tty(2)] = result;
        const FoundCard found = finder().find(m_ports.probe());
        QCOMPARE(found.presence, presence);
        QCOMPARE(found.deviceName, presence == CardPresence::Absent ? QString() : u"Test Card"_s);
        QCOMPARE(found.port, presence == CardPresence::Absent ? QString() : tty(2));
        QCOMPARE(found.group.isEmpty(), presence != CardPresence::NoRights);
        QCOMPARE(m_ports.probed, QStringList{tty(2)});
    }

    void knownCardWithoutDriver()
    {
        MockCard mock = card(knownId);
        mock.ports.clear();
        m_bus->plug(mock);
        QCOMPARE(finder().find(m_ports.probe()).presence, CardPresence::Absent);
        QCOMPARE(m_ports.probed, QStringList());
    }

    void unknownCard_data() { addRows(unknownCardRows); }
    void unknownCard()
    {
        const auto &[name, results, presence, ports] = currentRow(unknownCardRows);
        m_bus->plug(card(unknownId));
        for (int i = 0; i < 3; ++i)
            m_ports.results[tty(i)] = results.at(i);
        const FoundCard found = finder().find(m_ports.probe());
        QCOMPARE(found.presence, presence);
        QCOMPARE(found.ports, ports);
        QCOMPARE(found.deviceName, u"Mock Stick"_s);
        QCOMPARE(found.family, std::nullopt);
    }

    void unknownCardIsNotProbedTwice()
    {
        m_bus->plug(card(unknownId));
        m_ports.results[tty(0)] = silent;
        CardFinder finder = ::finder();
        const FoundCard first = finder.find(m_ports.probe());
        m_ports.probed.clear();
        QCOMPARE(finder.find(m_ports.probe()), first);
        QCOMPARE(m_ports.probed, QStringList{first.ports.at});

        // What was learned is not clung to.
        m_ports.results = {{tty(1), silent}, {tty(2), silent}};
        QCOMPARE(finder.find(m_ports.probe()).ports, (CardPorts{tty(0), tty(0), {}}));
    }

    void otherDevicesAreLeftAlone()
    {
        MockCard board = card(unknownId);
        for (MockPort &port : board.ports)
            port.driver = u"ftdi_sio"_s;
        m_bus->plug(board);
        MockCard cable = card({0xabcd, 0x0002}, 3, 3);
        cable.ports = cable.ports.first(1);
        m_bus->plug(cable);
        QCOMPARE(finder().find(m_ports.probe()), FoundCard());
        QCOMPARE(m_ports.probed, QStringList());
    }

    void severalCards()
    {
        m_bus->plug(card(unknownId, 0, 1));
        m_bus->plug(card(knownId, 3, 3));
        m_bus->plug(card(knownId, 6, 2));
        QCOMPARE(finder().find(m_ports.probe()).usb.path, u"1-2"_s); // known before unknown, then by socket

        m_ports.results[tty(8)] = silent;
        QCOMPARE(finder().find(m_ports.probe()).usb.path, u"1-3"_s);
        m_ports.results[tty(5)] = refused;
        QCOMPARE(finder().find(m_ports.probe()).usb.path, u"1-1"_s);
    }

    void lastCardFirst()
    {
        const MockCard first = card(knownId, 0, 1, u"A"_s);
        const MockCard second = card(knownId, 3, 2, u"B"_s);
        m_bus->plug(second);
        CardFinder finder = ::finder();
        QCOMPARE(finder.find(m_ports.probe()).usb.serial, u"B"_s);
        QCOMPARE(finder.preferredCard(), u"1209:0001/B"_s);
        m_bus->plug(first);
        QCOMPARE(finder.find(m_ports.probe()).usb.serial, u"B"_s);

        CardFinder another = ::finder();
        another.preferCard(u"1209:0001/B"_s);
        QCOMPARE(another.find(m_ports.probe()).usb.serial, u"B"_s);
        m_bus->unplug(second);
        QCOMPARE(another.find(m_ports.probe()).usb.serial, u"A"_s);
    }

    void backUnderOtherNames()
    {
        const MockCard mock = card(unknownId, 0, 2, u"0123"_s);
        m_bus->plug(mock);
        m_ports.results[tty(0)] = silent;
        CardFinder finder = ::finder();
        const QString key = finder.find(m_ports.probe()).usb.key();
        m_bus->unplug(mock);
        QCOMPARE(finder.find(m_ports.probe()).presence, CardPresence::Absent);

        m_bus->plug(card(unknownId, 3, 4, mock.serial));
        m_ports = {};
        const FoundCard found = finder.find(m_ports.probe());
        QCOMPARE(found.usb.key(), key);
        QCOMPARE(found.ports, (CardPorts{tty(5), tty(4), {}}));
        QCOMPARE(m_ports.probed, QStringList{tty(5)});
    }

    void storageMode_data() { addRows(storageModeRows); }
    void storageMode()
    {
        const auto &[name, id, interfaceClass, presence] = currentRow(storageModeRows);
        const QTemporaryDir data;
        putFile(data.filePath(u"abcd:0dcd"_s), "StandardEject=1\n");
        DeviceSettings settings;
        settings.modeSwitchFolders = {data.path()};
        MockCard disk;
        disk.id = id;
        disk.interfaceClass = interfaceClass;
        m_bus->plug(disk);
        const FoundCard found = finder(settings).find(m_ports.probe());
        QCOMPARE(found.presence, presence);
        QCOMPARE(found.usb.id, presence == CardPresence::Absent ? UsbId() : id);

        // Something silent beside does not hide it, a card that works does.
        m_bus->plug(card(unknownId, 0, 5));
        m_ports.results = {{tty(0), silent}, {tty(1), silent}, {tty(2), silent}};
        QCOMPARE(finder(settings).find(m_ports.probe()).presence,
                 presence == CardPresence::Absent ? CardPresence::Silent : presence);
        QCOMPARE(finder(settings).find(Ports().probe()).presence, CardPresence::Ready);
    }

    void configuredPorts()
    {
        m_bus->plug(card(knownId, 0, 1));
        m_bus->plug(card(unknownId, 3, 2));
        DeviceSettings settings;
        settings.atPort = tty(3);
        settings.voicePort = tty(5);
        CardFinder finder = ::finder(settings);
        const FoundCard found = finder.find(m_ports.probe());
        QCOMPARE(found.presence, CardPresence::Ready);
        QCOMPARE(found.ports, (CardPorts{tty(3), tty(3), tty(5)}));
        QCOMPARE(found.usb.path, u"1-2"_s);
        QCOMPARE(m_ports.probed, QStringList{tty(3)});
        QCOMPARE(finder.portsToWatch(false), (QStringList{tty(3), tty(5)}));

        m_ports.results[tty(3)] = silent;
        QCOMPARE(finder.find(m_ports.probe()).presence, CardPresence::Silent);
        QVERIFY(!m_ports.probed.contains(tty(2)));
    }

    void configuredPortThatIsNone()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"notes.txt"_s);
        putFile(file, {});
        m_ports.results[u"/dev/null"_s] = {Verdict::CannotOpen, ENOTTY};
        for (const QString &path : {file, folder.path(), u"/dev/null"_s, u"/dev/ptmx"_s, u"/nowhere"_s}) {
            DeviceSettings settings;
            settings.atPort = path;
            const FoundCard found = finder(settings).find(m_ports.probe());
            QCOMPARE(found.presence, CardPresence::Absent);
            const PortFault fault = path == "/nowhere"_L1 ? PortFault::Missing : PortFault::NotSerial;
            QVERIFY2(found.fault == fault && found.port == path, qPrintable(path));
        }
        QCOMPARE(m_ports.probed, QStringList{u"/dev/null"_s});
    }

    void fixedNames()
    {
        const QTemporaryDir folder;
        DeviceSettings settings;
        settings.fixedAtPort = folder.filePath(u"at"_s);
        settings.fixedModemPort = folder.filePath(u"modem"_s);
        CardFinder finder = ::finder(settings);
        m_bus->plug(card(knownId));
        QCOMPARE(finder.findByFixedNames(m_ports.probe()).presence, CardPresence::Absent);
        QCOMPARE(m_ports.probed, QStringList());

        QVERIFY(QFile::link(m_bus->nodePath(tty(2)), settings.fixedAtPort));
        FoundCard found = finder.findByFixedNames(m_ports.probe());
        QCOMPARE(found.presence, CardPresence::Ready);
        QCOMPARE(found.ports.modem, settings.fixedAtPort);
        QVERIFY(QFile::link(m_bus->nodePath(tty(0)), settings.fixedModemPort));
        found = finder.findByFixedNames(m_ports.probe());
        QCOMPARE(found.ports, (CardPorts{settings.fixedAtPort, settings.fixedModemPort, {}}));
        QCOMPARE(finder.portsToWatch(true), (QStringList{settings.fixedAtPort, settings.fixedModemPort}));
    }

private:
    std::optional<MockBus> m_bus;
    Ports m_ports;
};

QTEST_GUILESS_MAIN(TestCardFinder)
#include "tst_cardfinder.moc"
