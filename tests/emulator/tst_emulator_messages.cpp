// SPDX-License-Identifier: GPL-3.0-or-later
// Messages on the card and through the network. PDUs are compared digit by digit.
#include "testcard.h"

#include <QTest>

class TestEmulatorMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesInAsIndicationsSay();
    void waitsForRoomAndForTheNetwork();
    void storesAreListedReadAndDeleted();
    void writingChecksWhatItIsGiven_data();
    void writingChecksWhatItIsGiven();
    void sentToItselfComesBack();
    void deliveryReportComesLater();
    void networkRefusesTheNth();
    void networkReordersAndDelays();
    void handedOverIsAcknowledged();
    void textBecomesParts_data();
    void textBecomesParts();
    void textCanBeGivenUp();
    void reportsWaitForAPrompt();
    void comesInDuringAListing();
    void waitsForTheEndOfADataCall();
    void waitsForThePlug();
    void pagesAreShownOnWantedChannels();
    void malformedOnesAreHandedOn();
    void longListingIsOneCommand();
};

namespace
{

const QByteArray received = "07912120550501F0040B912120550571F700006220821200000004D4F29C0E";
const QByteArray centre = "07912120550501F0";
const QByteArray self = "0B912120550521F3";
const QByteArray toItself = "001100" + self + "0000AA04D4F29C0E"; // 18 octets without the centre's

QByteArray sms(const QByteArray &values)
{
    return R"({"command": "sms", )" + values + '}';
}

const QByteArray receivedSms = sms("\"pdu\": \"" + received + '"');

} // namespace

void TestEmulatorMessages::comesInAsIndicationsSay()
{
    Talk talk;
    const auto arrives = [&talk](const QByteArray &command) {
        talk.ask(command);
        talk.card.tell(receivedSms);
        return talk.card.pending(talk.port);
    };
    QCOMPARE(arrives("AT+CNMI=2,1,0,0,0"), "\r\n+CMTI: \"SM\",1\r\n");
    QCOMPARE(arrives("AT+CNMI=2,0,0,0,0"), "");
    QCOMPARE(arrives("AT+CNMI=1,2,0,2,0"), "\r\n+CMT: ,23\r\n" + received + "\r\n");
    talk.card.tell(R"({"command": "set", "key": "messages.blankLine", "value": true})");
    QCOMPARE(arrives("AT+CNMI=1,2,0,2,0"), "\r\n+CMT: ,23\r\n" + received + "\r\n\r\n");
    QCOMPARE(arrives("AT+CNMI=3,1,2,2,0;+CPMS=\"SM\",\"SM\",\"ME\""), "\r\n+CMTI: \"ME\",1\r\n");
    QCOMPARE(arrives("AT+JSMSD=1"), "\r\n+CMTI: \"SM\",3\r\n");
    QCOMPARE(arrives("AT+JSMSD=3"), "\r\n+CMTI: \"ME\",2\r\n");
    QCOMPARE(arrives("AT+CNMI=0,1,0,0,0"), "");
    QCOMPARE(talk.ask("AT+CNMI=2,1,0,0,0"), "OK");
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CMTI: \"ME\",3\r\n");
    QCOMPARE(talk.ask("AT+CPMS?"), "+CPMS: \"SM\",3,20,\"SM\",3,20,\"ME\",3,100|OK");
    talk.card.tell(sms(R"("text": "now", "class": 0)"));
    QCOMPARE(talk.card.pending(talk.port).left(16), "\r\n+JCLAS: ,22\r\n0");
    talk.ask("AT+CNMI=2,2,0,0,0");
    talk.card.tell(sms(R"("text": "for the SIM", "class": 2)"));
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CMTI: \"SM\",4\r\n");
}

