// SPDX-License-Identifier: GPL-3.0-or-later
// The data call over the card's own network interface, on the emulated card. Who gets the address is a fake.
#include "../rows.h"
#include "cardthread.h"
#include "connection/connectionservice.h"
#include "connection/datacall.h"
#include "connection/linkfacts.h"
#include "connection/networkcardlink.h"
#include "connection/profilestore.h"
#include "device/cardmonitor.h"
#include "fakebackend.h"
#include "link/cardworker.h"
#include "linktest.h"
#include "shell/commoncfg.h"
#include "shell/globals.h"

#include <QJsonDocument>
#include <QSignalSpy>
#include <QTest>
#include <future>

using namespace Qt::StringLiterals;
using namespace corva;

constexpr int patience = 20000; // ms, for what takes a moment on a busy machine

namespace
{

const Rows<QString, QByteArray, QByteArray> upAndDownRows{
    {"the maker's command", u"wcdma"_s, "AT+JPDPACT=1,1", "AT+JPDPACT=1,0"},
    {"the standard's", u"standard"_s, "AT+CGACT=1,1", "AT+CGACT=0,1"},
};

const Rows<bool, QByteArray> callOfAKilledRunRows{
    {"of this card", false, {}},
    {"of this card, which tells its IMEI late", false,
     R"({"command": "fault", "kind": "refuse", "match": "+CGSN", "count": 1})"},
    {"of another card", true, {}},
};

// Whether the card is at the data call, or still at something else.
const Rows<bool> givenUpRows{
    {"while the call is made", true},
    {"before its context is set", false},
};

const Rows<QString> refusedByTheNetworkRows{
    {"by a report", u"wcdma"_s},
    {"by an error", u"standard"_s},
};

} // namespace

