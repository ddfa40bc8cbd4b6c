// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardthread.h"
#include "device/cardmonitor.h"
#include "link/serialthread.h"
#include "serviceowner.h"
#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "sms/messagestore.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>
#include <numeric>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

constexpr int patience = 30000; // ms, for what takes a moment on a busy machine
} // namespace

/// Messages between the emulated card and the store.
class TestMessageService : public QObject
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
    }
    void init()
    {
        resetLinkGlobals();
        set("newsmsLocation", 2);
        set("deliveryReport", 1);
        set("deliveryReportMsgDlgShow", 1);
        set("deleteSimSmsWhenFull", 0);
        cmcfg.setValue(u"function"_s, u"modemSide_enabled"_s, u"1"_s);
        cmcfg.setValue(u"function"_s, u"cell_board_enabled"_s, u"1"_s);
        m_card = std::make_unique<cardemu::CardThread>(
            std::get<cardemu::Profile>(cardemu::Profile::builtIn(u"wcdma"_s)));
        QCOMPARE(m_card->start(m_folder.path() + u"/card"_s), QString());
        for (const char *store : {"SM", "ME", "SR"})
            tell(QByteArray(R"({"command": "store", "clear": true, "name": "@"})").replace('@', store));
    }
    void cleanup()
    {
        end();
        m_card.reset();
        QDir data(m_folder.path() + u"/Data"_s);
        for (const char *file : {"sms.xml", "cardsms.xml"})
            data.remove(QLatin1StringView(file));
    }

    void newMessages_data()
    {
        QTest::addColumn<int>("location");
        QTest::addColumn<int>("cardSide");
        QTest::addColumn<int>("place"); // where they are found afterwards
        QTest::addColumn<int>("onSim");
        QTest::newRow("handed over") << 2 << 1 << int(MessagePlace::Computer) << 0;
        QTest::newRow("announced, moved to the computer") << 2 << 0 << int(MessagePlace::Computer) << 0;
        QTest::newRow("kept on the SIM") << 1 << 0 << int(MessagePlace::Sim) << 3;
    }
    void newMessages()
    {
        QFETCH(int, location);
        QFETCH(int, cardSide);
        QFETCH(int, place);
        set("newsmsLocation", location);
        cmcfg.setValue(u"function"_s, u"modemSide_enabled"_s, QString::number(cardSide));
        cmcfg.setValue(u"function"_s, u"cell_board_enabled"_s, u"0"_s);
        begin();
        QSignalSpy announced(m_service.get(), &MessageService::sigNewMessage);
        tell(R"({"command": "sms", "from": "+4917112345", "text": "Grüße"})");
        tell(R"({"command": "sms", "from": "+4917112345", "text": "zwei"})");
        // Torn and damaged: kept, and shown as such.
        tell(R"({"command": "sms", "pdu": "0791947?01", "unchecked": true})");
        QTRY_COMPARE_WITH_TIMEOUT(inbox(MessagePlace(place)).size(), 3, patience);
        QCOMPARE(announced.size(), 3);
        QStringList texts;
        for (const Message &message : inbox(MessagePlace(place)))
            texts +=
                message.error.isEmpty() ? message.recipients.value(0) + u' ' + message.text() : u"broken"_s;
        texts.sort();
        QCOMPARE(texts, (QStringList{u"+4917112345 Grüße"_s, u"+4917112345 zwei"_s, u"broken"_s}));
        QTRY_COMPARE_WITH_TIMEOUT(stored(u"SM"_s) + stored(u"ME"_s),
                                  QTest::currentDataTag() ? expectedOnCard() : 0, patience);
    }

    void aLongMessageInAnyOrder()
    {
        begin();
        QSignalSpy announced(m_service.get(), &MessageService::sigNewMessage);
        const QString text = QString(400, u'x') + u"end"_s;
        tell(QByteArray(R"({"command": "sms", "from": "123", "order": "3,1,2", "text": "@"})")
                 .replace('@', text.toLatin1()));
        QTRY_VERIFY_WITH_TIMEOUT(!inbox().empty() && inbox().front().missingParts() == 0, patience);
        QCOMPARE(inbox().size(), 1U);
        QCOMPARE(inbox().front().text(), text);
        QCOMPARE(announced.size(), 1);
    }

    void unreadAtTheStart()
    {
        set("newSmsNoticeShowWhenProgramStart", 1);
        set("newsmsLocation", 1);
        {
            MessageStore store(m_folder.path() + u"/Data"_s);
            store.load();
            QTRY_VERIFY_WITH_TIMEOUT(store.isLoaded(), patience);
            Message message;
            message.recipients = {u"111"_s};
            message.parts.emplace_back().text = u"hello"_s;
            store.add({message});
        }
        tell(R"({"command": "fill", "name": "SM", "count": 2, "status": 0})");
        tell(R"({"command": "fill", "name": "ME", "count": 3, "status": 0, "text": "card"})");
        begin();
        QTRY_COMPARE_WITH_TIMEOUT(m_unreadAtStart, QList<int>{6}, patience);
        set("newSmsNoticeShowWhenProgramStart", 0);
    }

    void aMessageInTheMiddleOfAList()
    {
        tell(R"({"command": "fill", "name": "SM", "count": 20, "status": 1})");
        tell(R"({"command": "fault", "kind": "interleave", "match": "+CMGL", "text":
            "+CMT: ,24\r\n0791947106004034040B919471325476F800004250112100000005E8329BFD06"})");
        begin();
        QTRY_COMPARE_WITH_TIMEOUT(inbox(MessagePlace::Sim).size(), 20U, patience);
        QTRY_COMPARE_WITH_TIMEOUT(inbox().size(), 1U, patience);
        m_service->refreshPlace(MessagePlace::Sim);
        QTRY_VERIFY_WITH_TIMEOUT(!m_service->place(MessagePlace::Sim).isLoading, patience);
        QCOMPARE(inbox(MessagePlace::Sim).size(), 20U);
        QCOMPARE(inbox().size(), 1U);
    }

    void sendingAndItsReport()
    {
        tell(R"({"command": "sms-network", "reportDelay": 50})");
        begin();
        QSignalSpy summary(m_service.get(), &MessageService::sigSendSummary);
        QSignalSpy delivered(m_service.get(), &MessageService::sigDelivered);
        m_service->send({{u"+4917111111"_s, u"10086"_s}, QString(200, u'a'), true, {}});
        QTRY_COMPARE_WITH_TIMEOUT(summary.size(), 1, patience);
        QCOMPARE(summary.front(), (QVariantList{2, 0}));
        QCOMPARE(sent(), 4);
        const Message message = only(MessageBox::Sent);
        QCOMPARE(message.parts.size(), 4U);
        QTRY_VERIFY_WITH_TIMEOUT(only(MessageBox::Sent).state() == DeliveryState::Delivered, patience);
        QVERIFY(delivered.size() >= 2);
        QTRY_COMPARE_WITH_TIMEOUT(stored(u"SR"_s), 0, patience);
    }

    void eachAsksForItsReportByItself()
    {
        tell(R"({"command": "sms-network", "reportDelay": 50})");
        set("deliveryReport", 0);
        begin();
        m_service->send({{u"111"_s}, u"one"_s, true, {}});
        m_service->send({{u"222"_s}, u"two"_s, false, {}});
        const auto outcomes = [this] {
            QStringList each;
            for (const Message &message : m_store->messages(m_store->ids(MessageBox::Sent)))
                each += message.recipients.front() +
                        (message.state() == DeliveryState::Delivered ? u" delivered"_s : u" sent"_s);
            each.sort();
            return each;
        };
        QTRY_COMPARE_WITH_TIMEOUT(outcomes(), (QStringList{u"111 delivered"_s, u"222 sent"_s}), patience);
        QCOMPARE(cmcfg.getNumber(u"sms"_s, u"deliveryReport"_s), 0);
    }

    void sentAgainWhenItDidNotArrive()
    {
        tell(R"({"command": "sms-network", "reportDelay": 3600000})");
        begin();
        m_service->send({{u"111"_s}, u"one"_s, true, {}});
        QTRY_COMPARE_WITH_TIMEOUT(only(MessageBox::Sent).parts.size(), 1U, patience);
        const Message message = only(MessageBox::Sent);
        StatusReport report;
        report.recipient = u"111"_s;
        report.reference = message.parts[0].reference;
        report.status = 0x41; // incompatible destination
        report.sent = message.parts[0].sent;
        m_store->applyReport(report);
        QCOMPARE(only(MessageBox::Sent).state(), DeliveryState::Failed);
        m_service->retry({message.id});
        QTRY_COMPARE_WITH_TIMEOUT(only(MessageBox::Sent).state(), DeliveryState::Sent, patience);
        QCOMPARE(only(MessageBox::Sent).parts[0].statusOctet, -1);
        QCOMPARE(sent(), 2);
    }

    void refusedByTheNetwork()
    {
        tell(R"({"command": "sms-network", "refuse": 42, "nth": 2, "count": 1})");
        begin();
        QSignalSpy summary(m_service.get(), &MessageService::sigSendSummary);
        m_service->send({{u"10086"_s}, QString(400, u'a'), false, {}});
        QTRY_COMPARE_WITH_TIMEOUT(summary.size(), 1, patience);
        QCOMPARE(summary.front(), (QVariantList{0, 1}));
        QVERIFY(m_notices.join(u' ').contains(u"The network is overloaded."));
        const Message failed = only(MessageBox::Outbox);
        QCOMPARE(failed.parts[0].state, DeliveryState::Sent);
        QCOMPARE(failed.parts[1].errorCode, 42);
        QCOMPARE(failed.parts[2].state, DeliveryState::Failed);
        QCOMPARE(sent(), 1);
        m_service->retry({failed.id}); // only what did not go out
        QTRY_COMPARE_WITH_TIMEOUT(summary.size(), 2, patience);
        QCOMPARE(summary.back(), (QVariantList{1, 0}));
        QCOMPARE(sent(), 3);
        QCOMPARE(only(MessageBox::Sent).id, failed.id);
    }

    void theAlphabetChangedBetweenTwoTries()
    {
        tell(R"({"command": "sms-network", "refuse": 42, "nth": 1, "count": 1})");
        cmcfg.setValue(u"sms"_s, u"specialcode"_s, u"gsm7ex_turkish"_s);
        begin();
        const QString text(100, QChar(0x15f)); // a letter of that alphabet
        m_service->send({{u"10086"_s, u"10087"_s}, text, false, {}});
        QTRY_COMPARE_WITH_TIMEOUT(only(MessageBox::Outbox).state(0), DeliveryState::Failed, patience);
        QTRY_COMPARE_WITH_TIMEOUT(only(MessageBox::Outbox).state(1), DeliveryState::Sent, patience);
        const std::size_t parts = only(MessageBox::Outbox).parts.size();
        cmcfg.setValue(u"sms"_s, u"specialcode"_s, u"gsm7ex_spanish"_s);
        m_service->retry({only(MessageBox::Outbox).id});
        QTRY_COMPARE_WITH_TIMEOUT(only(MessageBox::Sent).text(), text, patience);
        QVERIFY(only(MessageBox::Sent).parts.size() > parts);
        QCOMPARE(only(MessageBox::Sent).missingParts(), 0);
    }

    void aPromptThatComesLate()
    {
        tell(R"({"command": "fault", "kind": "late", "match": ">", "ms": 3300})");
        begin();
        QSignalSpy summary(m_service.get(), &MessageService::sigSendSummary);
        m_service->send({{u"10086"_s}, u"one"_s, false, {}});
        QTRY_COMPARE_WITH_TIMEOUT(summary.size(), 1, patience);
        QCOMPARE(only(MessageBox::Outbox).state(), DeliveryState::Failed);
        m_service->retry({only(MessageBox::Outbox).id}); // which the card does not take for the text
        QTRY_COMPARE_WITH_TIMEOUT(only(MessageBox::Sent).parts.size(), 1U, patience);
        QCOMPARE(sent(), 1);
    }

    void cancelledMidway()
    {
        tell(R"({"command": "sms-network", "delay": 300})");
        begin();
        QSignalSpy summary(m_service.get(), &MessageService::sigSendSummary);
        m_service->send({{u"10086"_s}, QString(400, u'a'), false, {}});
        QTRY_VERIFY_WITH_TIMEOUT(m_service->sending().isActive, patience);
        m_service->cancelSending();
        m_service->send({{u"222"_s}, u"later"_s, false, {}}); // which is not given up with the rest
        QTRY_COMPARE_WITH_TIMEOUT(only(MessageBox::Sent).recipients, QStringList(u"222"_s), patience);
        QTRY_VERIFY_WITH_TIMEOUT(!m_service->sending().isActive, patience);
        QCOMPARE(only(MessageBox::Outbox).state(), DeliveryState::Failed);
        QVERIFY(sent() < 4);
        const auto failed = [](int sum, const QVariantList &run) { return sum + run.at(1).toInt(); };
        QCOMPARE(std::accumulate(summary.begin(), summary.end(), 0, failed), 1);
    }

    void theQueueOverARestart()
    {
        {
            MessageStore store(m_folder.path() + u"/Data"_s);
            store.load();
            QTRY_VERIFY_WITH_TIMEOUT(store.isLoaded(), patience);
            for (const DeliveryState state : {DeliveryState::Queued, DeliveryState::Sending}) {
                Message message;
                message.box = MessageBox::Outbox;
                message.recipients = {state == DeliveryState::Queued ? u"111"_s : u"222"_s};
                message.time = message.arrived = QDateTime::currentDateTime();
                message.parts.emplace_back().state = state;
                message.parts.front().text = u"hello"_s;
                store.add({message});
            }
            QVERIFY(store.flush());
        }
        begin();
        QTRY_COMPARE_WITH_TIMEOUT(only(MessageBox::Sent).recipients, QStringList(u"111"_s), patience);
        QCOMPARE(sent(), 1); // the other one may have gone out before
        QCOMPARE(only(MessageBox::Outbox).state(), DeliveryState::Unsure);
    }

    void unpluggedWhileSending()
    {
        tell(R"({"command": "sms-network", "delay": 60000})");
        begin();
        QSignalSpy summary(m_service.get(), &MessageService::sigSendSummary);
        m_service->send({{u"10086"_s}, QString(400, u'a'), false, {}});
        QTRY_VERIFY_WITH_TIMEOUT(hears(u"0500030"_s), patience); // the first part is on its way
        tell(R"({"command": "unplug"})");
        const auto state = [this](std::size_t part) { return only(MessageBox::Outbox).parts[part].state; };
        QTRY_COMPARE_WITH_TIMEOUT(state(0), DeliveryState::Unsure, patience);
        QCOMPARE(sent(), 0);
        tell(R"({"command": "sms-network", "delay": 0})");
        tell(R"({"command": "plug"})");
        QTRY_COMPARE_WITH_TIMEOUT(summary.size(), 1, patience);
        QCOMPARE(state(0), DeliveryState::Unsure); // not again unasked
        QCOMPARE(sent(), 2);
        m_service->retry({only(MessageBox::Outbox).id});
        QTRY_COMPARE_WITH_TIMEOUT(only(MessageBox::Sent).parts.size(), 3U, patience);
        QCOMPARE(sent(), 3);
    }

    void movingAndDeleting()
    {
        tell(R"({"command": "fill", "name": "SM", "count": 3, "status": 1})");
        begin();
        QTRY_COMPARE_WITH_TIMEOUT(inbox(MessagePlace::Sim).size(), 3U, patience);
        QStringList ids = m_store->ids(MessageBox::Inbox, MessagePlace::Sim);
        m_service->moveTo({ids[0]}, MessagePlace::Computer);
        QTRY_COMPARE_WITH_TIMEOUT(stored(u"SM"_s), 2, patience);
        QCOMPARE(inbox().size(), 1U);
        m_service->moveTo({inbox().front().id}, MessagePlace::Card);
        QTRY_COMPARE_WITH_TIMEOUT(inbox(MessagePlace::Card).size(), 1U, patience);
        QCOMPARE(stored(u"ME"_s), 1);
        QTRY_VERIFY_WITH_TIMEOUT(inbox().empty(), patience);
        QTRY_COMPARE_WITH_TIMEOUT(inbox(MessagePlace::Sim).size(), 2U, patience);
        ids = m_store->ids(MessageBox::Inbox, MessagePlace::Sim);
        m_service->removeMessages(ids);
        QTRY_COMPARE_WITH_TIMEOUT(stored(u"SM"_s), 0, patience);
        QCOMPARE(m_store->ids(MessageBox::Deleted).size(), 2);
        QVERIFY(m_service->undoRemoval());
        QCOMPARE(inbox().size(), 2U);
    }

    void undoGoesOnBehindWhatIsGone()
    {
        begin();
        QStringList ids;
        for (const QString &text : {u"one"_s, u"two"_s}) {
            Message message;
            message.recipients = {u"111"_s};
            message.parts.emplace_back().text = text;
            ids += m_store->insert({message}).ids;
        }
        QCOMPARE(m_service->removeMessages({ids[0]}), 1);
        QCOMPARE(m_service->removeMessages({ids[1]}), 1);
        m_store->purge({ids[1]});
        QVERIFY(m_service->undoRemoval());
        QCOMPARE(inbox().size(), 1U);
        QVERIFY(!m_service->undoRemoval());
    }

    void noHalfMessageOnTheSim()
    {
        tell(R"({"command": "fill", "name": "ME", "count": 1, "status": 1})");
        tell(QByteArray(R"({"command": "sms", "from": "123", "store": "ME", "text": "@"})")
                 .replace('@', QByteArray(400, 'x')));
        tell(R"({"command": "set", "key": "messages.stores.SM.capacity", "value": 3})");
        tell(R"({"command": "fill", "name": "SM", "count": 1, "status": 1})");
        set("newsmsLocation", 3);
        begin();
        QTRY_COMPARE_WITH_TIMEOUT(inbox(MessagePlace::Card).size(), 2U, patience);
        const auto isLong = [](const Message &message) { return message.total == 3; };
        const auto onCard = inbox(MessagePlace::Card);
        const QString id = std::ranges::find_if(onCard, isLong)->id;
        m_service->moveTo({id}, MessagePlace::Sim);
        QTRY_VERIFY_WITH_TIMEOUT(m_notices.join(u' ').contains(u"was not written to the SIM"), patience);
        QCOMPARE(stored(u"SM"_s), 1);
        QCOMPARE(stored(u"ME"_s), 4);
    }

    void whatCannotBeReadIsShownOnce()
    {
        tell(R"({"command": "fill", "name": "SM", "count": 1, "status": 1})");
        tell(R"({"command": "fault", "kind": "interleave", "match": "+CMGL", "count": 0, "at": 0, "text":
            "+CMGL: ?\r\n0791947106004034040B919471325476F800004250112100000005E8329BFD06"})");
        begin();
        QTRY_COMPARE_WITH_TIMEOUT(inbox().size(), 1U, patience); // its text could be read, and is unread
        QCOMPARE(inbox().front().text(), u"hello"_s);
        m_service->refreshPlace(MessagePlace::Sim);
        QTRY_VERIFY_WITH_TIMEOUT(!m_service->place(MessagePlace::Sim).isLoading, patience);
        QCOMPARE(inbox().size(), 1U);
        QCOMPARE(inbox(MessagePlace::Sim).size(), 2U);
        QCOMPARE(stored(u"SM"_s), 1);
    }

    void reportsAmongTheMessages()
    {
        const QByteArray report = "079194710167000006050B919471111111F14250112100000042501121000000";
        const auto bring = [&](const char *status) {
            tell(
                QByteArray(R"({"command": "sms", "store": "SM", "pdu": "@"})").replace('@', report + status));
        };
        bring("00");
        begin();
        QTRY_COMPARE_WITH_TIMEOUT(m_store->ids(MessageBox::Reports).size(), 1, patience);
        QTRY_COMPARE_WITH_TIMEOUT(stored(u"SM"_s), 0, patience);
        bring("30"); // announced by "+CDSI", which names the SIM
        QTRY_COMPARE_WITH_TIMEOUT(m_store->ids(MessageBox::Reports).size(), 2, patience);
        QTRY_COMPARE_WITH_TIMEOUT(stored(u"SM"_s), 0, patience);
    }

    void aReportThatCannotBeRead()
    {
        set("deliveryReportMsgDlgShow", 0);
        begin();
        QSignalSpy delivered(m_service.get(), &MessageService::sigDelivered);
        const auto bring = [&](const char *pdu) {
            tell(QByteArray(R"({"command": "sms-report", "pdu": "@"})").replace('@', pdu));
        };
        bring("079194710167000006050B91947111");
        QTRY_COMPARE_WITH_TIMEOUT(m_store->ids(MessageBox::Reports).size(), 1, patience);
        QTRY_COMPARE_WITH_TIMEOUT(stored(u"SR"_s), 0, patience);
        tell(R"({"command": "fault", "kind": "refuse", "match": "+CMGR", "code": 500})");
        bring("079194710167000006050B919471111111F1425011210000004250112100000046");
        QTRY_VERIFY_WITH_TIMEOUT(m_notices.join(u' ').contains(u"A delivery report could not be read"),
                                 patience);
        bring("079194710167000006060B919471111111F1425011210000004250112100000046"); // a failure
        QTRY_COMPARE_WITH_TIMEOUT(delivered.size(), 1, patience);
    }

    void aDraftForTheSim_data()
    {
        QTest::addColumn<QStringList>("written");
        QTest::addColumn<QString>("refusal"); // empty: it is on the SIM
        QTest::newRow("a hyphen in the number") << QStringList{u"0171-234"_s} << QString();
        QTest::newRow("too long") << QStringList{u"+4917112345678901234"_s} << u"is too long"_s;
        QTest::newRow("two people") << QStringList{u"111"_s, u"222"_s} << u"for several people"_s;
    }
    void aDraftForTheSim()
    {
        QFETCH(QStringList, written);
        QFETCH(QString, refusal);
        begin();
        Message draft;
        draft.box = MessageBox::Drafts;
        draft.recipients = written;
        draft.parts.emplace_back().text = u"hello"_s;
        m_service->copyTo(m_store->insert({draft}).ids, MessagePlace::Sim);
        const auto onSim = [&] {
            const auto drafts = m_store->messages(m_store->ids(MessageBox::Drafts, MessagePlace::Sim));
            return drafts.empty() ? QString() : drafts.front().recipients.value(0);
        };
        QTRY_COMPARE_WITH_TIMEOUT(onSim(), refusal.isEmpty() ? u"0171234"_s : QString(), patience);
        QVERIFY2(m_notices.join(u' ').contains(refusal), qPrintable(m_notices.join(u' ')));
        QCOMPARE(stored(u"SM"_s), refusal.isEmpty() ? 1 : 0);
    }

    void aServiceCentreThatIsTooLong()
    {
        begin();
        m_service->setServiceCentre(u"1234567890123456"_s);
        QTRY_COMPARE_WITH_TIMEOUT(m_service->serviceCentre().size(), 16, patience);
        QSignalSpy summary(m_service.get(), &MessageService::sigSendSummary);
        m_service->send({{u"10086"_s}, u"hello"_s, false, {}});
        QTRY_COMPARE_WITH_TIMEOUT(summary.size(), 1, patience);
        QVERIFY2(m_notices.join(u' ').contains(u"is too long"), qPrintable(m_notices.join(u' ')));
        QVERIFY(only(MessageBox::Outbox).parts[0].fault.contains(u"is too long"));
        QCOMPARE(sent(), 0);
    }

    void anotherMessageAtTheSamePlace()
    {
        tell(R"({"command": "fill", "name": "SM", "count": 1, "status": 1, "text": "old"})");
        begin();
        QTRY_COMPARE_WITH_TIMEOUT(inbox(MessagePlace::Sim).size(), 1U, patience);
        tell(R"({"command": "store", "name": "SM", "clear": true})");
        tell(R"({"command": "fill", "name": "SM", "count": 1, "status": 1, "text": "new"})");
        m_service->removeMessages({inbox(MessagePlace::Sim).front().id});
        QTRY_VERIFY_WITH_TIMEOUT(!inbox(MessagePlace::Sim).empty() &&
                                     inbox(MessagePlace::Sim).front().text().startsWith(u"new"),
                                 patience);
        QCOMPARE(stored(u"SM"_s), 1);
    }

    void aFullSim()
    {
        set("deleteSimSmsWhenFull", 1);
        tell(R"({"command": "set", "key": "messages.stores.SM.capacity", "value": 8})");
        tell(R"({"command": "fill", "name": "SM", "count": 6, "status": 1})");
        tell(R"({"command": "fill", "name": "SM", "count": 2, "status": 0})");
        set("newsmsLocation", 1);
        begin();
        QTRY_COMPARE_WITH_TIMEOUT(stored(u"SM"_s), 3, patience); // five that were read went, kept here
        QCOMPARE(inbox().size(), 5U);
        QVERIFY(m_notices.join(u' ').contains(u"8 of 8"));
    }

    void immediateMessages()
    {
        begin();
        QSignalSpy immediate(m_service.get(), &MessageService::sigClass0);
        const QString text = QString(200, u'x') + u"end"_s;
        tell(QByteArray(R"({"command": "sms", "from": "555", "order": "2,1", "class": 0, "text": "@",
            "time": "2024-05-03T10:00:00Z"})")
                 .replace('@', text.toLatin1()));
        QTRY_COMPARE_WITH_TIMEOUT(immediate.size(), 1, patience);
        QCOMPARE(immediate.front().mid(0, 2), (QVariantList{u"555"_s, text}));
        const auto message = immediate.front().at(3).value<Message>(); // as it would be kept
        QCOMPARE(message.time.toUTC(), QDateTime({2024, 5, 3}, {10, 0}, Qt::UTC));
        QCOMPARE(message.text(), text);
        tell(R"({"command": "sms", "from": "555", "class": 0, "alphabet": "8bit", "text": "\u0001"})");
        QTRY_COMPARE_WITH_TIMEOUT(immediate.size(), 2, patience);
        QCOMPARE(immediate.back().at(1), u"The message holds data and no text."_s);
        QVERIFY(inbox().empty());
    }

    void atTheEndTheCardKeepsThem()
    {
        begin();
        QVERIFY(hears(u"AT+CNMI=1,2,2,2,0"_s));
        m_service->shutDown();
        tell(R"({"command": "sms", "from": "123", "text": "nobody listens"})");
        QCOMPARE(stored(u"SM"_s) + stored(u"ME"_s), 1);
    }

    void settingsThatRoute()
    {
        begin();
        QVERIFY(hears(u"AT+CNMI=1,2,2,2,0"_s));
        set("newsmsLocation", 1);
        QTRY_VERIFY_WITH_TIMEOUT(hears(u"AT+CNMI=3,1,2,2,0"_s), patience);
    }

    void oneTextPostedTwice()
    {
        tell(R"({"command": "fill", "name": "SM", "count": 1, "status": 1})");
        begin();
        QTRY_COMPARE_WITH_TIMEOUT(inbox(MessagePlace::Sim).size(), 1U, patience);
        tell(R"({"command": "log", "clear": true})");
        const QString text = u"\r\n+CMTI: \"SM\",1\r\n\r\nRING\r\n"_s;
        m_service->takeMessages(text);
        m_service->takeMessages(text);
        QTRY_COMPARE_WITH_TIMEOUT(stored(u"SM"_s), 0, patience);
        QCOMPARE(heard(u"AT+CMGR=1"_s), 2); // to fetch it, and before it is deleted
    }