void TestEmulatorMessages::waitsForRoomAndForTheNetwork()
{
    Talk talk;
    talk.card.tell(R"({"command": "store", "name": "SM", "capacity": 1})");
    talk.card.tell(receivedSms);
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CMTI: \"SM\",1\r\n");
    QCOMPARE(talk.card.control(receivedSms)[u"waiting"_s], QJsonValue(1));
    QCOMPARE(talk.card.pending(talk.port), "");
    QCOMPARE(talk.ask("AT+CPMS?"), "+CPMS: \"SM\",1,1,\"SM\",1,1,\"SM\",1,1|OK");
    QCOMPARE(talk.ask("AT+CMGD=1"), "OK");
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CMTI: \"SM\",1\r\n");
    talk.card.tell(R"({"command": "store", "name": "SM", "capacity": 5, "full": true})");
    QCOMPARE(talk.ask("AT+CPMS?"), "+CPMS: \"SM\",5,5,\"SM\",5,5,\"SM\",5,5|OK");
    talk.card.tell(receivedSms);
    QCOMPARE(talk.card.pending(talk.port), "");
    talk.card.tell(R"({"command": "store", "name": "SM", "full": false})");
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CMTI: \"SM\",2\r\n");
    talk.ask("AT+CFUN=4");
    talk.card.tell(receivedSms);
    talk.ask("AT+CFUN=1");
    QCOMPARE(talk.card.pending(talk.port), "");
    talk.card.advance(300);
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CMTI: \"SM\",3\r\n");
}

void TestEmulatorMessages::storesAreListedReadAndDeleted()
{
    Talk talk;
    talk.card.tell(receivedSms);
    talk.card.pending(talk.port);
    QCOMPARE(talk.submit("AT+CMGW=23,1", received), "+CMGW: 2|OK");
    QCOMPARE(talk.submit("AT+CMGW=18", toItself.toLower()), "+CMGW: 3|OK");
    QCOMPARE(talk.submit("AT+CMGW=18,3", toItself), "+CMGW: 4|OK");
    const QByteArray unread = "+CMGL: 1,0,,23|" + received + '|';
    QCOMPARE(talk.ask("AT+CMGL=2"), "+CMGL: 3,2,,18|" + toItself + "|OK");
    QCOMPARE(talk.ask("AT+CMGL"), unread + "OK");
    QCOMPARE(talk.ask("AT+CMGL=0"), "OK");
    QCOMPARE(talk.ask("AT+CMGL=1").count("+CMGL: "), 2);
    QCOMPARE(talk.ask("AT+CMGL=4").count("+CMGL: "), 4);
    QCOMPARE(talk.ask("AT+CMGR=4"), "+CMGR: 3,,18|" + toItself + "|OK");
    QCOMPARE(talk.ask("AT+CMGR=9"), "+CMS ERROR: invalid memory index");
    QCOMPARE(talk.ask("AT+CMSS=3"), "+CMSS: 1|OK");
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CMTI: \"SM\",5\r\n");
    QCOMPARE(talk.ask("AT+CMGL=3").count("+CMGL: "), 2);
    QCOMPARE(talk.ask("AT+CPMS=\"ME\",\"ME\""), "+CPMS: 0,100,0,100,5,20|OK");
    QCOMPARE(talk.ask("AT+CMGD=1"), "+CMS ERROR: invalid memory index");
    QCOMPARE(talk.ask("AT+CPMS=\"XX\""), "+CMS ERROR: operation not allowed");
    QCOMPARE(talk.ask("AT+CPMS=\"SM\";+CMGD=1,2"), "+CPMS: 5,20,0,100,5,20|OK");
    QCOMPARE(talk.ask("AT+CPMS?"), "+CPMS: \"SM\",1,20,\"ME\",0,100,\"SM\",1,20|OK");
    QCOMPARE(talk.ask("AT+CMGD=1,4"), "OK");
    QCOMPARE(talk.ask("AT+CMGL=4"), "OK");
    talk.card.tell(R"({"command": "fill", "name": "ME", "count": 100})");
    QCOMPARE(talk.submit("AT+CMGW=18", toItself), "+CMS ERROR: memory full");
}

void TestEmulatorMessages::writingChecksWhatItIsGiven_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("pdu");
    const auto row = [](const char *name, const QByteArray &command, const QByteArray &pdu) {
        QTest::newRow(name) << command << pdu;
    };
    row("another length", "AT+CMGS=17", toItself);
    row("no hex", "AT+CMGS=18", QByteArray(toItself).replace("AA", "XX"));
    row("half an octet", "AT+CMGS=18", toItself + '0');
    row("nothing", "AT+CMGS=18", "");
    row("text too short for its length", "AT+CMGS=17", toItself.chopped(2));
    row("two octets too many", "AT+CMGS=20", toItself + "0000");
    row("ends in the recipient", "AT+CMGS=5", "001100" + self.left(4));
    row("recipient of 21 digits", "AT+CMGS=23", "00110015912143658709214365870911110000AA04D4F29C0E");
    row("received one", "AT+CMGS=23", received);
    row("sent one as received", "AT+CMGW=18,1", toItself);
    row("received one as sent", "AT+CMGW=23,2", received);
    row("centre past the end", "AT+CMGW=2,1", "FF0000");
}