class TestNetworkCard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        basePath = m_folder.path();
        cmcfg.setValue(u"device"_s, u"at_port"_s, basePath + u"/card/at"_s);
        cmcfg.setValue(u"device"_s, u"modem_port"_s, basePath + u"/card/modem"_s);
        cmcfg.setValue(u"device"_s, u"network_interface"_s, u"wwan0"_s);
        cmcfg.setValue(u"network_dialer_setting"_s, u"send_nullatcommand_timer_100ms"_s, u"10"_s);
        cmcfg.setValue(u"network_dialer_setting"_s, u"dial_timeout"_s, u"30"_s);
        m_owner.onFind = [this] { m_monitor->findPorts(false); };
    }
    void cleanup()
    {
        m_service.reset();
        m_monitor.reset();
        m_card.reset();
    }

    void upAndDown_data() { addRows(upAndDownRows); }
    void upAndDown()
    {
        const auto &[name, card, up, down] = currentRow(upAndDownRows);
        begin(card);
        QVERIFY(m_service->connectNow());
        QTRY_COMPARE_WITH_TIMEOUT(status().state, ConnectionState::Connected, patience);
        QCOMPARE(status().kind, LinkKind::NetworkCard);
        QCOMPARE(status().interfaceName, u"wwan0"_s);
        QCOMPARE(m_backend->asked.mid(0, 2), (QList{DialVerb::Save, DialVerb::Lease}));
        QVERIFY(heard().contains(up) && !heard().contains(down) && DataCall::isNoted());

        m_service->disconnectNow();
        QTRY_COMPARE_WITH_TIMEOUT(status().state, ConnectionState::NotConnected, patience);
        QCOMPARE(m_backend->asked.mid(3), (QList{DialVerb::Release, DialVerb::Recover}));
        QVERIFY(heard().contains(down) && !DataCall::isNoted());
        QCOMPARE(m_messages, QStringList());
    }

    void callOfAKilledRun_data() { addRows(callOfAKilledRunRows); }
    void callOfAKilledRun()
    {
        const auto &[name, isOther, fault] = currentRow(callOfAKilledRunRows);
        begin(u"wcdma"_s);
        m_service.reset();
        QTRY_VERIFY_WITH_TIMEOUT(!m_monitor->state().identity.imei.isEmpty(), patience);
        auto call =
            std::make_shared<DataCall>(isOther ? u"351234567890123"_s : m_monitor->state().identity.imei);
        m_monitor->worker().submit([call](SerialThread &link) { call->make(link); });
        QTRY_VERIFY_WITH_TIMEOUT(heard().contains("AT+JPDPACT=1,1"), patience);
        m_monitor.reset();
        begin(u"wcdma"_s, fault);
        QTRY_VERIFY_WITH_TIMEOUT(!DataCall::isNoted(), patience);
        QCOMPARE(heard().contains("AT+JPDPACT=1,0"), !isOther);
    }

    /// The card is slower than the person: what it does too late is undone, or not even begun.
    void givenUp_data() { addRows(givenUpRows); }
    void givenUp()
    {
        const auto &[name, isMaking] = currentRow(givenUpRows);
        begin(u"wcdma"_s);
        LinkPlan plan;
        plan.profile = *m_store->defaultProfile();
        plan.contextLimit = std::chrono::milliseconds(isMaking ? patience : 20);
        plan.endLimit = std::chrono::milliseconds(20);
        NetworkCardLink link(
            *m_monitor, *m_backend, [](const QString &) { return LinkFacts(); }, plan);
        QSignalSpy over(&link, &DataLink::sigOver);
        std::promise<void> busy;
        if (isMaking)
            tell(R"({"command": "fault", "kind": "late", "ms": 1000, "match": "+JPDPACT"})");
        else
            m_monitor->worker().submit([&](SerialThread &) { busy.get_future().wait(); });
        link.start();
        if (isMaking) {
            QTRY_VERIFY_WITH_TIMEOUT(heard().contains("AT+JPDPACT=1,1"), patience);
            link.end({ConnectionEnd::ByPerson, -1, {}, {}});
        }
        QTRY_COMPARE_WITH_TIMEOUT(over.size(), 1, patience);
        busy.set_value();
        QFuture<bool> later = m_monitor->worker().submit([](SerialThread &) { return true; });
        QTRY_VERIFY_WITH_TIMEOUT(later.isFinished(), patience);
        QCOMPARE(heard().contains("AT+JPDPACT=1,0"), isMaking);
        QCOMPARE(heard().contains("AT+CGDCONT"), isMaking);
        QVERIFY(!DataCall::isNoted());
    }

    void refusedByTheNetwork_data() { addRows(refusedByTheNetworkRows); }
    void refusedByTheNetwork()
    {
        const auto &[name, card] = currentRow(refusedByTheNetworkRows);
        begin(card);
        tell(R"({"command": "set", "key": "data.accessPoint", "value": "elsewhere"})");
        QVERIFY(m_service->connectNow());
        QTRY_COMPARE_WITH_TIMEOUT(m_messages, QStringList{u"Connection is failed!"_s}, patience);
        QCOMPARE(status().end, ConnectionEnd::NoCarrier);
        QVERIFY(!m_backend->asked.contains(DialVerb::Lease));
        QCOMPARE(m_backend->asked.last(), DialVerb::Recover);
    }

    void noAddress()
    {
        begin(u"wcdma"_s);
        m_backend->results[DialVerb::Lease] = {DialResult::Kind::Failed, u"The network gave no address."_s};
        QVERIFY(m_service->connectNow());
        QTRY_COMPARE_WITH_TIMEOUT(m_messages, QStringList{u"The network gave no address."_s}, patience);
        QVERIFY(heard().contains("AT+JPDPACT=1,0"));
    }

    void endedByTheNetwork()
    {
        begin(u"wcdma"_s);
        QVERIFY(m_service->connectNow());
        QTRY_COMPARE_WITH_TIMEOUT(status().state, ConnectionState::Connected, patience);
        tell(R"({"command": "drop-data"})");
        QTRY_COMPARE_WITH_TIMEOUT(status().state, ConnectionState::NotConnected, patience);
        QCOMPARE(status().end, ConnectionEnd::ByPeer);
    }

    void cancelledWhileTheAddressIsAskedFor()
    {
        begin(u"wcdma"_s);
        m_backend->holds = DialVerb::Lease;
        QVERIFY(m_service->connectNow());
        QTRY_VERIFY_WITH_TIMEOUT(m_backend->held, patience);
        m_service->disconnectNow();
        m_backend->held({DialResult::Kind::Failed, u"cancelled"_s});
        QTRY_COMPARE_WITH_TIMEOUT(status().state, ConnectionState::NotConnected, patience);
        QVERIFY(heard().contains("AT+JPDPACT=1,0"));
        QCOMPARE(m_messages, QStringList());
    }

    void endOfTheProgram()
    {
        begin(u"wcdma"_s);
        QVERIFY(m_service->connectNow());
        QTRY_COMPARE_WITH_TIMEOUT(status().state, ConnectionState::Connected, patience);
        m_service->shutDown();
        QVERIFY(heard().contains("AT+JPDPACT=1,0"));
    }

