// SPDX-License-Identifier: GPL-3.0-or-later
#include "servicefixture.h"

#include <numeric>

/// What goes out, and what becomes of it.
class TestMessageSending : public ServiceFixture
{
    Q_OBJECT

private Q_SLOTS:
    void sendingAndItsReport()
    {
        tell(R"({"command": "sms-network", "reportDelay": 50})");
        set("deliveryReport", 0); // each asks by itself
        begin();
        QSignalSpy summary(m_service.get(), &MessageService::sigSendSummary);
        QSignalSpy delivered(m_service.get(), &MessageService::sigDelivered);
        m_service->send({{u"10087"_s}, u"not asked"_s, false, {}});
        SOON_IS(summary.size(), 1);
        const QString unasked = only(MessageBox::Sent).id;
        m_service->send({{u"+4917111111"_s, u"10086"_s}, QString(200, u'a'), true, {}});
        SOON_IS(summary.size(), 2);
        QCOMPARE(summary.back(), (QVariantList{2, 0}));
        QCOMPARE(sent(), 5);
        SOON_IS(delivered.size(), 2);
        const QStringList ids = m_store->ids(MessageBox::Sent);
        QCOMPARE(m_store->find(unasked)->state(), DeliveryState::Sent);
        QCOMPARE(m_store->find(ids.front())->parts.size(), 4U);
        QCOMPARE(m_store->find(ids.front())->state(), DeliveryState::Delivered);
        SOON_IS(stored(u"SR"_s), 0);
    }

    void sentAgainWhenItDidNotArrive()
    {
        tell(R"({"command": "sms-network", "reportDelay": 3600000})");
        begin();
        m_service->send({{u"111"_s}, u"one"_s, true, {}});
        SOON_IS(only(MessageBox::Sent).parts.size(), 1U);
        const Message message = only(MessageBox::Sent);
        constexpr int incompatible = 0x41;
        const MessagePart &part = message.parts[0];
        m_store->applyReport({u"111"_s, part.reference, incompatible, part.sent, {}, {}, u"00"_s, {}});
        QCOMPARE(only(MessageBox::Sent).state(), DeliveryState::Failed);
        m_service->retry({message.id});
        SOON_IS(only(MessageBox::Sent).state(), DeliveryState::Sent);
        QCOMPARE(only(MessageBox::Sent).parts[0].statusOctet, -1);
        QCOMPARE(sent(), 2);
    }

    void refusedByTheNetwork()
    {
        tell(R"({"command": "sms-network", "refuse": 42, "nth": 2, "count": 1})");
        begin();
        QSignalSpy summary(m_service.get(), &MessageService::sigSendSummary);
        m_service->send({{u"10086"_s}, QString(400, u'a'), false, {}});
        SOON_IS(summary.size(), 1);
        QCOMPARE(summary.front(), (QVariantList{0, 1}));
        QVERIFY(says(u"The network is overloaded."_s));
        const Message failed = only(MessageBox::Outbox);
        QCOMPARE(failed.parts[0].state, DeliveryState::Sent);
        QCOMPARE(failed.parts[1].errorCode, 42);
        QCOMPARE(failed.parts[2].state, DeliveryState::Failed);
        QCOMPARE(sent(), 1);
        m_service->retry({failed.id}); // only what did not go out
        SOON_IS(summary.size(), 2);
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
        SOON_IS(only(MessageBox::Outbox).state(0), DeliveryState::Failed);
        SOON_IS(only(MessageBox::Outbox).state(1), DeliveryState::Sent);
        const std::size_t parts = only(MessageBox::Outbox).parts.size();
        cmcfg.setValue(u"sms"_s, u"specialcode"_s, u"gsm7ex_spanish"_s);
        m_service->retry({only(MessageBox::Outbox).id});
        SOON_IS(only(MessageBox::Sent).text(), text);
        QVERIFY(only(MessageBox::Sent).parts.size() > parts);
        QCOMPARE(only(MessageBox::Sent).missingParts(), 0);
    }