void TestEmulatorMessages::writingChecksWhatItIsGiven()
{
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, pdu);
    Talk talk;
    QCOMPARE(talk.submit(command, pdu), "+CMS ERROR: invalid PDU mode parameter");
    QCOMPARE(talk.ask("AT+CMGL=4"), "OK");
}

void TestEmulatorMessages::sentToItselfComesBack()
{
    Talk talk;
    talk.card.tell(R"({"command": "clock", "time": "2026-02-28T12:00:00Z"})");
    talk.card.tell(R"({"command": "set", "key": "network.timeZone", "value": -8})");
    QCOMPARE(talk.submit("AT+CMGS=18", toItself), "+CMGS: 1|OK");
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CMTI: \"SM\",1\r\n");
    const QByteArray stored = talk.ask("AT+CMGR=1");
    QVERIFY2(stored.startsWith("+CMGR: 0,,23|" + centre + "04" + self + "0000622082010000"), stored);
    QVERIFY2(stored.endsWith("8804D4F29C0E|OK"), stored);
    // Without a country's code, through another centre, with a header, and with an octet too many.
    const QByteArray national = "0381012051000A8102525510320000AA080500031102010100";
    talk.ask("AT+CNMI=2,2,0,0,0");
    QCOMPARE(talk.submit("AT+CMGS=21", national), "+CMGS: 2|OK");
    const QByteArray back = talk.card.pending(talk.port);
    QVERIFY2(back.startsWith("\r\n+CMT: ,26\r\n0381012044" + self + "0000"), back);
    QVERIFY2(back.endsWith("880805000311020101\r\n"), back);
    QCOMPARE(talk.card.control(R"({"command": "sent"})")[u"sent"_s][1][u"to"_s], QJsonValue(u"2025550123"_s));
}

void TestEmulatorMessages::deliveryReportComesLater()
{
    Talk talk;
    talk.ask("AT+CNMI=1,2,0,2,0");
    const QByteArray recipient = "0B912120550591F9";
    const QByteArray pdu = "003100" + recipient + "0000AA04D4F29C0E";
    talk.card.tell(R"({"command": "sms-network", "reportDelay": 60000, "reportStatus": 48})");
    QCOMPARE(talk.submit("AT+CMGS=18", pdu), "+CMGS: 1|OK");
    talk.card.advance(59000);
    QCOMPARE(talk.card.pending(talk.port), "");
    talk.card.advance(1000);
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CDSI: \"SR\",1\r\n");
    const QByteArray stored = talk.ask("AT+CPMS=\"SR\",\"SR\";+CMGR=1");
    QVERIFY2(stored.contains("|+CMGR: 0,,25|" + centre + "0601" + recipient), stored);
    QVERIFY2(stored.endsWith("30|OK"), stored);
    talk.ask("AT+CNMI=1,2,0,1,0");
    talk.card.tell(R"({"command": "sms-report", "reference": 1, "status": 0})");
    const QByteArray direct = talk.card.pending(talk.port);
    QVERIFY2(direct.startsWith("\r\n+CDS: 25\r\n" + centre + "0601") && direct.endsWith("00\r\n"), direct);
    talk.card.tell(R"({"command": "sms-report", "pdu": "0006"})");
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CDS: 1\r\n0006\r\n");
    QVERIFY(!talk.card.control(R"({"command": "sms-report", "reference": 9})")[u"ok"_s].toBool());
    QVERIFY(talk.card.tell(R"({"command": "sms-report", "reference": 9, "to": "+4912345678"})"));
}

void TestEmulatorMessages::networkRefusesTheNth()
{
    Talk talk;
    talk.card.tell(R"({"command": "sms-network", "refuse": 42, "nth": 2, "count": 1})");
    QCOMPARE(talk.submit("AT+CMGS=18", toItself), "+CMGS: 1|OK");
    talk.card.pending(talk.port);
    QCOMPARE(talk.submit("AT+CMGS=18", toItself), "+CMS ERROR: Congestion");
    QCOMPARE(talk.submit("AT+CMGS=18", toItself), "+CMGS: 2|OK");
    talk.card.pending(talk.port);
    talk.card.tell(R"({"command": "register", "service": "none"})");
    QCOMPARE(talk.submit("AT+CMGS=18", toItself), "+CMS ERROR: no network service");
    talk.card.tell(R"({"command": "fault", "kind": "refuse", "match": "+CMGS", "code": 500})");
    QCOMPARE(talk.ask("AT+CMGS=18"), "+CMS ERROR: unknown error");
}

