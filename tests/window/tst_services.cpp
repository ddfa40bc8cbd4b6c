// SPDX-License-Identifier: GPL-3.0-or-later
// The real connection and the real counting over a card and a dialler that are only told.
#include "fakecardmonitor.h"

#include "connection/connectionservice.h"
#include "connection/diallerbackend.h"
#include "connection/dialuplink.h"
#include "connection/linkfacts.h"
#include "connection/profilestore.h"
#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "statistics/trafficservice.h"
#include "window/services.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUdpSocket>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

/// A dialler that does everything at once, but for what a test wants to wait for.
class FakeBackend final : public DiallerBackend
{
public:
    void ask(const DialRequest &request, Answer answer) override
    {
        asked.push_back(request);
        if (silentAt != request.verb)
            QMetaObject::invokeMethod(
                this, [answer = std::move(answer)] { answer({}); }, Qt::QueuedConnection);
    }
    void shutDown() override {}

    qsizetype count(DialVerb verb) const { return std::ranges::count(asked, verb, &DialRequest::verb); }

    std::vector<DialRequest> asked;
    std::optional<DialVerb> silentAt;
};

ConnectionProfile profile(const QString &name)
{
    ConnectionProfile made = ProfileStore::newProfile();
    made.setText(ProfileField::Name, name);
    made.setText(ProfileField::Apn, u"internet"_s);
    made.setLinkKind(LinkKind::DialUp);
    return made;
}

/// The loopback stands in for the link's interface: its counters are real.
LinkFacts factsOfLoopback(const QString &)
{
    LinkFacts facts;
    facts.interfaceName = u"lo"_s;
    facts.isUp = true;
    facts.localAddress = u"10.64.64.64"_s;
    return facts;
}

} // namespace

class TestServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        basePath = m_folder->path();
        QVERIFY(QDir::setCurrent(basePath));
        QVERIFY(QDir().mkpath(u"Data"_s));
        QFile port(basePath + u"/modem"_s);
        QVERIFY(port.open(QFile::WriteOnly));
        for (const auto &key : {u"AutoConnectFlag"_s, u"autoRedial_enabled"_s, u"Show_open_URL"_s})
            set(key, u"0"_s);
        cmcfg.setValue(u"statistics"_s, u"quota_mb"_s, u"0"_s);
        cmcfg.setValue(u"statistics"_s, u"end_at_quota"_s, u"0"_s);
    }
    void cleanup()
    {
        m_services.reset();
        m_monitor.reset();
    }

    void whatTheLinkCarriesIsCounted()
    {
        start({profile(u"Mine"_s)});
        QString first;
        connect(m_services->connection(), &ConnectionService::sigStatusChanged, this,
                [&](const ConnectionStatus &status) {
                    if (first.isEmpty() && status.state == ConnectionState::Connected)
                        first = status.interfaceName;
                });
        connectNow();
        QCOMPARE(first, u"lo"_s);
        carry(5000);
        m_services->traffic()->readNow();
        QVERIFY(m_services->traffic()->sessionVolumes().total() > 5000);
    }

    void aVolumeThatIsUsedUpEndsTheNextLinkAtOnce()
    {
        cmcfg.setValue(u"statistics_widget"_s, u"usage_statistic_enabled"_s, u"1"_s);
        cmcfg.setValue(u"statistics"_s, u"quota_mb"_s, u"1"_s);
        cmcfg.setValue(u"statistics"_s, u"end_at_quota"_s, u"1"_s);
        start({profile(u"Mine"_s)});
        connectNow();
        const auto isEnded = [&](int link) { // a busy machine may drop what is sent to nobody
            if (link == 1 && status().state == ConnectionState::Connected)
                carry(1'100'000);
            m_services->traffic()->readNow();
            return status().state == ConnectionState::NotConnected;
        };
        for (int link = 1; link <= 2; ++link) {
            QTRY_VERIFY_WITH_TIMEOUT(isEnded(link), 15000);
            QCOMPARE(status().end, ConnectionEnd::Quota);
            QCOMPARE(m_services->traffic()->history().size(), std::size_t(link));
            if (link == 1)
                connectNow();
        }
        QCOMPARE(m_backend->count(DialVerb::HangUp), 2);
    }

    /// What was entered for one dial is for that link and its profile.
    void aPasswordIsNotKeptForALaterDial()
    {
        set(u"AutoConnectFlag"_s, u"1"_s);
        ConnectionProfile asking = profile(u"Asking"_s);
        asking.setOn(ProfileField::AsksUserName, true);
        start({asking});
        QTRY_COMPARE(status().redial, 0); // nobody can be asked
        QVERIFY(m_backend->asked.empty());
        connectNow(DialCredentials{u"Asking"_s, u"maria"_s, u"secret"_s});
        QCOMPARE(lastWritten().text(ProfileField::Password), u"secret"_s);
        m_services->connection()->disconnectNow();
        QTRY_COMPARE(status().state, ConnectionState::NotConnected);
        connectNow();
        QCOMPARE(lastWritten().text(ProfileField::Password), QString());
        m_services->connection()->disconnectNow();
        QTRY_COMPARE(status().state, ConnectionState::NotConnected);
        connectNow(DialCredentials{u"Another"_s, u"maria"_s, u"secret"_s});
        QCOMPARE(lastWritten().text(ProfileField::Password), QString());
    }

    void connectsByItselfWithTheProfileOfTheSim()
    {
        set(u"AutoConnectFlag"_s, u"1"_s);
        ConnectionProfile other = profile(u"Other"_s);
        other.setText(ProfileField::Imsi, u"99901"_s);
        ConnectionProfile mine = profile(u"Mine"_s);
        mine.setText(ProfileField::Imsi, u"26201"_s);
        mine.setText(ProfileField::DefaultOpenUrl, u"www.example.org/start"_s);
        set(u"Show_open_URL"_s, u"1"_s);
        start({other, mine}, QString());
        QCOMPARE(status().redial, 0); // whose SIM it is shows later
        QSignalSpy pages(m_services->connection(), &ConnectionService::sigOpenUrl);
        putCard(u"262011234567890"_s);
        comesUp(1);
        QCOMPARE(status().profileName, u"Mine"_s);
        QCOMPARE(pages.at(0).at(0).toUrl(), QUrl(u"http://www.example.org/start"_s));
    }

    void aRowWithoutACardTellsItOnce()
    {
        set(u"autoRedial_enabled"_s, u"1"_s);
        set(u"autoRedial_time"_s, u"3"_s);
        set(u"autoRedial_startSec"_s, u"0"_s);
        set(u"autoRedial_afterSec"_s, u"1"_s);
        start({profile(u"Mine"_s)});
        connectNow();
        QSignalSpy boxes(m_services->connection(), &ConnectionService::sigMessage);
        fakecard::put({});
        QTRY_COMPARE(status().redial, 3);
        QTRY_COMPARE(status().redial, 0);
        QCOMPARE(boxes.size(), 1);
    }

    /// As while a window asks for an administrator's password: its answer may never come.
    void aCancelledDialDoesNotWaitForEver()
    {
        start({profile(u"Mine"_s)});
        m_backend->silentAt = DialVerb::Save;
        LinkPlan plan;
        plan.profile = profile(u"Mine"_s);
        plan.modemPort = u"/dev/null"_s;
        plan.hasContexts = false;
        plan.endLimit = std::chrono::milliseconds(50);
        DialUpLink link(*m_monitor, *m_backend, factsOfLoopback, plan);
        QSignalSpy over(&link, &DataLink::sigOver);
        link.start();
        link.end({});
        QTRY_COMPARE(over.size(), 1);
        QCOMPARE(m_backend->asked.back().verb, DialVerb::Recover);
    }

    void whatTheEndOfTheProgramCutsOffIsCounted()
    {
        start({profile(u"Mine"_s)});
        connectNow();
        carry(5000);
        m_services.reset();
        const TrafficService after;
        QCOMPARE(after.history().size(), std::size_t(1));
        QCOMPARE(after.history().front().ended, QString(historyend::Program));
        QVERIFY(after.history().front().volumes.both().total() > 5000);
    }