    void aPromptThatComesLate()
    {
        tell(R"({"command": "fault", "kind": "late", "match": ">", "ms": 3300})");
        begin();
        m_service->send({{u"10086"_s}, u"one"_s, false, {}});
        SOON_IS(only(MessageBox::Outbox).state(), DeliveryState::Failed);
        m_service->retry({only(MessageBox::Outbox).id}); // which the card does not take for the text
        SOON_IS(only(MessageBox::Sent).parts.size(), 1U);
        QCOMPARE(sent(), 1);
    }

    void cancelledMidway()
    {
        tell(R"({"command": "sms-network", "delay": 300})");
        begin();
        QSignalSpy summary(m_service.get(), &MessageService::sigSendSummary);
        m_service->send({{u"10086"_s}, QString(400, u'a'), false, {}});
        SOON(m_service->sending().isActive);
        m_service->cancelSending();
        m_service->send({{u"222"_s}, u"later"_s, false, {}}); // which is not given up with the rest
        SOON_IS(only(MessageBox::Sent).recipients, QStringList(u"222"_s));
        SOON(!m_service->sending().isActive);
        QCOMPARE(only(MessageBox::Outbox).state(), DeliveryState::Failed);
        QVERIFY(sent() < 4);
        const auto failed = [](int sum, const QVariantList &run) { return sum + run.at(1).toInt(); };
        QCOMPARE(std::accumulate(summary.begin(), summary.end(), 0, failed), 1);
    }

    void theQueueOverARestart()
    {
        const auto waiting = [](const QString &number, DeliveryState state, const QString &subscriber) {
            Message message = hello(number);
            message.box = MessageBox::Outbox;
            message.subscriber = subscriber;
            message.parts.front().state = state;
            return message;
        };
        const QString here = u"001010123456789"_s;
        leave({waiting(u"111"_s, DeliveryState::Queued, {}), waiting(u"222"_s, DeliveryState::Sending, here),
               waiting(u"333"_s, DeliveryState::Queued, here),
               waiting(u"444"_s, DeliveryState::Queued, u"262019876543210"_s)});
        tell(R"({"command": "fault", "kind": "refuse", "match": "+CIMI", "count": 0})");
        begin();
        m_service->send({{u"555"_s}, u"now"_s, false, {}});
        // Whose SIM it is is not known: what is bound to one waits, nothing else does.
        SOON_IS(recipients(MessageBox::Sent), (QStringList{u"555"_s, u"111"_s}));
        const auto ofBoth = m_store->messages(m_store->ids(MessageBox::Outbox));
        QCOMPARE(std::ranges::count_if(
                     ofBoth, [this](const Message &each) { return m_service->waitsForOtherSim(each); }),
                 2);
        QVERIFY(!says(u"There is another SIM in the card."_s)); // it may tell yet
        QSignalSpy ready(m_service.get(), &MessageService::sigCardReady);
        tell(R"({"command": "clear"})");
        SOON_IS(recipients(MessageBox::Sent), (QStringList{u"333"_s, u"555"_s, u"111"_s}));
        QCOMPARE(ready.size(), 0);
        QCOMPARE(m_store->mirrorOwner(MessagePlace::Sim), here);
        QVERIFY(says(u"There is another SIM in the card."_s));
        QCOMPARE(recipients(MessageBox::Outbox), (QStringList{u"444"_s, u"222"_s}));
        QCOMPARE(sent(), 3); // 222 may have gone out before
        for (const Message &message : m_store->messages(m_store->ids(MessageBox::Outbox)))
            QCOMPARE(message.state() == DeliveryState::Queued, message.recipients == QStringList(u"444"_s));
    }