void TestEmulatorMessages::networkReordersAndDelays()
{
    Talk talk;
    talk.ask("AT+CNMI=2,2,0,0,0");
    talk.card.tell(R"({"command": "sms-network", "delay": 3000, "transit": 1000, "reorder": 2})");
    for (const char *last : {"0E", "0F"}) {
        talk.port.exchange("AT+CMGS=18\r", "> ");
        const QByteArray pdu = toItself.chopped(2) + last;
        talk.port.write(pdu + '\x1a');
        QVERIFY(talk.card.hears(QString::fromLatin1(pdu) + u'\x1a'));
        talk.card.advance(2900);
        QCOMPARE(talk.card.pending(talk.port), "");
        talk.card.advance(100);
        QVERIFY(talk.card.pending(talk.port).startsWith("\r\n+CMGS: "));
    }
    talk.card.advance(1000);
    const QByteArray both = talk.card.pending(talk.port);
    QCOMPARE(both.count("+CMT: "), 2);
    QVERIFY2(both.indexOf("04D4F29C0F") < both.indexOf("04D4F29C0E") && both.contains("04D4F29C0F"), both);
}

void TestEmulatorMessages::handedOverIsAcknowledged()
{
    Talk talk;
    const QByteArray report = "\r\n+CMT: ,23\r\n" + received + "\r\n";
    QCOMPARE(talk.ask("AT+CSMS=1;+CNMI=2,2,0,1,0"), "+CSMS: 1,1,1|OK");
    talk.card.tell(receivedSms);
    talk.card.tell(receivedSms);
    QCOMPARE(talk.card.pending(talk.port), report);
    QCOMPARE(talk.ask("AT+CNMA"), "OK");
    QCOMPARE(talk.card.pending(talk.port), report);
    talk.card.advance(15000);
    QCOMPARE(talk.card.pending(talk.port), "");
    QCOMPARE(talk.ask("AT+CNMI?"), "+CNMI: 2,0,0,0,0|OK");
    QCOMPARE(talk.ask("AT+CNMA"), "+CMS ERROR: no +CNMA acknowledgement expected");
    QCOMPARE(talk.ask("AT+CMGL=4"), "+CMGL: 1,0,,23|" + received + "|OK");
}

void TestEmulatorMessages::textBecomesParts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("values");
    QTest::addColumn<QList<QByteArray>>("ends"); // of the PDUs, from TP-DCS without the time stamp
    using Ends = QList<QByteArray>;
    const auto row = [](const char *name, const QString &text, const QByteArray &values, const Ends &ends) {
        QTest::newRow(name) << text << values << ends;
    };
    const QByteArray hundred(100, 'a');
    row("short", u"Test"_s, "", {"00 04D4F29C0E"});
    row("extension", u"€"_s, "", {"00 029B32"});
    row("empty", u""_s, "", {"00 00"});
    row("beyond the alphabet", u"Жa"_s, "", {"08 0404160061"});
    row("pair of surrogates", u"😀"_s, R"("class": 1)", {"19 04D83DDE00"});
    row("octets", u"é"_s, R"("alphabet": "8bit")", {"04 02C3A9"});
    row("161 septets, second part first", QString(153, u'@') + u"testtest"_s,
        R"("order": "2,1", "reference": 7)",
        {"00 0F050003070202E8E5399D5E9ED301", "00 A0050003070201" + QByteArray(268, '0')});
    row("wide reference, part missing", QString(71, u'Ж'), R"("order": "2", "reference": 258, "wide": true)",
        {"08 110608040102020204160416041604160416"});
    row("escape at the seam", QString(152, u'@') + u"€@@@@@@@@@"_s, R"("order": "2")",
        {"00 12050003010202" + QByteArray("3665") + QByteArray(16, '0')});
}

