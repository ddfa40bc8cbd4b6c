// SPDX-License-Identifier: GPL-3.0-or-later
#include "servicefixture.h"

/// What comes in, and what lies on the SIM and the card.
class TestMessageReceiving : public ServiceFixture
{
    Q_OBJECT

private Q_SLOTS:
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
        QFETCH(int, onSim);
        set("newsmsLocation", location);
        cmcfg.setValue(u"function"_s, u"modemSide_enabled"_s, QString::number(cardSide));
        cmcfg.setValue(u"function"_s, u"cell_board_enabled"_s, u"0"_s);
        begin();
        QSignalSpy announced(m_service.get(), &MessageService::sigNewMessage);
        tell(R"({"command": "sms", "from": "+4917112345", "text": "Grüße"})");
        tell(R"({"command": "sms", "from": "+4917112345", "text": "zwei"})");
        // Torn and damaged: kept, and shown as such.
        tell(R"({"command": "sms", "pdu": "0791947?01", "unchecked": true})");
        SOON_IS(inbox(MessagePlace(place)).size(), 3);
        QCOMPARE(announced.size(), 3);
        QStringList texts;
        for (const Message &message : inbox(MessagePlace(place)))
            texts +=
                message.error.isEmpty() ? message.recipients.value(0) + u' ' + message.text() : u"broken"_s;
        texts.sort();
        QCOMPARE(texts, (QStringList{u"+4917112345 Grüße"_s, u"+4917112345 zwei"_s, u"broken"_s}));
        SOON_IS(stored(u"SM"_s) + stored(u"ME"_s), onSim);
    }

    void aLongMessageInAnyOrder()
    {
        begin();
        QSignalSpy announced(m_service.get(), &MessageService::sigNewMessage);
        const QString text = QString(400, u'x') + u"end"_s;
        tell(R"({"command": "sms", "from": "123", "order": "3,1,2", "text": "@"})", text.toLatin1());
        SOON(!inbox().empty() && inbox().front().text() == text);
        QCOMPARE(inbox().size(), 1U);
        QCOMPARE(announced.size(), 1);
    }

    void aDiskThatIsFull()
    {
        cmcfg.setValue(u"function"_s, u"modemSide_enabled"_s, u"0"_s); // announced, and fetched
        tell(R"({"command": "fill", "name": "SM", "count": 2, "status": 1, "text": "kept there"})");
        begin();
        SOON_IS(inbox(MessagePlace::Sim).size(), 2U);
        const QString file = m_folder.path() + u"/Data/sms.xml"_s;
        QVERIFY(QDir().mkdir(file));
        const auto bring = [this](const char *text) {
            m_notices.clear();
            tell(R"({"command": "sms", "from": "123", "text": "@"})", text);
            SOON(says(u"could not be written to disk and stays on the card"_s));
        };
        bring("over a restart");
        end();
        QVERIFY(QDir().rmdir(file));
        begin();
        SOON_IS(inbox().size(), 1U);
        QVERIFY(!inbox().front().isRead);
        SOON_IS(stored(u"ME"_s), 0);
        QVERIFY(m_store->flush() && QFile::remove(file) && QDir().mkdir(file));
        bring("in the same run");
        m_service->readCard(); // which takes nothing that is not on disk
        SOON_IS(inbox(MessagePlace::Card).size(), 1U);
        QCOMPARE(stored(u"ME"_s), 1);
        QVERIFY(QDir().rmdir(file));
        m_store->written();
        SOON_IS(inbox(MessagePlace::Card).size(), 0U);
        QCOMPARE(stored(u"ME"_s), 0);
        QCOMPARE(inbox().size(), 2U);
        QCOMPARE(inbox(MessagePlace::Sim).size(), 2U); // those that were read before stay
    }

    void unreadAtTheStart()
    {
        set("newSmsNoticeShowWhenProgramStart", 1);
        set("newsmsLocation", 1);
        leave({hello(u"111"_s)});
        tell(R"({"command": "fill", "name": "SM", "count": 2, "status": 0})");
        tell(R"({"command": "fill", "name": "ME", "count": 3, "status": 0, "text": "card"})");
        begin();
        SOON_IS(m_unreadAtStart, QList<int>{6});
        set("newSmsNoticeShowWhenProgramStart", 0);
    }

    void unreadOnACardThatComesLate()
    {
        set("newSmsNoticeShowWhenProgramStart", 1);
        leave({hello(u"111"_s)});
        tell(R"({"command": "fill", "name": "SM", "count": 2, "status": 0})");
        tell(R"({"command": "unplug"})");
        start();
        SOON_IS(m_unreadAtStart, QList<int>{1});
        tell(R"({"command": "plug"})");
        SOON_IS(m_unreadAtStart, (QList<int>{1, 3}));
        set("newSmsNoticeShowWhenProgramStart", 0);
    }

    void aMessageInTheMiddleOfAList()
    {
        tell(R"({"command": "fill", "name": "SM", "count": 20, "status": 1})");
        tell(R"({"command": "fault", "kind": "interleave", "match": "+CMGL", "text":
            "+CMT: ,24\r\n0791947106004034040B919471325476F800004250112100000005E8329BFD06"})");
        begin();
        SOON_IS(inbox(MessagePlace::Sim).size(), 20U);
        SOON_IS(inbox().size(), 1U);
        m_service->refreshPlace(MessagePlace::Sim);
        SOON(!m_service->place(MessagePlace::Sim).isLoading);
        QCOMPARE(inbox(MessagePlace::Sim).size(), 20U);
        QCOMPARE(inbox().size(), 1U);
    }

    void movingAndDeleting()
    {
        tell(R"({"command": "fill", "name": "SM", "count": 3, "status": 1})");
        begin();
        SOON_IS(inbox(MessagePlace::Sim).size(), 3U);
        QStringList ids = m_store->ids(MessageBox::Inbox, MessagePlace::Sim);
        m_service->moveTo({ids[0]}, MessagePlace::Computer);
        SOON_IS(stored(u"SM"_s), 2);
        QCOMPARE(inbox().size(), 1U);
        m_service->moveTo({inbox().front().id}, MessagePlace::Card);
        SOON_IS(inbox(MessagePlace::Card).size(), 1U);
        QCOMPARE(stored(u"ME"_s), 1);
        SOON(inbox().empty());
        SOON_IS(inbox(MessagePlace::Sim).size(), 2U);
        ids = m_store->ids(MessageBox::Inbox, MessagePlace::Sim);
        m_service->removeMessages(ids);
        SOON_IS(stored(u"SM"_s), 0);
        QCOMPARE(m_store->ids(MessageBox::Deleted).size(), 2);
        QVERIFY(m_service->undoRemoval());
        QCOMPARE(inbox().size(), 2U);
        for (const Message &message : inbox())
            QCOMPARE(m_service->removeMessages({message.id}), 1);
        m_store->purge({m_store->ids(MessageBox::Deleted).front()});
        QVERIFY(m_service->undoRemoval()); // of what is there still
        QVERIFY(!m_service->undoRemoval());
        QCOMPARE(inbox().size(), 1U);
    }

    void unreadStaysWhereItWasPut()
    {
        tell(R"({"command": "fill", "name": "SM", "count": 1, "status": 1})");
        leave({received(u"111"_s)});
        begin();
        m_service->setRead(m_store->ids(MessageBox::Inbox, MessagePlace::Sim), false);
        QSignalSpy announced(m_service.get(), &MessageService::sigNewMessage);
        m_service->moveTo({inbox().front().id}, MessagePlace::Sim);
        SOON_IS(inbox(MessagePlace::Sim).size(), 2U);
        SOON(inbox().empty());
        const auto isUnread = [](const Message &message) { return !message.isRead; };
        QCOMPARE(std::ranges::count_if(inbox(MessagePlace::Sim), isUnread), 2);
        end();
        begin();
        QCOMPARE(std::ranges::count_if(inbox(MessagePlace::Sim), isUnread), 2);
        QVERIFY(inbox().empty());
        QCOMPARE(announced.size(), 0);
        QCOMPARE(stored(u"SM"_s), 2);
    }

    void aListCutShort()
    {
        set("newsmsLocation", 1);
        begin();
        QSignalSpy announced(m_service.get(), &MessageService::sigNewMessage);
        tell(R"({"command": "fill", "name": "SM", "count": 3, "status": 0})");
        tell(R"({"command": "fault", "kind": "interleave", "match": "+CMGL", "at": 100, "text":
            "+CMS ERROR: 500"})");
        m_service->refreshPlace(MessagePlace::Sim);
        SOON_IS(announced.size(), 3);
        QCOMPARE(m_store->unreadCount(MessageBox::Inbox, MessagePlace::Sim), 3);
    }

    void aMessageThatWasNotHandedOut()
    {
        cmcfg.setValue(u"function"_s, u"modemSide_enabled"_s, u"0"_s); // announced, and fetched
        begin();
        QSignalSpy announced(m_service.get(), &MessageService::sigNewMessage);
        tell(R"({"command": "fault", "kind": "interleave", "match": "+CMGR", "at": 0, "text":
            "+CMS ERROR: 500"})");
        tell(R"({"command": "sms", "from": "123", "text": "hello"})");
        SOON_IS(inbox().size(), 1U);
        QVERIFY(!inbox().front().isRead);
        QCOMPARE(announced.size(), 1);
    }

    void whatWasSentStaysSent()
    {
        Message message = hello(u"111"_s);
        message.box = MessageBox::Sent;
        message.parts.front().state = DeliveryState::Sent;
        message.parts.front().pdu = u"000100038111F1000005E8329BFD06"_s;
        leave({message});
        begin();
        m_service->moveTo(m_store->ids(MessageBox::Sent), MessagePlace::Sim);
        SOON_IS(m_store->ids(MessageBox::Outbox, MessagePlace::Sim).size(), 1);
        m_service->copyTo(m_store->ids(MessageBox::Outbox, MessagePlace::Sim), MessagePlace::Card);
        SOON_IS(m_store->ids(MessageBox::Outbox, MessagePlace::Card).size(), 1);
    }

    void noHalfMessageOnTheSim()
    {
        tell(R"({"command": "fill", "name": "ME", "count": 1, "status": 1})");
        tell(R"({"command": "sms", "from": "123", "store": "ME", "text": "@"})", QByteArray(400, 'x'));
        tell(R"({"command": "set", "key": "messages.stores.SM.capacity", "value": 3})");
        tell(R"({"command": "fill", "name": "SM", "count": 1, "status": 1})");
        set("newsmsLocation", 3);
        begin();
        SOON_IS(inbox(MessagePlace::Card).size(), 2U);
        const auto isLong = [](const Message &message) { return message.total == 3; };
        m_service->moveTo(m_store->ids(isLong), MessagePlace::Sim);
        SOON(says(u"was not written to the SIM"_s));
        QCOMPARE(stored(u"SM"_s), 1);
        QCOMPARE(stored(u"ME"_s), 4);
    }

    void whatCannotBeReadIsShownOnce()
    {
        tell(R"({"command": "fill", "name": "SM", "count": 1, "status": 1})");
        tell(R"({"command": "fault", "kind": "interleave", "match": "+CMGL", "count": 0, "at": 0, "text":
            "+CMGL: ?\r\n0791947106004034040B919471325476F800004250112100000005E8329BFD06"})");
        begin();
        SOON_IS(inbox().size(), 1U); // its text could be read, and is unread
        QCOMPARE(inbox().front().text(), u"hello"_s);
        m_service->refreshPlace(MessagePlace::Sim);
        SOON(!m_service->place(MessagePlace::Sim).isLoading);
        QCOMPARE(inbox().size(), 1U);
        QCOMPARE(inbox(MessagePlace::Sim).size(), 2U);
        QCOMPARE(stored(u"SM"_s), 1);
    }

    void reportsAmongTheMessages()
    {
        const QByteArray report = "079194710167000006050B919471111111F14250112100000042501121000000";
        const auto bring = [&](const char *status) {
            tell(R"({"command": "sms", "store": "SM", "pdu": "@"})", report + status);
        };
        bring("00");
        begin();
        SOON_IS(m_store->ids(MessageBox::Reports).size(), 1);
        SOON_IS(stored(u"SM"_s), 0);
        bring("30"); // announced by "+CDSI", which names the SIM
        SOON_IS(m_store->ids(MessageBox::Reports).size(), 2);
        SOON_IS(stored(u"SM"_s), 0);
    }

    void aReportThatCannotBeRead()
    {
        set("deliveryReportMsgDlgShow", 0);
        begin();
        QSignalSpy delivered(m_service.get(), &MessageService::sigDelivered);
        const auto bring = [&](const char *pdu) { tell(R"({"command": "sms-report", "pdu": "@"})", pdu); };
        bring("079194710167000006050B91947111");
        SOON_IS(m_store->ids(MessageBox::Reports).size(), 1);
        SOON_IS(stored(u"SR"_s), 0);
        tell(R"({"command": "fault", "kind": "refuse", "match": "+CMGR", "code": 500})");
        bring("079194710167000006050B919471111111F1425011210000004250112100000046");
        SOON(says(u"A delivery report could not be read"_s));
        bring("079194710167000006060B919471111111F1425011210000004250112100000046"); // a failure
        SOON_IS(delivered.size(), 1);
    }

    void anotherMessageAtTheSamePlace()
    {
        tell(R"({"command": "fill", "name": "SM", "count": 1, "status": 1, "text": "old"})");
        begin();
        SOON_IS(inbox(MessagePlace::Sim).size(), 1U);
        tell(R"({"command": "store", "name": "SM", "clear": true})");
        tell(R"({"command": "fill", "name": "SM", "count": 1, "status": 1, "text": "new"})");
        m_service->removeMessages({inbox(MessagePlace::Sim).front().id});
        SOON(!inbox(MessagePlace::Sim).empty() && inbox(MessagePlace::Sim).front().text().startsWith(u"new"));
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
        SOON_IS(stored(u"SM"_s), 3); // five that were read went, kept here
        QCOMPARE(inbox().size(), 5U);
        QVERIFY(says(u"8 of 8"_s));
        tell(R"({"command": "fill", "name": "SM", "count": 5, "status": 1, "text": "more"})");
        tell(R"({"command": "fault", "kind": "refuse", "match": "+CMGD", "count": 5, "code": 500})");
        m_service->refreshPlace(MessagePlace::Sim);
        SOON(says(u"could not be deleted"_s));
        SOON(heard(u"AT+CMGD"_s) == 10 && !m_service->place(MessagePlace::Sim).isLoading);
        QCOMPARE(stored(u"SM"_s), 8);
        m_service->refreshPlace(MessagePlace::Sim); // once more, with a card that is willing by now
        SOON_IS(stored(u"SM"_s), 3);
    }

    void immediateMessages()
    {
        begin();
        QSignalSpy immediate(m_service.get(), &MessageService::sigClass0);
        const QString text = QString(200, u'x') + u"end"_s;
        tell(R"({"command": "sms", "from": "555", "order": "2,1", "class": 0, "text": "@",
            "time": "2024-05-03T10:00:00Z"})",
             text.toLatin1());
        SOON_IS(immediate.size(), 1);
        QCOMPARE(immediate.front().mid(0, 2), (QVariantList{u"555"_s, text}));
        const auto message = immediate.front().at(3).value<Message>(); // as it would be kept
        QCOMPARE(message.time.toUTC(), QDateTime({2024, 5, 3}, {10, 0}, Qt::UTC));
        QCOMPARE(message.text(), text);
        tell(R"({"command": "sms", "from": "555", "class": 0, "alphabet": "8bit", "text": "\u0001"})");
        SOON_IS(immediate.size(), 2);
        QCOMPARE(immediate.back().at(1), u"The message holds data and no text."_s);
        m_service->takeImmediate(u"\r\n+JCLAS: 0\r\n0791\r\n\r\n"_s);
        QCOMPARE(immediate.back().at(0), u"Unknown sender"_s);
        QVERIFY(inbox().empty());
    }

    void asTheSettingsRouteThem()
    {
        begin();
        QVERIFY(hears(u"AT+CNMI=1,2,2,2,0"_s));
        set("newsmsLocation", 1);
        SOON(hears(u"AT+CNMI=3,1,2,2,0"_s));
        set("newsmsLocation", 2);
        SOON(heard(u"AT+CNMI=1,2,2,2,0"_s) > 1);
        m_service->shutDown(); // at the end the card keeps them
        tell(R"({"command": "sms", "from": "123", "text": "nobody listens"})");
        QCOMPARE(stored(u"SM"_s) + stored(u"ME"_s), 1);
    }

    void oneTextPostedTwice()
    {
        tell(R"({"command": "fill", "name": "SM", "count": 1, "status": 1})");
        begin();
        SOON_IS(inbox(MessagePlace::Sim).size(), 1U);
        tell(R"({"command": "log", "clear": true})");
        const QString text = u"\r\n+CMTI: \"SM\",1\r\n\r\nRING\r\n"_s;
        m_service->takeMessages(text);
        m_service->takeMessages(text);
        SOON_IS(stored(u"SM"_s), 0);
        QCOMPARE(heard(u"AT+CMGR=1"_s), 2); // to fetch it, and before it is deleted
    }
};

QTEST_GUILESS_MAIN(TestMessageReceiving)
#include "tst_messagereceiving.moc"
