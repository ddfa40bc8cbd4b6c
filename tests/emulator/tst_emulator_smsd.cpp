// SPDX-License-Identifier: GPL-3.0-or-later
// A message server that knows nothing of this emulator sends from its spool, and receives into it.
#include "otherprograms.h"

class TestEmulatorSmsd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sendsAndReceives()
    {
        TestCard card;
        const QByteArray greetings = QByteArray("Grüße ").repeated(40);
        const QByteArray numbers = QByteArray("0123456789").repeated(20);
        QVERIFY(card.tell(R"({"command": "sms-network", "reportDelay": 0})"));
        QVERIFY(card.tell(R"({"command": "sms", "order": "2,1", "from": "+4917212345678", "text": "%1"})",
                          greetings));
        const Server server(card);
        server.write(u"outgoing/one"_s, "To: 12025550123\nReport: yes\n\n" + numbers);
        constexpr int patience = 30000;
        QTRY_VERIFY_WITH_TIMEOUT(server.spool(u"sent"_s).contains(numbers), patience);
        QTRY_VERIFY_WITH_TIMEOUT(server.spool(u"incoming"_s).contains("\n\n" + numbers), patience);
        QTRY_COMPARE_WITH_TIMEOUT(server.spool(u"report"_s).count("Status: 0,Ok"), 2, patience);
        const QByteArray received = server.spool(u"incoming"_s);
        QVERIFY2(received.contains("From: 4917212345678\n") && received.contains("\n\n" + greetings),
                 received);
        QVERIFY2(server.spool(u"failed"_s).isEmpty(), server.spool(u"log"_s));
        QCOMPARE(card.sent().size(), 2);
    }
};

QTEST_GUILESS_MAIN(TestEmulatorSmsd)
#include "tst_emulator_smsd.moc"
