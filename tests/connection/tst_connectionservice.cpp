// SPDX-License-Identifier: GPL-3.0-or-later
#include "../files.h"
#include "../rows.h"
#include "connection/connectionservice.h"
#include "connection/dialuplink.h"
#include "connection/idlemonitor.h"
#include "connection/linkfacts.h"
#include "connection/profilestore.h"
#include "fakebackend.h"
#include "fakecardmonitor.h"
#include "shell/commoncfg.h"
#include "shell/globals.h"

#include <QElapsedTimer>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace corva;

constexpr auto linkComesUp = "--> Using interface ppp0\n--> local  IP address 10.1.2.3\n"
                             "--> remote IP address 10.64.64.64\n--> primary   DNS address 10.64.64.65\n";

namespace
{

const Rows<QByteArray, ConnectionEnd, int, QString> failedDialsRows{
    {"wrong password",
     "--> The PPP daemon has died: Authentication error.\n--> Maybe bad account or "
     "password? (exit code = 19)\n",
     ConnectionEnd::Refused, 19,
     u"Fail to connect! exit code is 19\nWe failed to authenticate ourselves to the peer."_s},
    {"a status without a text", "--> The PPP daemon has died. (exit code = 20)\n",
     ConnectionEnd::DiallerFailed, 20, u"Fail to connect! exit code is 20"_s},
};

const Rows<DialVerb, DialResult::Kind, ConnectionEnd, bool> failedStepsRows{
    {"files not saved", DialVerb::Save, DialResult::Kind::Failed, ConnectionEnd::FilesFailed, false},
    {"password not given", DialVerb::Save, DialResult::Kind::NoRights, ConnectionEnd::NoRights, false},
    {"files not written", DialVerb::Write, DialResult::Kind::Failed, ConnectionEnd::FilesFailed, true},
    {"wvdial missing", DialVerb::Dial, DialResult::Kind::Failed, ConnectionEnd::DiallerFailed, true},
};

const Rows<DialVerb, bool> cancelledAtAnyStepRows{
    {"while a password is asked for", DialVerb::Save, false},
    {"while the files are written", DialVerb::Write, false},
    {"while wvdial starts", DialVerb::Dial, true},
};

const Rows<QByteArray, ConnectionEnd> brokenLinksRows{
    {"the network hung up", "--> The PPP daemon has died: A modem hung up the phone (exit code = 16)\n",
     ConnectionEnd::ByPeer},
    {"no answer to echoes", "--> The PPP daemon has died. (exit code = 15)\n", ConnectionEnd::LinkLost},
    {"wvdial crashed", {}, ConnectionEnd::DiallerFailed},
    {"the card was pulled out", "gone", ConnectionEnd::CardGone},
};

const Rows<QByteArray> redialIsNoSecondTryRows{
    {"the password is wrong", "--> The PPP daemon has died. (exit code = 19)\n"},
    {"the person ends it", {}},
};

const Rows<QString, bool, NetworkType, ConnectObstacle, QString> obstaclesRows{
    {"none", u"registered"_s, false, NetworkType::Edge, ConnectObstacle::None, {}},
    {"a call on GSM", u"registered"_s, true, NetworkType::Edge, ConnectObstacle::CallOnOtherNetwork,
     u"Only UMTS network can connect while calling!"_s},
    {"a call on UMTS", u"registered"_s, true, NetworkType::Hspa, ConnectObstacle::None, {}},
    {"roaming, to be asked about", u"roaming"_s, false, NetworkType::Umts, ConnectObstacle::Roaming, {}},
    {"no card", u"absent"_s, false, NetworkType::Unknown, ConnectObstacle::CardGone,
     u"The device has been disconnected or is unavailable."_s},
};

const Rows<Registration, ServiceState, bool> connectsByItselfRows{
    {"at home", Registration::Home, ServiceState::Full, true},
    {"a card that says nothing of it", Registration::Unknown, ServiceState::Unknown, true},
    {"no network", Registration::Searching, ServiceState::None, false},
};

const Rows<QString, bool> opensOnlyPagesRows{
    {"a page", u"https://example.org/start"_s, true},
    {"a file", u"file:///etc/passwd"_s, false},
    {"a script", u"javascript:alert(1)"_s, false},
    {"no host", u"http:///"_s, false},
};

} // namespace

