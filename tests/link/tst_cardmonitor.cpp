// SPDX-License-Identifier: GPL-3.0-or-later
#include "../rows.h"
#include "cardthread.h"
#include "device/cardmonitor.h"
#include "link/serialthread.h"
#include "linktest.h"
#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "shell/updatecfg.h"

#include <QJsonArray>
#include <QSignalSpy>
#include <atomic>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace corva;

constexpr int patience = 20000; // ms, for what takes a moment on a busy machine

namespace
{

const Rows<QString, int, QString> fullStateRows{
    {"WCDMA", u"wcdma"_s, int(NetworkType::Umts), u"EM7-W"_s},
    {"TD-SCDMA", u"tdscdma"_s, int(NetworkType::TdScdma), u"EM7-T"_s},
    {"standard commands only", u"standard"_s, int(NetworkType::Umts), u"Standard card"_s},
};

} // namespace

/// One card from plugging in to unplugging, on ports that the configuration names.
class TestCardMonitor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        basePath = m_folder.path();
        cmcfg.setValue(u"device"_s, u"at_port"_s, m_folder.path() + u"/card/at"_s);
        cmcfg.setValue(u"device"_s, u"modem_port"_s, m_folder.path() + u"/card/modem"_s);
        cmcfg.setValue(u"network_dialer_setting"_s, u"send_nullatcommand_timer_100ms"_s, u"10"_s);
        m_owner.onFind = [this] { m_searcher.load()->findPorts(false); };
        const CardMonitor opensWhatStaysOpen(&m_owner); // the bus of the session manager, and the like
    }
    void init()
    {
        m_descriptors = openDescriptors();
        resetLinkGlobals();
    }
    void cleanup()
    {
        m_monitor.reset();
        m_card.reset();
        QTRY_COMPARE(openDescriptors(), m_descriptors);
    }

    void fullState_data() { addRows(fullStateRows); }
    void fullState()
    {
        const auto &[name, profile, networkType, model] = currentRow(fullStateRows);
        begin(profile);
        QCOMPARE(state().presence, CardPresence::Ready);
        QCOMPARE(state().portName, m_folder.path() + u"/card/at"_s);
        QCOMPARE(state().modemPortName, m_folder.path() + u"/card/modem"_s);
        QCOMPARE(state().sim, SimState::Ready);
        QCOMPARE(state().registration, Registration::Home);
        QCOMPARE(state().roaming, std::optional(false));
        QCOMPARE(state().service, ServiceState::Full);
        QCOMPARE(int(state().networkType), networkType);
        QCOMPARE(state().operatorName, u"Test Network"_s);
        QCOMPARE(state().signalBars(), 3);
        QCOMPARE(state().signalDbm, std::optional(-73));
        QCOMPARE(state().locationArea, std::optional(4660));
        QCOMPARE(state().cellId, std::optional(43981));
        QCOMPARE(state().functionality, std::optional(1));
        QCOMPARE(state().identity.model, model);
        QCOMPARE(state().identity.imei, u"001012345678902"_s);
        QCOMPARE(state().identity.imsi, u"001010123456789"_s);
        QCOMPARE(state().identity.iccid, u"89001010123456789015"_s);
        QCOMPARE(state().identity.ownNumber, u"+12025550123"_s);
        QCOMPARE(state().identity.provider.name, u"Test Network"_s);
    }

    void changesAreSeen()
    {
        begin();
        tell(R"({"command": "roaming", "on": true})");
        tell(R"({"command": "signal", "rssi": 99})");
        m_monitor->refreshNow();
        QTRY_COMPARE_WITH_TIMEOUT(state().registration, Registration::Roaming, patience);
        QCOMPARE(state().roaming, std::optional(true));
        QCOMPARE(state().signalBars(), 0);
        tell(R"({"command": "register", "service": "denied"})");
        m_monitor->refreshNow();
        QTRY_COMPARE_WITH_TIMEOUT(state().registration, Registration::Denied, patience);
        QCOMPARE(state().service, ServiceState::Limited);
        QCOMPARE(state().roaming, std::optional<bool>());
    }

    void makersCommandsAreAskedOnce()
    {
        begin(u"standard"_s);
        for (int polls = 2; polls <= 3; ++polls) {
            m_monitor->refreshNow();
            QTRY_VERIFY_WITH_TIMEOUT(asked("AT+CSQ") >= polls, patience);
        }
        for (const char *command : {"AT^SYSINFO", "AT+JPAS?", "AT+JTIME?", "AT+JVN"})
            QCOMPARE(asked(command), 1);
    }

    void pinAndPuk()
    {
        plugIn(u"locked"_s);
        startMonitor();
        QTRY_COMPARE_WITH_TIMEOUT(state().pinAttempts, std::optional(3), patience);
        QCOMPARE(state().sim, SimState::PinNeeded);
        QVERIFY(!state().modemReady);
        tell(R"({"command": "fault", "kind": "refuse", "match": "+CPIN=", "code": 14})");
        QCOMPARE(m_monitor->enterPin(u"1234"_s).result(), PinOutcome::SimBusy);
        tell(R"({"command": "fault", "kind": "refuse", "match": "+CPIN=", "code": 100})");
        QCOMPARE(m_monitor->enterPin(u"1234"_s).result(), PinOutcome::Refused);
        QCOMPARE(m_monitor->enterPin(u"9999"_s).result(), PinOutcome::Wrong);
        QTRY_COMPARE_WITH_TIMEOUT(state().pinAttempts, std::optional(2), patience);
        QCOMPARE(m_monitor->enterPin(u"1234"_s).result(), PinOutcome::Accepted);
        QTRY_COMPARE_WITH_TIMEOUT(state().identity.imsi, u"001010123456789"_s, patience);
        QCOMPARE(state().sim, SimState::Ready);
        QCOMPARE(state().pinAttempts, std::optional<int>());

        tell(R"({"command": "pin", "pinAttempts": 0})");
        m_monitor->refreshNow();
        QTRY_COMPARE_WITH_TIMEOUT(state().sim, SimState::PukNeeded, patience);
        QCOMPARE(m_monitor->enterPuk(u"00000000"_s, u"4711"_s).result(), PinOutcome::Wrong);
        QCOMPARE(m_monitor->enterPuk(u"12345678"_s, u"4711"_s).result(), PinOutcome::Accepted);
        QTRY_COMPARE_WITH_TIMEOUT(state().sim, SimState::Ready, patience);
    }

    void silentCard()
    {
        begin();
        tell(R"({"command": "silence"})");
        QTRY_COMPARE_WITH_TIMEOUT((m_monitor->refreshNow(), state().presence), CardPresence::Silent,
                                  2 * patience);
        QVERIFY(!state().modemReady);
        tell(R"({"command": "speak"})");
        QTRY_COMPARE_WITH_TIMEOUT((m_monitor->refreshNow(), state().presence), CardPresence::Ready, patience);
        QVERIFY(state().modemReady);
    }

    void unpluggedInMidCommand()
    {
        begin();
        QTRY_COMPARE_WITH_TIMEOUT(UpdateCfg::value(UpdateKey::DeviceReady), u"1"_s, patience);
        tell(R"({"command": "fault", "kind": "noreply", "count": 0})");
        m_monitor->refreshNow();
        QTRY_VERIFY_WITH_TIMEOUT(asked("AT+CPIN?") >= 2, patience);
        tell(R"({"command": "unplug"})");
        QTRY_COMPARE_WITH_TIMEOUT(state().presence, CardPresence::Absent, 2500); // not after a time-out
        QCOMPARE(state().identity, CardIdentity());
        QCOMPARE(UpdateCfg::value(UpdateKey::DeviceReady), u"0"_s);
        Pty takesTheNumber; // the card comes back on another one
        tell(R"({"command": "plug"})");
        tell(R"({"command": "clear"})");
        QTRY_VERIFY_WITH_TIMEOUT(state().modemReady && !state().identity.iccid.isEmpty(), patience);
    }

    void pollsDoNotQueueUp()
    {
        begin();
        tell(R"({"command": "pace", "delay": 50})");
        const int before = asked("AT+CSQ");
        for (int i = 0; i < 100; ++i)
            m_monitor->refreshNow();
        const auto last = m_monitor->enterPin(u"1234"_s); // behind every poll that waits; polls once itself
        QTRY_VERIFY_WITH_TIMEOUT(last.isFinished(), patience);
        QVERIFY(asked("AT+CSQ") - before <= 3);
    }

    void itsPortsAreKeptFromOthers()
    {
        cmcfg.setValue(u"call"_s, u"enable"_s, u"1"_s);
        cmcfg.setValue(u"device"_s, u"voice_port"_s, m_folder.path() + u"/card/voice"_s);
        begin();
        for (const auto *port : {"at", "voice"}) {
            const QByteArray path = QFile::encodeName(m_folder.path()) + "/card/" + port;
            const int other = ::open(path.constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
            const bool isFree = flock(other, LOCK_EX | LOCK_NB) == 0;
            ::close(other);
            QVERIFY2(other >= 0 && !isFree, port);
        }
        cmcfg.setValue(u"call"_s, u"enable"_s, {});
        cmcfg.setValue(u"device"_s, u"voice_port"_s, {});
    }

    void theUpdaterHearsThatNoCardIsThere()
    {
        QVERIFY(UpdateCfg::setValue(UpdateKey::DeviceReady, u"1"_s)); // a run that ended without a word
        startMonitor();
        QTRY_COMPARE_WITH_TIMEOUT(UpdateCfg::value(UpdateKey::DeviceReady), u"0"_s, patience);
    }

    void stopDuringTheSearch()
    {
        plugIn(u"wcdma"_s);
        tell(R"({"command": "fault", "kind": "noreply", "count": 0})");
        startMonitor();
        QTRY_VERIFY_WITH_TIMEOUT(asked("AT") >= 1, patience);
        m_monitor->stop();
        QVERIFY(!foundPortFlag);
        m_monitor->stop();
    }

private:
    /// A card that is plugged in and known in full.
    void begin(const QString &profile = u"wcdma"_s)
    {
        plugIn(profile);
        startMonitor();
        QTRY_VERIFY_WITH_TIMEOUT(state().modemReady && !state().identity.iccid.isEmpty(), patience);
    }
    void plugIn(const QString &profile)
    {
        m_card = std::make_unique<cardemu::CardThread>(
            std::get<cardemu::Profile>(cardemu::Profile::builtIn(profile)));
        QCOMPARE(m_card->start(m_folder.path() + u"/card"_s), QString());
    }
    void startMonitor()
    {
        m_monitor = std::make_unique<CardMonitor>(&m_owner);
        m_searcher = m_monitor.get();
        m_monitor->start();
    }
    void tell(const QByteArray &json)
    {
        const QJsonObject answer = m_card->control(json);
        QVERIFY2(answer[u"ok"_s].toBool(), qPrintable(answer[u"error"_s].toString()));
    }
    const CardState &state() const { return m_monitor->state(); }
    /// How often the card heard a command.
    int asked(const char *command)
    {
        int count = 0;
        for (const QJsonValue entry : m_card->control(R"({"command": "log"})")[u"log"_s].toArray())
            count += entry[u"received"_s].toString().trimmed() == QLatin1StringView(command);
        return count;
    }

    ScratchFolder m_folder;
    FakeOwner m_owner;
    std::unique_ptr<cardemu::CardThread> m_card;
    std::unique_ptr<CardMonitor> m_monitor;
    std::atomic<CardMonitor *> m_searcher =
        nullptr; ///< the link's thread asks it, also while it is destroyed
    qsizetype m_descriptors = 0;
};

QTEST_GUILESS_MAIN(TestCardMonitor)
#include "tst_cardmonitor.moc"