    void deletedWhileItWaited()
    {
        const auto deleted = [](const QString &number, DeliveryState state) {
            Message message = hello(number);
            message.box = MessageBox::Deleted;
            message.deletedFrom = MessageBox::Outbox;
            message.parts.front().state = state;
            return message;
        };
        Message waiting = hello(u"333"_s);
        waiting.box = MessageBox::Outbox;
        waiting.subscriber = u"262019876543210"_s; // another one's
        waiting.parts.front().state = DeliveryState::Queued;
        leave({deleted(u"111"_s, DeliveryState::Queued), deleted(u"222"_s, DeliveryState::Sending), waiting});
        begin();
        SOON(says(u"There is another SIM in the card."_s));
        m_store->restore(m_store->ids(MessageBox::Deleted));
        const auto put = m_store->messages(m_store->ids(MessageBox::Outbox));
        QCOMPARE(put.size(), 3U);
        for (const Message &message : put) {
            const QString number = message.recipients.front();
            QCOMPARE(m_service->waitsForOtherSim(message), number == u"333"_s);
            if (number != u"333"_s)
                QCOMPARE(message.state(), number == u"111"_s ? DeliveryState::Failed : DeliveryState::Unsure);
        }
        m_store->remove(m_store->ids(MessageBox::Outbox));
        m_store->restore(m_store->ids(MessageBox::Deleted));
        m_service->retry(m_store->ids(MessageBox::Outbox)); // asked for, they go out with this SIM
        SOON_IS(recipients(MessageBox::Sent).size(), 3);
    }

    void unpluggedWhileSending()
    {
        tell(R"({"command": "sms-network", "delay": 60000})");
        begin();
        QSignalSpy summary(m_service.get(), &MessageService::sigSendSummary);
        m_service->send({{u"10086"_s}, QString(400, u'a'), false, {}});
        SOON(hears(u"0500030"_s)); // the first part is on its way
        tell(R"({"command": "unplug"})");
        const auto state = [this](std::size_t part) { return only(MessageBox::Outbox).parts[part].state; };
        SOON_IS(state(0), DeliveryState::Unsure);
        QCOMPARE(sent(), 0);
        tell(R"({"command": "sms-network", "delay": 0})");
        tell(R"({"command": "plug"})");
        SOON_IS(summary.size(), 1);
        QCOMPARE(state(0), DeliveryState::Unsure); // not again unasked
        QCOMPARE(sent(), 2);
        m_service->retry({only(MessageBox::Outbox).id});
        SOON_IS(only(MessageBox::Sent).parts.size(), 3U);
        QCOMPARE(sent(), 3);
    }

    void backWithASimThatDoesNotTellWhoseItIs()
    {
        tell(R"({"command": "sms-network", "delay": 60000})");
        begin();
        m_service->send({{u"10086"_s}, QString(400, u'a'), false, {}});
        SOON(hears(u"0500030"_s));
        tell(R"({"command": "unplug"})");
        SOON_IS(only(MessageBox::Outbox).parts[0].state, DeliveryState::Unsure);
        tell(R"({"command": "sms-network", "delay": 0})");
        tell(R"({"command": "fault", "kind": "refuse", "match": "+CIMI", "count": 0})");
        tell(R"({"command": "plug"})");
        SOON(m_service->waitsForOtherSim(only(MessageBox::Outbox)));
        SOON(!m_service->sending().isActive);
        SOON(says(u"There is another SIM in the card."_s));
        QCOMPARE(sent(), 0);
        m_service->retry({only(MessageBox::Outbox).id});
        SOON_IS(only(MessageBox::Sent).parts.size(), 3U);
    }

    void aServiceCentreThatIsTooLong()
    {
        begin();
        m_service->setServiceCentre(u"1234567890123456"_s);
        SOON_IS(m_service->serviceCentre().size(), 16);
        m_service->send({{u"10086"_s}, u"hello"_s, false, {}});
        SOON(says(u"is too long"_s));
        QVERIFY(only(MessageBox::Outbox).parts[0].fault.contains(u"is too long"));
        QCOMPARE(sent(), 0);
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
        Message draft = hello({});
        draft.box = MessageBox::Drafts;
        draft.recipients = written;
        m_service->copyTo(m_store->insert({draft}).ids, MessagePlace::Sim);
        const auto onSim = [&] {
            const auto drafts = m_store->messages(m_store->ids(MessageBox::Drafts, MessagePlace::Sim));
            return drafts.empty() ? QString() : drafts.front().recipients.value(0);
        };
        SOON_IS(onSim(), refusal.isEmpty() ? u"0171234"_s : QString());
        QVERIFY(says(refusal));
        QCOMPARE(stored(u"SM"_s), refusal.isEmpty() ? 1 : 0);
    }
};

QTEST_GUILESS_MAIN(TestMessageSending)
#include "tst_messagesending.moc"