void TestEmulatorMessages::textBecomesParts()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, values);
    QFETCH(QList<QByteArray>, ends);
    Talk talk;
    talk.ask("AT+CNMI=2,2,0,0,0");
    const QByteArray given =
        R"("time": "2026-02-28T12:00:00Z", "from": "Bank", "text": ")" + text.toUtf8() + '"';
    QVERIFY(talk.card.tell(sms(values.isEmpty() ? given : given + ", " + values)));
    const QByteArray reports = talk.card.pending(talk.port);
    QByteArrayList pdus;
    for (const QByteArray &line : reports.split('\n')) {
        if (line.startsWith(centre))
            pdus += line.trimmed().replace("62208221000000", " ");
    }
    QCOMPARE(pdus.size(), ends.size());
    for (qsizetype i = 0; i < ends.size(); ++i)
        QCOMPARE(pdus[i].mid(pdus[i].indexOf("07D0C2B07B0D00") + 14), ends[i]);
}

void TestEmulatorMessages::textCanBeGivenUp()
{
    Talk talk;
    QCOMPARE(talk.port.exchange("AT+CMGS=18\r\n", "> "), "\r\n> ");
    QCOMPARE(talk.port.exchange("0011\x1b", "OK\r\n"), "\r\nOK\r\n");
    QCOMPARE(talk.ask("AT+CSQ"), "+CSQ: 20,99|OK");
    {
        TestPort other(talk.card.path(u"modem"_s));
        other.exchange("AT+CMGS=18\r\n", "> ");
    }
    QVERIFY(talk.card.isLeft(u"modem"_s));
    TestPort again(talk.card.path(u"modem"_s));
    QCOMPARE(again.exchange("ATE0\r", "OK\r\n"), "ATE0\r\r\nOK\r\n");
    QCOMPARE(talk.card.control(R"({"command": "sent"})")[u"sent"_s].toArray().size(), 0);
}

void TestEmulatorMessages::reportsWaitForAPrompt()
{
    Talk talk;
    talk.port.exchange("AT+CMGS=18\r\n", "> ");
    talk.card.tell(receivedSms);
    QCOMPARE(talk.card.pending(talk.port), "");
    QCOMPARE(talk.ask(toItself + '\x1a'), "+CMGS: 1|OK");
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CMTI: \"SM\",1\r\n\r\n+CMTI: \"SM\",2\r\n");
    talk.ask("ATE1");
    talk.card.tell(R"({"command": "fault", "kind": "noreply", "match": ">"})");
    talk.port.write("AT+CMGS=18\r");
    QCOMPARE(talk.port.readUntil("\r"), "AT+CMGS=18\r");
    QCOMPARE(talk.port.exchange(toItself + '\x1a', "OK\r\n"), toItself + "\r\n+CMGS: 2\r\n\r\nOK\r\n");
}

void TestEmulatorMessages::comesInDuringAListing()
{
    Talk talk;
    talk.card.tell(receivedSms);
    talk.card.pending(talk.port);
    const QByteArray entry = "+CMGL: 1,0,,23\r\n" + received + "\r\n";
    const QByteArray during = "\"pdu\": \"" + received + "\", \"during\": \"+CMGL\"";
    talk.card.tell(sms(during));
    QCOMPARE(talk.ask("AT+CSQ"), "+CSQ: 20,99|OK");
    QCOMPARE(talk.port.exchange("AT+CMGL=0\r", "OK\r\n"),
             "\r\n" + entry + "\r\n+CMTI: \"SM\",2\r\n\r\nOK\r\n");
    talk.ask("AT+CNMI=2,2,0,0,0");
    talk.card.tell(sms(during + ", \"at\": 18"));
    QCOMPARE(talk.port.exchange("AT+CMGL=1\r", "OK\r\n"),
             "\r\n+CMGL: 1,1,,23\r\n\r\n+CMT: ,23\r\n" + received + "\r\n" + received + "\r\n\r\nOK\r\n");
    QCOMPARE(talk.ask("AT+CMGL=4").count("+CMGL: "), 2);
}

void TestEmulatorMessages::waitsForTheEndOfADataCall()
{
    Talk talk;
    talk.card.tell(R"({"command": "dial-result", "result": "connect"})");
    talk.ask("AT+CNMI=2,1,0,0,0");
    QCOMPARE(talk.ask("ATD*99#"), "CONNECT");
    talk.card.tell(receivedSms);
    QCOMPARE(talk.card.pending(talk.port), "");
    talk.card.tell(R"({"command": "drop-data"})");
    QCOMPARE(talk.card.pending(talk.port), "\r\nNO CARRIER\r\n\r\n+CMTI: \"SM\",1\r\n");
    talk.ask("AT+CNMI=1,1,0,0,0");
    QCOMPARE(talk.ask("ATD*99#"), "CONNECT");
    talk.card.tell(receivedSms);
    talk.card.tell(R"({"command": "drop-data"})");
    QCOMPARE(talk.card.pending(talk.port), "\r\nNO CARRIER\r\n");
}