class TestConnectionService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        basePath = m_folder.path();
        putFile(m_folder.path(u"modem"_s), {});
    }
    void init()
    {
        for (const char *key : {"autoRedial_enabled", "AutoConnectFlag", "Show_open_URL"})
            set(key, "0");
        set("dial_timeout", "30");
        set("autoRedial_startSec", "0");
        set("autoRedial_afterSec", "1");
        set("autoRedial_time", "2");
        set("AutoConnectTimes", "2");
        cmcfg.setValue(u"function"_s, u"ppp_errcode_show"_s, u"1"_s);
        m_facts = {};
        m_messages.clear();
        m_loss.clear();
        m_hasLeftovers = false;

        ConnectionProfile profile = ProfileStore::newProfile();
        profile.setText(ProfileField::Name, u"Home"_s);
        profile.setText(ProfileField::Apn, u"internet"_s);
        profile.setOn(ProfileField::UsesApn, true);
        profile.setLinkKind(LinkKind::DialUp);
        profile.setText(ProfileField::DefaultOpenUrl, u"https://example.org/start"_s);
        QDir(u"Data"_s).removeRecursively();
        m_store = std::make_unique<ProfileStore>(m_folder.path(u"Data"_s));
        QString error;
        QVERIFY2(m_store->add(profile, &error) && m_store->setDefault(u"Home"_s, &error), qPrintable(error));

        m_monitor = std::make_unique<CardMonitor>(nullptr);
        put(card());
        ConnectionParts parts;
        auto backend = std::make_unique<FakeBackend>();
        m_backend = backend.get();
        parts.backend = std::move(backend);
        parts.facts = [this](const QString &) { return m_facts; };
        parts.hasLeftovers = [this] { return m_hasLeftovers; };
        parts.latestLoss = [this] { return m_loss; };
        m_service = std::make_unique<ConnectionService>(m_monitor.get(), m_store.get(), std::move(parts));
        connect(m_service.get(), &ConnectionService::sigMessage, this,
                [this](const QString &text) { m_messages += text; });
    }
    void cleanup()
    {
        m_service.reset();
        m_monitor.reset();
    }

    void upWhenItCarries()
    {
        QSignalSpy changes(m_service.get(), &ConnectionService::sigStatusChanged);
        beginDial();
        QCOMPARE(m_service->status().state, ConnectionState::Connecting);
        QCOMPARE(m_backend->asked, (QList{DialVerb::Save, DialVerb::Write, DialVerb::Dial}));
        QVERIFY(!m_service->connectNow());

        m_backend->say("--> Using interface ppp0\n");
        m_facts.interfaceName = u"ppp0"_s;
        m_facts.isUp = true;
        m_backend->say("--> Pid of pppd: 77\n"); // an interface without an address carries nothing
        QCOMPARE(m_service->status().state, ConnectionState::Connecting);
        goUp();
        QCOMPARE(m_service->status().interfaceName, u"ppp0"_s);
        QCOMPARE(m_service->status().localAddress, u"10.1.2.3"_s);
        QCOMPARE(m_service->status().peerAddress, u"10.64.64.64"_s);
        QCOMPARE(m_service->status().nameServers, QStringList{u"10.64.64.65"_s});
        QVERIFY(m_service->status().since.isValid());
        QTRY_COMPARE(m_backend->asked.last(), DialVerb::RouteHelper);

        m_service->disconnectNow();
        QCOMPARE(m_service->status().state, ConnectionState::Disconnecting);
        QTRY_COMPARE(m_service->status().state, ConnectionState::NotConnected);
        QCOMPARE(m_backend->asked.mid(4), (QList{DialVerb::HangUp, DialVerb::Recover}));
        QCOMPARE(m_service->status().end, ConnectionEnd::ByPerson);
        QCOMPARE(m_messages, QStringList());
        for (qsizetype i = 1; i < changes.size(); ++i)
            QVERIFY(changes.at(i) != changes.at(i - 1));
    }

    void failedDials_data() { addRows(failedDialsRows); }
    void failedDials()
    {
        const auto &[name, output, end, exitCode, message] = currentRow(failedDialsRows);
        beginDial();
        m_backend->say(output);
        QTRY_COMPARE(m_service->status().state, ConnectionState::NotConnected);
        QCOMPARE(m_service->status().end, end);
        QCOMPARE(m_service->status().exitCode, exitCode);
        QCOMPARE(m_messages.join(u'|'), message);
        QCOMPARE(m_backend->asked.mid(3), (QList{DialVerb::HangUp, DialVerb::Recover}));
    }

    void failedSteps_data() { addRows(failedStepsRows); }
    void failedSteps()
    {
        const auto &[name, verb, kind, end, recovers] = currentRow(failedStepsRows);
        m_backend->results[verb] = {kind, u"This went wrong."_s};
        QVERIFY(m_service->connectNow());
        QTRY_COMPARE(m_messages, QStringList{u"This went wrong."_s});
        QCOMPARE(m_service->status().end, end);
        QCOMPARE(m_backend->asked.contains(DialVerb::Recover), recovers);
        QCOMPARE(m_service->status().endSentence, u"This went wrong."_s);
    }

    /// wvdial crashes now and then, and deserves another go; not where it said why.
    void diallerEndsByItself()
    {
        for (const bool saysWhy : {false, true}) {
            m_messages.clear();
            m_backend->asked.clear();
            beginDial();
            if (saysWhy)
                m_backend->say("--> Cannot open /dev/ttyUSB1: Device or resource busy\n");
            m_backend->beGone();
            if (!saysWhy) {
                QTRY_COMPARE(m_backend->asked.count(DialVerb::Dial), 2);
                QCOMPARE(m_service->status().state, ConnectionState::Connecting);
                m_backend->beGone();
            }
            QTRY_COMPARE(m_messages, QStringList{u"Connection is failed!"_s});
            QCOMPARE(m_service->status().end, ConnectionEnd::DiallerFailed);
            QCOMPARE(m_service->status().endSentence.contains(u"Device or resource busy"_s), saysWhy);
        }
        QCOMPARE(m_backend->asked.count(DialVerb::Dial), 1);
    }

    void failedRestoreIsTold()
    {
        m_backend->results[DialVerb::Recover] = {DialResult::Kind::Failed, u"Not restored."_s};
        beginDial();
        m_loss = u"2031-05-04T03:02:00.000Z"_s;
        m_backend->say("BUSY\n--> The line is busy.\n");
        const QStringList told{u"Connection is failed!"_s, u"Not restored."_s};
        QTRY_COMPARE(m_messages, told);
        m_service->recoverLeftovers();
        QCOMPARE(m_messages, told);
    }

    /// Nobody sees a box of a program that ends.
    void lossAtTheEndIsToldAtTheNextStart()
    {
        beginDial();
        goUp();
        m_loss = u"2031-05-04T03:02:01.000Z"_s;
        m_backend->results[DialVerb::Recover] = {DialResult::Kind::Failed, u"Not restored."_s};
        m_service->disconnectNow(ConnectionEnd::ByProgram);
        QTRY_COMPARE(m_service->status().state, ConnectionState::NotConnected);
        QCOMPARE(m_messages, QStringList());
        for (int start = 1; start <= 2; ++start)
            m_service->recoverLeftovers();
        QCOMPARE(m_messages, QStringList{u"Recover wvdial config data failed!"_s});
    }

    void anotherFailureHidesNoLoss()
    {
        m_loss = u"2031-05-04T03:02:02.000Z"_s;
        m_hasLeftovers = true;
        m_backend->results[DialVerb::Recover] = {DialResult::Kind::Failed, u"In other hands."_s};
        m_service->recoverLeftovers();
        QTRY_COMPARE(m_messages, QStringList{u"In other hands."_s});
        m_hasLeftovers = false;
        m_service->recoverLeftovers();
        QCOMPARE(m_messages.last(), u"Recover wvdial config data failed!"_s);
    }

    void cancelledAtAnyStep_data() { addRows(cancelledAtAnyStepRows); }
    void cancelledAtAnyStep()
    {
        const auto &[name, step, hangsUp] = currentRow(cancelledAtAnyStepRows);
        m_backend->holds = step;
        QVERIFY(m_service->connectNow());
        QTRY_VERIFY(m_backend->held);
        m_service->disconnectNow();
        m_backend->say("BUSY\n--> The line is busy.\n"); // too late to matter
        m_backend->held({});
        QTRY_COMPARE(m_service->status().state, ConnectionState::NotConnected);
        QCOMPARE(m_service->status().end, ConnectionEnd::ByPerson);
        QCOMPARE(m_backend->asked.contains(DialVerb::HangUp), hangsUp);
        QCOMPARE(m_backend->asked.count(DialVerb::Recover), 1);
        QCOMPARE(m_messages, QStringList());
    }

    void brokenLinks_data() { addRows(brokenLinksRows); }
    void brokenLinks()
    {
        const auto &[name, output, end] = currentRow(brokenLinksRows);
        beginDial();
        goUp();
        if (output == "gone") {
            CardState gone = card();
            gone.presence = CardPresence::Absent;
            put(gone);
        } else {
            m_backend->say(output);
            m_backend->beGone();
        }
        QTRY_COMPARE(m_service->status().state, ConnectionState::NotConnected);
        QCOMPARE(m_service->status().end, end);
        QCOMPARE(m_backend->asked.last(), DialVerb::Recover);
        QCOMPARE(m_messages.size(), 1);
        QVERIFY(!m_messages.first().isEmpty() && !m_service->status().endSentence.isEmpty());
    }

    void redialsAfterABreak()
    {
        set("autoRedial_enabled", "1");
        beginDial();
        goUp();
        m_facts = {};
        m_backend->say("--> The PPP daemon has died. (exit code = 16)\n");
        for (int attempt = 1; attempt <= 2; ++attempt) {
            QTRY_COMPARE(m_backend->asked.count(DialVerb::Dial), attempt + 1);
            QCOMPARE(m_service->status().redial, attempt);
            QCOMPARE(m_service->status().redials, 2);
            QCOMPARE(m_messages, QStringList());
            m_backend->say("NO CARRIER\n--> No Carrier!  Trying again.\n");
            QTRY_COMPARE(m_service->status().state, ConnectionState::NotConnected);
        }
        QCOMPARE(m_messages, QStringList{u"Connection is failed!"_s}); // of the last one alone
        QCOMPARE(m_service->status().redial, 0);
    }

    void redialIsNoSecondTry_data() { addRows(redialIsNoSecondTryRows); }
    void redialIsNoSecondTry()
    {
        const auto &[name, output] = currentRow(redialIsNoSecondTryRows);
        set("autoRedial_enabled", "1");
        beginDial();
        goUp();
        m_facts = {};
        m_backend->say("--> The PPP daemon has died. (exit code = 16)\n");
        QTRY_COMPARE(m_backend->asked.count(DialVerb::Dial), 2);
        if (output.isEmpty())
            m_service->disconnectNow();
        else
            m_backend->say(output);
        QTRY_COMPARE(m_service->status().state, ConnectionState::NotConnected);
        QCOMPARE(m_service->status().redial, 0);
    }

    /// Meanwhile the network is a foreign one, and nobody has agreed to that.
    void redialThatRoamingStops()
    {
        set("autoRedial_enabled", "1");
        beginDial();
        goUp();
        QSignalSpy asked(m_service.get(), &ConnectionService::sigRoamingAsked);
        int redial = -1; // as who is to ask sees it
        connect(m_service.get(), &ConnectionService::sigRoamingAsked, &asked,
                [&] { redial = m_service->status().redial; });
        CardState abroad = card();
        abroad.roaming = true;
        put(abroad);
        m_backend->say("--> The PPP daemon has died. (exit code = 16)\n");
        QTRY_COMPARE(m_messages.size(), 1);
        QCOMPARE(m_messages.first(), m_service->status().endSentence);
        QCOMPARE(asked.size(), 1);
        QCOMPARE(redial, 0);
    }

    void connectsByItself_data() { addRows(connectsByItselfRows); }
    void connectsByItself()
    {
        const auto &[name, registration, service, dials] = currentRow(connectsByItselfRows);
        set("AutoConnectFlag", "1");
        CardState back = card();
        back.registration = registration;
        back.service = service;
        put(back);
        QCOMPARE(m_service->status().redial, dials ? 1 : 0);
        if (!dials)
            return;
        QTRY_COMPARE(m_backend->asked.count(DialVerb::Dial), 1);
        goUp();
        QCOMPARE(m_service->status().redial, 0);
    }

    /// Abroad it would cost: there the person is asked, and once is enough.
    void connectsByItselfAbroad()
    {
        set("AutoConnectFlag", "1");
        QSignalSpy asked(m_service.get(), &ConnectionService::sigRoamingAsked);
        CardState state = card();
        for (const bool isRoaming : {true, true, false, true}) {
            state.roaming = isRoaming;
            state.signalCode++;
            put(state);
            QCOMPARE(asked.size(), 1);
            QCOMPARE(m_service->status().redial, isRoaming && m_backend->asked.isEmpty() ? 0 : 1);
            if (!isRoaming)
                QTRY_COMPARE(m_backend->asked.count(DialVerb::Dial), 1);
        }
    }

    void obstacles_data() { addRows(obstaclesRows); }
    void obstacles()
    {
        const auto &[name, state, isCallUp, network, obstacle, message] = currentRow(obstaclesRows);
        CardState now = fakecard::namedState(state);
        now.networkType = network;
        now.family = CardFamily::Cdma;
        now.modemPortName = card().modemPortName;
        put(now);
        m_service->setCallUp(isCallUp);
        QCOMPARE(m_service->obstacle(), obstacle);
        QCOMPARE(m_service->connectNow(), message.isEmpty());
        QCOMPARE(m_messages.join(u'|'), message);
    }

    void noProfile()
    {
        QVERIFY(m_store->remove(u"Home"_s));
        QVERIFY(!m_service->connectNow());
        QCOMPARE(m_messages, QStringList{u"Can't open deault config file!"_s});
    }

    void ownNameServers()
    {
        ConnectionProfile profile = *m_store->defaultProfile();
        profile.setOn(ProfileField::UsesDns, true);
        profile.setText(ProfileField::PreferredDns, u"192.0.2.1"_s);
        QVERIFY(m_store->change(u"Home"_s, profile));
        m_backend->results[DialVerb::NameServers] = {DialResult::Kind::Failed, u"The DNS is invalid !"_s};
        beginDial();
        goUp();
        QTRY_COMPARE(m_messages, QStringList{u"The DNS is invalid !"_s});
        QCOMPARE(m_service->status().state, ConnectionState::Connected);
    }

    void opensOnlyPages_data() { addRows(opensOnlyPagesRows); }
    void opensOnlyPages()
    {
        const auto &[name, url, opens] = currentRow(opensOnlyPagesRows);
        set("Show_open_URL", "1");
        const QString record = m_folder.path(u"Data/defaultRecord.conf"_s);
        putFile(record, contentOf(record).replace("https://example.org/start", url.toUtf8()));
        m_store->reload();
        QSignalSpy opened(m_service.get(), &ConnectionService::sigOpenUrl);
        beginDial();
        goUp();
        QCOMPARE(!opened.isEmpty(), opens);
    }

    /// The limit counts from the last byte on, not from a reading that found none.
    void idleness()
    {
        constexpr qint64 limit = 200;
        QElapsedTimer clock;
        clock.start();
        std::vector<qint64> readings;
        quint64 bytes = 1;
        qint64 lastUse = 0;
        IdleMonitor monitor(nullptr, std::chrono::milliseconds(10));
        monitor.setCounter([&] {
            readings.push_back(clock.elapsed());
            if (readings.size() < 4) {
                lastUse = readings.back();
                ++bytes;
            }
            return std::optional(bytes);
        });
        QSignalSpy idle(&monitor, &IdleMonitor::sigIdle);
        monitor.launchAutoDisconnectMonitor(std::chrono::milliseconds(limit));
        QTRY_COMPARE(idle.size(), 1);
        QVERIFY(readings.back() - lastUse >= limit - 1);
        QVERIFY(readings.at(readings.size() - 2) - lastUse <= limit + 1);
    }

    /// The kernel holds the dialler: the files go back all the same, and the person may go on.
    void hangingUpWithoutEnd()
    {
        LinkPlan plan;
        plan.profile.setText(ProfileField::Phone, u"*99#"_s);
        plan.modemPort = u"/dev/null"_s;
        plan.hasContexts = false;
        plan.endLimit = std::chrono::milliseconds(20);
        DialUpLink link(
            *m_monitor, *m_backend, [](const QString &) { return LinkFacts(); }, plan);
        QSignalSpy over(&link, &DataLink::sigOver);
        m_backend->holds = DialVerb::HangUp;
        link.start();
        QTRY_VERIFY(m_backend->asked.contains(DialVerb::Dial));
        link.end({ConnectionEnd::ByPerson, -1, {}, {}});
        QTRY_COMPARE(over.size(), 1);
        QCOMPARE(m_backend->asked.last(), DialVerb::Recover);
        m_backend->held({}); // it let go after all
        QCoreApplication::processEvents();
        QCOMPARE(over.size(), 1);
    }

    void endOfTheProgram()
    {
        beginDial();
        goUp();
        m_service->shutDown();
        QVERIFY(m_backend->isShutDown);
        QCOMPARE(m_service->status().state, ConnectionState::NotConnected);
        QVERIFY(!m_service->connectNow());
    }