private:
    int expectedOnCard() const { return cmcfg.getNumber(u"sms"_s, u"newsmsLocation"_s) == 1 ? 3 : 0; }
    void set(const char *key, int value)
    {
        cmcfg.setValue(u"sms"_s, QString::fromLatin1(key), QString::number(value));
    }
    void begin()
    {
        m_monitor = std::make_unique<CardMonitor>(&m_owner);
        m_searcher = m_monitor.get();
        m_store = std::make_unique<MessageStore>(m_folder.path() + u"/Data"_s);
        m_service = std::make_unique<MessageService>(m_monitor.get(), m_store.get());
        connect(m_service.get(), &MessageService::sigCardReady, m_service.get(), &MessageService::readCard);
        m_owner.service = m_service.get();
        m_notices.clear();
        for (const auto signal : {&MessageService::sigNotice, &MessageService::sigNearlyFull})
            connect(m_service.get(), signal, this,
                    [this](const QString &sentence) { m_notices += sentence; });
        m_unreadAtStart.clear();
        connect(m_service.get(), &MessageService::sigUnreadAtStart, this,
                [this](int count) { m_unreadAtStart += count; });
        m_store->load();
        m_monitor->start();
        QTRY_VERIFY_WITH_TIMEOUT(m_service->place(MessagePlace::Sim).isRead, patience);
    }
    void end()
    {
        m_owner.service = nullptr;
        if (m_monitor)
            m_monitor->stop();
        m_service.reset();
        m_store.reset();
        m_monitor.reset();
    }
    QJsonObject ask(const QByteArray &json) { return m_card->control(json); }
    void tell(const QByteArray &json)
    {
        const QJsonObject answer = ask(json);
        QVERIFY2(answer[u"ok"_s].toBool(),
                 qPrintable(answer[u"error"_s].toString() + QString::fromUtf8(json)));
    }
    std::vector<Message> inbox(MessagePlace place = MessagePlace::Computer)
    {
        return m_store->messages(m_store->ids(MessageBox::Inbox, place));
    }
    Message only(MessageBox box)
    {
        const auto messages = m_store->messages(m_store->ids(box));
        return messages.size() == 1 ? messages.front() : Message();
    }
    /// How many lines with that text the card has taken in.
    qsizetype heard(const QString &text)
    {
        const QJsonArray log = ask(R"({"command": "log"})")[u"log"_s].toArray();
        return std::ranges::count_if(
            log, [&](QJsonValue each) { return each[u"received"_s].toString().contains(text); });
    }
    bool hears(const QString &text) { return heard(text) > 0; }
    int sent() { return int(ask(R"({"command": "sent"})")[u"sent"_s].toArray().size()); }
    /// Messages in a store of the card.
    int stored(const QString &name)
    {
        const QJsonObject state = ask(R"({"command": "show"})");
        return int(state[u"state"_s][u"messages"_s][u"stores"_s][name][u"entries"_s].toArray().size());
    }

    ScratchFolder m_folder;
    ServiceOwner m_owner;
    std::unique_ptr<cardemu::CardThread> m_card;
    std::unique_ptr<CardMonitor> m_monitor;
    std::atomic<CardMonitor *> m_searcher = nullptr;
    std::unique_ptr<MessageStore> m_store;
    std::unique_ptr<MessageService> m_service;
    QStringList m_notices;
    QList<int> m_unreadAtStart;
};

QTEST_GUILESS_MAIN(TestMessageService)
#include "tst_messageservice.moc"