void TestEmulatorMessages::waitsForThePlug()
{
    TestCard card;
    QVERIFY(card.tell(R"({"command": "unplug"})"));
    QCOMPARE(card.control(receivedSms)[u"waiting"_s], QJsonValue(1));
    QVERIFY(card.tell(R"({"command": "plug"})"));
    TestPort port(card.path(u"at"_s));
    QCOMPARE(port.exchange("ATE0+CMGL=0\r", "OK\r\n"),
             "ATE0+CMGL=0\r\r\n+CMGL: 1,0,,23\r\n" + received + "\r\n\r\nOK\r\n");
}

void TestEmulatorMessages::pagesAreShownOnWantedChannels()
{
    Talk talk;
    const auto shown = [&talk](const QByteArray &values) {
        talk.card.tell(R"({"command": "broadcast", )" + values + '}');
        return talk.card.pending(talk.port);
    };
    QCOMPARE(shown(R"("text": "Test")"), "");
    talk.ask("AT+CNMI=1,2,2,2,0");
    const QByteArray filled = shown(R"("text": "Test", "channel": 50, "serial": 4660)");
    QVERIFY2(filled.startsWith("\r\n+CBM: 88\r\n123400320F11D4F29CDE68341A"), filled);
    QCOMPARE(filled.size(), 12 + 176 + 2);
    const QByteArray wide = shown(R"("text": ")" + QByteArray("Ж").repeated(42) + '"');
    QCOMPARE(wide.count("+CBM: 88\r\n000000324812" + QByteArray("0416").repeated(41)), 1);
    QCOMPARE(wide.count("+CBM: 88\r\n0000003248220416000D"), 1);
    QCOMPARE(talk.ask("AT+CSCB=0,\"40-49,51\",\"\";+CSCB?"), "+CSCB: 0,\"40-49,51\",\"\"|OK");
    QCOMPARE(shown(R"("channel": 50)"), "");
    QCOMPARE(shown(R"("channel": 49)").count("+CBM"), 1);
    QCOMPARE(talk.ask("AT+CSCB=1,\"50\""), "OK");
    QCOMPARE(shown(R"("channel": 50)"), "");
    QCOMPARE(shown(R"("pdu": "0000003301")"), "\r\n+CBM: 5\r\n0000003301\r\n");
    QCOMPARE(talk.ask("AT+CSCB=0,\"x\""), "+CMS ERROR: operation not allowed");
}

void TestEmulatorMessages::malformedOnesAreHandedOn()
{
    Talk talk;
    for (const QByteArray &pdu : QByteArrayList{"FF", "0791", "xyz", "07912120550501F0"}) {
        talk.card.tell(sms("\"unchecked\": true, \"pdu\": \"" + pdu + '"'));
        talk.card.pending(talk.port);
    }
    QCOMPARE(talk.ask("AT+CMGL=4"), "+CMGL: 1,0,,0|FF|+CMGL: 2,0,,0|0791|+CMGL: 3,0,,0|xyz|"
                                    "+CMGL: 4,0,,0|07912120550501F0|OK");
}

// It takes the time of one command, however long its answer is.
void TestEmulatorMessages::longListingIsOneCommand()
{
    Talk talk;
    talk.card.tell(R"({"command": "store", "name": "ME", "capacity": 200})");
    talk.card.tell(R"({"command": "fill", "name": "ME", "count": 200, "status": 0})");
    talk.ask("AT+CPMS=\"ME\",\"ME\"");
    talk.card.tell(R"({"command": "pace", "delay": 60000})");
    talk.port.write("AT+CMGL=4\r");
    QVERIFY(talk.card.hears(u"AT+CMGL=4"_s));
    QCOMPARE(talk.card.pending(talk.port), "");
    talk.card.advance(60000);
    QCOMPARE(talk.port.readUntil("OK\r\n").count("+CMGL: "), 200);
}

QTEST_GUILESS_MAIN(TestEmulatorMessages)
#include "tst_emulator_messages.moc"