private:
    static void set(const char *key, const char *value)
    {
        cmcfg.setValue(u"network_dialer_setting"_s, QString::fromLatin1(key), QString::fromLatin1(value));
    }
    /// Without contexts, which would want a card to talk to.
    CardState card() const
    {
        CardState state = fakecard::registeredCard();
        state.family = CardFamily::Cdma;
        state.modemPortName = m_folder.path(u"modem"_s);
        return state;
    }
    static void put(const CardState &state) { fakecard::put(state); }
    void beginDial()
    {
        QVERIFY(m_service->connectNow());
        QTRY_VERIFY(m_backend->asked.contains(DialVerb::Dial));
        QCoreApplication::processEvents();
    }
    void goUp()
    {
        m_facts.interfaceName = u"ppp0"_s;
        m_facts.isUp = true;
        m_backend->say(linkComesUp);
        QTRY_COMPARE(m_service->status().state, ConnectionState::Connected);
    }

    ScratchFolder m_folder;
    LinkFacts m_facts;
    QStringList m_messages;
    QString m_loss;
    bool m_hasLeftovers = false;
    std::unique_ptr<CardMonitor> m_monitor;
    std::unique_ptr<ProfileStore> m_store;
    std::unique_ptr<ConnectionService> m_service;
    FakeBackend *m_backend = nullptr; ///< belongs to the service
};

QTEST_GUILESS_MAIN(TestConnectionService)
#include "tst_connectionservice.moc"