private:
    void begin(const QString &card, const QByteArray &fault = {})
    {
        resetLinkGlobals();
        m_messages.clear();
        m_card = std::make_unique<cardemu::CardThread>(
            std::get<cardemu::Profile>(cardemu::Profile::builtIn(card)));
        QCOMPARE(m_card->start(basePath + u"/card"_s), QString());
        if (!fault.isEmpty())
            tell(fault);
        m_monitor = std::make_unique<CardMonitor>(&m_owner);
        m_store = std::make_unique<ProfileStore>(basePath + u"/Data"_s);
        ConnectionProfile profile = ProfileStore::newProfile();
        profile.setText(ProfileField::Name, u"Stick"_s);
        profile.setText(ProfileField::Apn, u"internet"_s);
        profile.setOn(ProfileField::UsesApn, true);
        profile.setLinkKind(LinkKind::Automatic);
        if (m_store->list().isEmpty())
            QVERIFY(m_store->add(profile) && m_store->setDefault(u"Stick"_s));
        ConnectionParts parts;
        auto backend = std::make_unique<FakeBackend>();
        m_backend = backend.get();
        parts.backend = std::move(backend);
        parts.facts = [](const QString &name) {
            LinkFacts facts;
            facts.interfaceName = name;
            facts.isUp = true;
            facts.localAddress = u"192.0.2.7"_s;
            return facts;
        };
        m_service = std::make_unique<ConnectionService>(m_monitor.get(), m_store.get(), std::move(parts));
        connect(m_service.get(), &ConnectionService::sigMessage, this,
                [this](const QString &text) { m_messages += text; });
        m_monitor->start();
        QTRY_VERIFY_WITH_TIMEOUT(m_monitor->state().modemReady, patience);
    }
    void tell(const QByteArray &json)
    {
        const QJsonObject answer = m_card->control(json);
        QVERIFY2(answer[u"ok"_s].toBool(), qPrintable(answer[u"error"_s].toString()));
    }
    QByteArray heard()
    {
        return QJsonDocument(m_card->control(R"({"command": "log", "last": 1000})")).toJson();
    }
    const ConnectionStatus &status() const { return m_service->status(); }

    ScratchFolder m_folder;
    FakeOwner m_owner;
    QStringList m_messages;
    std::unique_ptr<cardemu::CardThread> m_card;
    std::unique_ptr<CardMonitor> m_monitor;
    std::unique_ptr<ProfileStore> m_store;
    std::unique_ptr<ConnectionService> m_service;
    FakeBackend *m_backend = nullptr; ///< belongs to the service
};

QTEST_GUILESS_MAIN(TestNetworkCard)
#include "tst_networkcard.moc"