private:
    static void carry(qsizetype bytes)
    {
        constexpr qsizetype piece = 50000;
        QUdpSocket sender;
        for (qsizetype sent = 0; sent < bytes; sent += piece)
            sender.writeDatagram(QByteArray(std::min(piece, bytes - sent), 'x'), QHostAddress::LocalHost, 9);
    }
    static void set(const QString &key, const QString &value)
    {
        cmcfg.setValue(u"network_dialer_setting"_s, key, value);
    }
    const ConnectionStatus &status() const { return m_services->connection()->status(); }

    /// A card that is ready; the first profile is the default.
    void start(const QList<ConnectionProfile> &profiles, const QString &imsi = u"262011234567890"_s)
    {
        ProfileStore store(basePath + u"/Data"_s);
        for (const ConnectionProfile &each : profiles)
            QVERIFY(store.add(each));
        QVERIFY(store.setDefault(profiles.first().name()));
        m_monitor = std::make_unique<CardMonitor>(nullptr);
        m_services = std::make_unique<Services>(
            m_monitor.get(),
            [this](CardMonitor *monitor, ProfileStore *known) {
                ConnectionParts parts;
                auto backend = std::make_unique<FakeBackend>();
                m_backend = backend.get();
                parts.backend = std::move(backend);
                parts.facts = factsOfLoopback;
                return std::make_unique<ConnectionService>(monitor, known, std::move(parts));
            },
            nullptr);
        putCard(imsi);
    }
    static void putCard(const QString &imsi)
    {
        CardState card = fakecard::registeredCard();
        card.family = CardFamily::Cdma; // has no contexts that would have to be set on the card
        card.modemPortName = basePath + u"/modem"_s;
        card.identity.imsi = imsi;
        fakecard::put(card);
    }
    void connectNow(const std::optional<DialCredentials> &credentials = std::nullopt)
    {
        QVERIFY(m_services->connection()->connectNow(credentials));
        comesUp(m_backend->count(DialVerb::Dial) + 1);
    }

    ConnectionProfile lastWritten() const
    {
        const auto written = std::find_if(m_backend->asked.rbegin(), m_backend->asked.rend(),
                                          [](const auto &each) { return each.verb == DialVerb::Write; });
        return written->profile;
    }
    /// The dialler has begun its dial of that number, and gets through.
    void comesUp(qsizetype dial)
    {
        QTRY_COMPARE(m_backend->count(DialVerb::Dial), dial);
        QSignalSpy changes(m_services->connection(), &ConnectionService::sigStatusChanged);
        Q_EMIT m_backend->sigOutput("--> local  IP address 10.64.64.64\n");
        const auto states = [&] {
            QList<ConnectionState> all;
            for (const QList<QVariant> &change : changes)
                all += change.at(0).value<ConnectionStatus>().state;
            return all;
        };
        QVERIFY(states().contains(ConnectionState::Connected));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<CardMonitor> m_monitor;
    std::unique_ptr<Services> m_services;
    FakeBackend *m_backend = nullptr;
};

QTEST_GUILESS_MAIN(TestServices)
#include "tst_services.moc"
