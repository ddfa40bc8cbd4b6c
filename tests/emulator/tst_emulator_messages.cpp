// SPDX-License-Identifier: GPL-3.0-or-later
// Messages on the card and through the network. PDUs are compared digit by digit.
#include "testcard.h"

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

const Rows<QByteArray, QByteArray> writingChecksWhatItIsGivenRows{
    {"another length", "AT+CMGS=17", toItself},
    {"no hex", "AT+CMGS=18", QByteArray(toItself).replace("AA", "XX")},
    {"half an octet", "AT+CMGS=18", toItself + '0'},
    {"nothing", "AT+CMGS=18", ""},
    {"text too short for its length", "AT+CMGS=17", toItself.chopped(2)},
    {"two octets too many", "AT+CMGS=20", toItself + "0000"},
    {"ends in the recipient", "AT+CMGS=5", "001100" + self.left(4)},
    {"recipient of 21 digits", "AT+CMGS=23", "00110015912143658709214365870911110000AA04D4F29C0E"},
    {"received one", "AT+CMGS=23", received},
    {"sent one as received", "AT+CMGW=18,1", toItself},
    {"received one as sent", "AT+CMGW=23,2", received},
    {"centre past the end", "AT+CMGW=2,1", "FF0000"},
};

// The ends of the PDUs, from TP-DCS without the time stamp.
const Rows<QString, QByteArray, QList<QByteArray>> textBecomesPartsRows{
    {"short", u"Test"_s, "", {"00 04D4F29C0E"}},
    {"extension", u"€"_s, "", {"00 029B32"}},
    {"empty", u""_s, "", {"00 00"}},
    {"beyond the alphabet", u"Жa"_s, "", {"08 0404160061"}},
    {"pair of surrogates", u"😀"_s, R"("class": 1)", {"19 04D83DDE00"}},
    {"octets", u"é"_s, R"("alphabet": "8bit")", {"04 02C3A9"}},
    {"161 septets, second part first",
     QString(153, u'@') + u"testtest"_s,
     R"("order": "2,1", "reference": 7)",
     {"00 0F050003070202E8E5399D5E9ED301", "00 A0050003070201" + QByteArray(268, '0')}},
    {"wide reference, part missing",
     QString(71, u'Ж'),
     R"("order": "2", "reference": 258, "wide": true)",
     {"08 110608040102020204160416041604160416"}},
    {"escape at the seam",
     QString(152, u'@') + u"€@@@@@@@@@"_s,
     R"("order": "2")",
     {"00 12050003010202" + QByteArray("3665") + QByteArray(16, '0')}},
};

} // namespace

class TestEmulatorMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesInAsIndicationsSay()
    {
        Talk talk;
        const auto arrives = [&talk](const QByteArray &command) {
            talk.ask(command);
            return talk.told(receivedSms);
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
        talk.card.tell(sms(R"("text": "now", "class": 0)"));
        QCOMPARE(talk.card.pending(talk.port).left(16), "\r\n+JCLAS: ,22\r\n0");
        talk.ask("AT+CNMI=2,2,0,0,0");
        QCOMPARE(talk.told(sms(R"("text": "for the SIM", "class": 2)")), "\r\n+CMTI: \"SM\",4\r\n");
    }

    void waitsForRoomAndForTheNetwork()
    {
        Talk talk;
        talk.card.tell(R"({"command": "store", "name": "SM", "capacity": 1})");
        QCOMPARE(talk.told(receivedSms), "\r\n+CMTI: \"SM\",1\r\n");
        QCOMPARE(talk.card.control(receivedSms)[u"waiting"_s], QJsonValue(1));
        QCOMPARE(talk.card.pending(talk.port), "");
        QCOMPARE(talk.ask("AT+CPMS?"), "+CPMS: \"SM\",1,1,\"SM\",1,1,\"SM\",1,1|OK");
        QCOMPARE(talk.ask("AT+CMGD=1"), "OK");
        QCOMPARE(talk.card.pending(talk.port), "\r\n+CMTI: \"SM\",1\r\n");
        talk.card.tell(R"({"command": "store", "name": "SM", "capacity": 5, "full": true})");
        QCOMPARE(talk.ask("AT+CPMS?"), "+CPMS: \"SM\",5,5,\"SM\",5,5,\"SM\",5,5|OK");
        QCOMPARE(talk.told(receivedSms), "");
        QCOMPARE(talk.told(R"({"command": "store", "name": "SM", "full": false})"),
                 "\r\n+CMTI: \"SM\",2\r\n");
        talk.ask("AT+CFUN=4");
        talk.card.tell(receivedSms);
        talk.ask("AT+CFUN=1");
        QCOMPARE(talk.card.pending(talk.port), "");
        QCOMPARE(talk.later(300), "\r\n+CMTI: \"SM\",3\r\n");
    }

    void storesAreListedReadAndDeleted()
    {
        Talk talk;
        talk.told(receivedSms);
        QCOMPARE(talk.submit("AT+CMGW=23,1", received), "+CMGW: 2|OK");
        QCOMPARE(talk.submit("AT+CMGW=18", toItself.toLower()), "+CMGW: 3|OK");
        QCOMPARE(talk.submit("AT+CMGW=18,3", toItself), "+CMGW: 4|OK");
        QCOMPARE(talk.ask("AT+CMGL=2;+CMGL;+CMGL=0"),
                 "+CMGL: 3,2,,18|" + toItself + "|+CMGL: 1,0,,23|" + received + "|OK");
        QCOMPARE(talk.ask("AT+CMGL=1").count("+CMGL: "), 2);
        QCOMPARE(talk.ask("AT+CMGL=4").count("+CMGL: "), 4);
        QCOMPARE(talk.ask("AT+CMGR=4;+CMGR=9"),
                 "+CMGR: 3,,18|" + toItself + "|+CMS ERROR: invalid memory index");
        QCOMPARE(talk.ask("AT+CMSS=3"), "+CMSS: 1|OK");
        QCOMPARE(talk.card.pending(talk.port), "\r\n+CMTI: \"SM\",5\r\n");
        QCOMPARE(talk.ask("AT+CMGL=3").count("+CMGL: "), 2);
        QCOMPARE(talk.ask("AT+CPMS=\"ME\",\"ME\";+CMGD=1"),
                 "+CPMS: 0,100,0,100,5,20|+CMS ERROR: invalid memory index");
        QCOMPARE(talk.ask("AT+CPMS=\"XX\""), "+CMS ERROR: operation not allowed");
        QCOMPARE(talk.ask("AT+CPMS=\"SM\";+CMGD=1,2;+CPMS?"),
                 "+CPMS: 5,20,0,100,5,20|+CPMS: \"SM\",1,20,\"ME\",0,100,\"SM\",1,20|OK");
        QCOMPARE(talk.ask("AT+CMGD=1,4;+CMGL=4"), "OK");
        talk.card.tell(R"({"command": "fill", "name": "ME", "count": 100})");
        QCOMPARE(talk.submit("AT+CMGW=18", toItself), "+CMS ERROR: memory full");
    }

    void writingChecksWhatItIsGiven_data() { addRows(writingChecksWhatItIsGivenRows); }
    void writingChecksWhatItIsGiven()
    {
        const auto &[name, command, pdu] = currentRow(writingChecksWhatItIsGivenRows);
        Talk talk;
        QCOMPARE(talk.submit(command, pdu), "+CMS ERROR: invalid PDU mode parameter");
        QCOMPARE(talk.ask("AT+CMGL=4"), "OK");
    }

    void sentToItselfComesBack()
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
        QCOMPARE(talk.card.sent()[1][u"to"_s], QJsonValue(u"2025550123"_s));
    }

    void deliveryReportComesLater()
    {
        Talk talk;
        talk.ask("AT+CNMI=1,2,0,2,0");
        const QByteArray recipient = "0B912120550591F9";
        const QByteArray pdu = "003100" + recipient + "0000AA04D4F29C0E";
        talk.card.tell(R"({"command": "sms-network", "reportDelay": 60000, "reportStatus": 48})");
        QCOMPARE(talk.submit("AT+CMGS=18", pdu), "+CMGS: 1|OK");
        QCOMPARE(talk.later(59000), "");
        QCOMPARE(talk.later(1000), "\r\n+CDSI: \"SR\",1\r\n");
        const QByteArray stored = talk.ask("AT+CPMS=\"SR\",\"SR\";+CMGR=1");
        QVERIFY2(stored.contains("|+CMGR: 0,,25|" + centre + "0601" + recipient), stored);
        QVERIFY2(stored.endsWith("30|OK"), stored);
        talk.ask("AT+CNMI=1,2,0,1,0");
        const QByteArray direct = talk.told(R"({"command": "sms-report", "reference": 1, "status": 0})");
        QVERIFY2(direct.startsWith("\r\n+CDS: 25\r\n" + centre + "0601") && direct.endsWith("00\r\n"),
                 direct);
        QCOMPARE(talk.told(R"({"command": "sms-report", "pdu": "0006"})"), "\r\n+CDS: 1\r\n0006\r\n");
        QVERIFY(!talk.card.control(R"({"command": "sms-report", "reference": 9})")[u"ok"_s].toBool());
        QVERIFY(talk.card.tell(R"({"command": "sms-report", "reference": 9, "to": "+4912345678"})"));
    }

    void unregisteredCardRefuses()
    {
        Talk talk;
        talk.card.tell(R"({"command": "register", "service": "none"})");
        QCOMPARE(talk.submit("AT+CMGS=18", toItself), "+CMS ERROR: no network service");
        talk.card.tell(R"({"command": "fault", "kind": "refuse", "match": "+CMGS", "code": 500})");
        QCOMPARE(talk.ask("AT+CMGS=18"), "+CMS ERROR: unknown error");
    }

    void networkReordersAndDelays()
    {
        Talk talk;
        talk.ask("AT+CNMI=2,2,0,0,0");
        talk.card.tell(R"({"command": "sms-network", "delay": 3000, "transit": 1000, "reorder": 2})");
        for (const char *last : {"0E", "0F"}) {
            talk.port.exchange("AT+CMGS=18\r", "> ");
            const QByteArray pdu = toItself.chopped(2) + last;
            talk.port.write(pdu + '\x1a');
            QVERIFY(talk.card.hears(QString::fromLatin1(pdu) + u'\x1a'));
            QCOMPARE(talk.later(2900), "");
            QVERIFY(talk.later(100).startsWith("\r\n+CMGS: "));
        }
        const QByteArray both = talk.later(1000);
        const qsizetype second = both.indexOf("04D4F29C0F");
        QVERIFY2(second >= 0 && second < both.indexOf("04D4F29C0E"), both);
    }

    void handedOverIsAcknowledged()
    {
        Talk talk;
        const QByteArray report = "\r\n+CMT: ,23\r\n" + received + "\r\n";
        QCOMPARE(talk.ask("AT+CSMS=1;+CNMI=2,2,0,1,0"), "+CSMS: 1,1,1|OK");
        talk.card.tell(receivedSms);
        QCOMPARE(talk.told(receivedSms), report);
        QCOMPARE(talk.ask("AT+CNMA"), "OK");
        QCOMPARE(talk.card.pending(talk.port), report);
        QCOMPARE(talk.later(15000), "");
        QCOMPARE(talk.ask("AT+CNMI?"), "+CNMI: 2,0,0,0,0|OK");
        QCOMPARE(talk.ask("AT+CNMA"), "+CMS ERROR: no +CNMA acknowledgement expected");
        QCOMPARE(talk.ask("AT+CMGL=4"), "+CMGL: 1,0,,23|" + received + "|OK");
    }

    void textBecomesParts_data() { addRows(textBecomesPartsRows); }
    void textBecomesParts()
    {
        const auto &[name, text, values, ends] = currentRow(textBecomesPartsRows);
        Talk talk;
        talk.ask("AT+CNMI=2,2,0,0,0");
        const QByteArray given =
            "\"time\": \"2026-02-28T12:00:00Z\", \"from\": \"Bank\", \"text\": \"" + text.toUtf8() + '"';
        const QByteArray reports = talk.told(sms(values.isEmpty() ? given : given + ", " + values));
        QByteArrayList pdus;
        for (const QByteArray &line : reports.split('\n')) {
            if (line.startsWith(centre))
                pdus += line.trimmed().replace("62208221000000", " ");
        }
        QCOMPARE(pdus.size(), ends.size());
        for (qsizetype i = 0; i < ends.size(); ++i)
            QCOMPARE(pdus[i].mid(pdus[i].indexOf("07D0C2B07B0D00") + 14), ends[i]);
    }

    void textCanBeGivenUp()
    {
        Talk talk;
        QCOMPARE(talk.port.exchange("AT+CMGS=18\r\n", "> "), "\r\n> ");
        QCOMPARE(talk.port.exchange("0011\x1b", "OK\r\n"), "\r\nOK\r\n");
        QCOMPARE(talk.ask("AT+CSQ"), "+CSQ: 20,99|OK");
        TestPort(talk.card.path(u"modem"_s)).exchange("AT+CMGS=18\r\n", "> ");
        QVERIFY(talk.card.isLeft(u"modem"_s));
        TestPort again(talk.card.path(u"modem"_s));
        QCOMPARE(again.exchange("ATE0\r", "OK\r\n"), "ATE0\r\r\nOK\r\n");
        QVERIFY(talk.card.sent().isEmpty());
    }

    void reportsWaitForAPrompt()
    {
        Talk talk;
        talk.port.exchange("AT+CMGS=18\r\n", "> ");
        QCOMPARE(talk.told(receivedSms), "");
        QCOMPARE(talk.ask(toItself + '\x1a'), "+CMGS: 1|OK");
        QCOMPARE(talk.card.pending(talk.port), "\r\n+CMTI: \"SM\",1\r\n\r\n+CMTI: \"SM\",2\r\n");
        talk.ask("ATE1");
        talk.card.tell(R"({"command": "fault", "kind": "noreply", "match": ">"})");
        talk.port.write("AT+CMGS=18\r");
        QCOMPARE(talk.port.readUntil("\r"), "AT+CMGS=18\r");
        QCOMPARE(talk.port.exchange(toItself + '\x1a', "OK\r\n"), toItself + "\r\n+CMGS: 2\r\n\r\nOK\r\n");
    }

    void comesInDuringAListing()
    {
        Talk talk;
        talk.told(receivedSms);
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

    void waitsForTheEndOfADataCall()
    {
        Talk talk;
        talk.card.tell(R"({"command": "dial-result", "result": "connect"})");
        talk.ask("AT+CNMI=2,1,0,0,0");
        QCOMPARE(talk.ask("ATD*99#"), "CONNECT");
        QCOMPARE(talk.told(receivedSms), "");
        QCOMPARE(talk.told(R"({"command": "drop-data"})"), "\r\nNO CARRIER\r\n\r\n+CMTI: \"SM\",1\r\n");
        talk.ask("AT+CNMI=1,1,0,0,0");
        QCOMPARE(talk.ask("ATD*99#"), "CONNECT");
        talk.card.tell(receivedSms);
        QCOMPARE(talk.told(R"({"command": "drop-data"})"), "\r\nNO CARRIER\r\n");
    }

    void pagesAreShownOnWantedChannels()
    {
        Talk talk;
        const auto shown = [&talk](const QByteArray &values) {
            return talk.told(R"({"command": "broadcast", %1})", values);
        };
        QCOMPARE(shown(R"("text": "Test")"), "");
        talk.ask("AT+CNMI=1,2,2,2,0");
        const QByteArray filled = shown(R"("text": "Test", "channel": 50, "serial": 4660)");
        QVERIFY2(filled.startsWith("\r\n+CBM: 88\r\n123400320F11D4F29CDE68341A"), filled);
        QCOMPARE(filled.size(), 12 + 176 + 2);
        const QByteArray wide = shown("\"text\": \"" + QByteArray("Ж").repeated(42) + '"');
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

    // It takes the time of one command, however long its answer is.
    void longListingIsOneCommand()
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
};

QTEST_GUILESS_MAIN(TestEmulatorMessages)
#include "tst_emulator_messages.moc"
