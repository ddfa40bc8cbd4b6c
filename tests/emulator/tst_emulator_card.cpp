// SPDX-License-Identifier: GPL-3.0-or-later
// The card behaves: what one command or the world changes, the next answer shows.
#include "testcard.h"

namespace
{

const Rows<QByteArray, QByteArray> unusableSimRows{
    {"absent", "SIM not inserted", "255"},
    {"busy", "SIM busy", "0"},
    {"failure", "SIM failure", "0"},
};

} // namespace

class TestEmulatorCard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void threeWrongPinsAskForThePuk()
    {
        Talk talk(u"locked"_s);
        QCOMPARE(talk.ask("AT+CPIN?;+CREG?;+CIMI"), "+CPIN: SIM PIN|+CREG: 0,0|+CME ERROR: SIM PIN required");
        QCOMPARE(talk.ask("AT+CPIN=\"12\""), "+CME ERROR: Incorrect parameters");
        QCOMPARE(talk.ask("AT+CPIN=\"1111\""), "+CME ERROR: incorrect password");
        QCOMPARE(talk.ask("AT+JPINPUK=?;+CSIM=10,\"0020000100\";+CSIM=10,\"002C000100\""),
                 "+JPINPUK: 2,10|+CSIM: 4,\"63C2\"|+CSIM: 4,\"63CA\"|OK");
        QCOMPARE(talk.ask("AT+CPIN=\"1111\""), "+CME ERROR: incorrect password");
        QCOMPARE(talk.ask("AT+CPIN=\"1111\""), "+CME ERROR: SIM PUK required");
        QCOMPARE(talk.ask("AT+CPIN?;+CPIN=\"1234\""), "+CPIN: SIM PUK|+CME ERROR: SIM PUK required");
        QCOMPARE(talk.ask("AT+CPIN=\"12345678\",\"4321\";+CPIN?;+JPINPUK=?"),
                 "+CPIN: READY|+JPINPUK: 3,10|OK");
        talk.card.tell(R"({"command": "restart"})");
        talk.port.exchange("ATE0\r", "OK\r\n");
        QCOMPARE(talk.ask("AT+CPIN=\"4321\""), "OK");
    }

    void tenWrongPuksBlock()
    {
        Talk talk(u"locked"_s);
        talk.card.tell(R"({"command": "pin", "pinAttempts": 0})");
        for (int i = 0; i < 9; ++i)
            QCOMPARE(talk.ask("AT+CPIN=\"00000000\",\"1234\""), "+CME ERROR: incorrect password");
        QCOMPARE(talk.ask("AT+CPIN=\"00000000\",\"1234\""), "+CME ERROR: SIM failure");
        QCOMPARE(talk.ask("AT+CPIN=\"12345678\",\"1234\""), "+CME ERROR: SIM failure");
        QCOMPARE(talk.ask("AT+CPIN?"), "+CME ERROR: SIM failure");
    }

    void pinLockAndChange()
    {
        Talk talk;
        QCOMPARE(talk.ask("AT+CPWD=\"SC\",\"1234\",\"5678\""), "+CME ERROR: operation not allowed");
        QCOMPARE(talk.ask("AT+CLCK=\"SC\",1,\"9999\""), "+CME ERROR: incorrect password");
        QCOMPARE(talk.ask("AT+CLCK=\"SC\",1,\"1234\";+CLCK=\"SC\",2"), "+CLCK: 1|OK");
        QCOMPARE(talk.ask("AT+CPWD=\"SC\",\"1234\",\"5678\";+CLCK=\"SC\",0,\"5678\";+CLCK=\"SC\",2"),
                 "+CLCK: 0|OK");
    }

    void unusableSim_data() { addRows(unusableSimRows); }
    void unusableSim()
    {
        const auto &[condition, error, simState] = currentRow(unusableSimRows);
        Talk talk;
        talk.card.tell(R"({"command": "sim", "ms": 2000, "condition": "%1"})", condition);
        QCOMPARE(talk.ask("AT+CPIN?"), "+CME ERROR: " + error);
        QCOMPARE(talk.ask("AT+CLCK=\"SC\",2"), "+CME ERROR: " + error);
        QCOMPARE(talk.ask("AT+CPMS?"), "+CMS ERROR: " + error);
        QCOMPARE(talk.ask("AT^SYSINFO"), "^SYSINFO:1,0,0,5," + simState + ",0,4|OK");
        talk.card.advance(2000);
        QCOMPARE(talk.ask("AT+CPIN?"), "+CPIN: READY|OK");
    }

    void radioOffDeregisters()
    {
        Talk talk;
        QCOMPARE(talk.ask("AT+CFUN=0;+CSQ;+CREG?;+COPS?;+JOPRT?;+JTIME?"),
                 "+CSQ: 99,99|+CREG: 0,0|+COPS: 0|+JOPRT: 0|+CME ERROR: no network service");
        QCOMPARE(talk.ask("AT+JOPRT=5;+CFUN?"), "+CFUN: 1|OK");
        talk.card.advance(300);
        QCOMPARE(talk.ask("AT+CREG?;+JOPRT=6;+CFUN?"), "+CREG: 0,1|+CFUN: 4|OK");
    }

    void registrationReports()
    {
        Talk talk;
        talk.ask("AT+CREG=1;+CGREG=2");
        QCOMPARE(talk.told(R"({"command": "roaming", "on": true})"),
                 "\r\n+CREG: 5\r\n\r\n+CGREG: 5,\"1234\",\"0000ABCD\"\r\n");
        QCOMPARE(talk.ask("AT^SYSINFO"), "^SYSINFO:2,3,1,5,1,0,4|OK");
        QCOMPARE(talk.told(R"({"command": "roaming", "on": true})"), "");
        QCOMPARE(talk.told(R"({"command": "register", "service": "denied"})"),
                 "\r\n+CREG: 3\r\n\r\n+CGREG: 3\r\n");
        QCOMPARE(talk.ask("AT+CREG?;+CREG=0"), "+CREG: 1,3|OK");
        QCOMPARE(talk.told(R"({"command": "register", "service": "full"})"),
                 "\r\n+CGREG: 5,\"1234\",\"0000ABCD\"\r\n");
    }

    void operatorSelection()
    {
        Talk talk;
        QCOMPARE(talk.ask("AT+COPS=1,2,\"00103\""), "+CME ERROR: network not allowed - emergency calls only");
        QCOMPARE(talk.ask("AT+COPS=1,2,\"00199\""), "+CME ERROR: no network service");
        QCOMPARE(talk.ask("AT+COPS?"), "+COPS: 0,0,\"Test Network\",2|OK");
        QCOMPARE(talk.ask("AT+COPS=1,0,\"Other Network\";+COPS=3,2;+COPS?;+CREG?"),
                 "+COPS: 1,2,\"00102\",0|+CREG: 0,5|OK");
        QCOMPARE(talk.ask("AT+COPS=3,1;+CSCS=\"UCS2\";+COPS?"),
                 "+COPS: 1,1,\"004F0074006800650072004E00650074\",0|OK");
        QCOMPARE(talk.ask("AT+COPS=1,1,\"0054006500730074004E00650074\";+CSCS=\"IRA\";+COPS?"),
                 "+COPS: 1,1,\"TestNet\",2|OK");
        QCOMPARE(talk.ask("AT+COPS=2;+COPS?"), "+COPS: 2|OK");
        QCOMPARE(talk.ask("AT+COPS=0;+COPS?"), "+COPS: 0|OK");
        talk.card.advance(300);
        QCOMPARE(talk.ask("AT+COPS?"), "+COPS: 0,1,\"TestNet\",2|OK");
        QCOMPARE(talk.ask("AT+COPS=5"), "+CME ERROR: Incorrect parameters");
        talk.card.tell(R"({"command": "operator", "plmn": "00104", "long": "Newcomer"})");
        QCOMPARE(talk.ask("AT+COPS=3,0;+COPS?"), "+COPS: 0,0,\"Newcomer\",2|OK");
    }

    void operatorSearchKeepsOthersWaiting()
    {
        Talk talk;
        talk.port.write("AT+COPS=?\rAT+CSQ\r");
        QVERIFY(talk.card.hears(u"AT+COPS=?"_s));
        QVERIFY(talk.card.advance(1000));
        QCOMPARE(talk.card.pending(talk.port), "");
        QVERIFY(talk.card.advance(2000));
        const QByteArray list = "\r\n+COPS: (2,\"Test Network\",\"TestNet\",\"00101\",2),"
                                "(1,\"Other Network\",\"OtherNet\",\"00102\",0),"
                                "(3,\"Closed Network\",\"Closed\",\"00103\",2),,(0-4),(0-2)\r\n\r\nOK\r\n";
        QCOMPARE(talk.card.pending(talk.port), list + "\r\n+CSQ: 20,99\r\n\r\nOK\r\n");
    }

    void clockFollowsCommandsAndControl()
    {
        Talk talk;
        talk.card.tell(R"({"command": "set", "key": "network.timeZone", "value": 8})");
        talk.card.tell(R"({"command": "clock", "time": "2028-02-28T21:59:58Z", "advance": 1000})");
        QCOMPARE(talk.ask("AT+CCLK?"), "+CCLK: \"28/02/28,23:59:59+08\"|OK");
        QCOMPARE(talk.ask("AT+CCLK=\"28/02/29,12:00:00-04\""), "OK");
        QCOMPARE(talk.ask("AT+JTIME?"), "+JTIME: \"28/02/29,15:00:00+08\"|OK");
        QCOMPARE(talk.ask("AT+CCLK=\"28/02/30,12:00:00+00\""), "+CME ERROR: Incorrect parameters");
    }

    void ringsUntilHungUp()
    {
        Talk talk;
        talk.ask("AT+CLIP=1");
        const QByteArray ring = "\r\nRING\r\n\r\n+CLIP: \"+12025550177\",145\r\n";
        talk.card.tell(R"({"command": "ring", "number": "+12025550177", "interval": 3000})");
        QCOMPARE(talk.later(6000), ring + ring + ring);
        QCOMPARE(talk.ask("AT+CPAS;+CLCC"), "+CPAS: 3|+CLCC: 1,1,4,0,0,\"+12025550177\",145|OK");
        QCOMPARE(talk.ask("ATH"), "OK");
        QCOMPARE(talk.later(10000), "");
        QCOMPARE(talk.ask("AT+CPAS"), "+CPAS: 0|OK");
    }

    void ussdAnswersComeLater()
    {
        Talk talk;
        QCOMPARE(talk.ask("AT+CUSD=1,\"*100#\",15"), "OK");
        QCOMPARE(talk.card.pending(talk.port), "");
        QCOMPARE(talk.later(500), "\r\n+CUSD: 0,\"Your balance is 12.50\",15\r\n");
        talk.ask("AT+CUSD=1,\"*1#\",15");
        QCOMPARE(talk.later(500), "\r\n+CUSD: 4\r\n");
    }

    void dialResultComesLater()
    {
        TestCard card;
        TestPort port(card.path(u"modem"_s));
        QVERIFY(card.tell(R"({"command": "dial-result", "ms": 3000, "result": "no-answer"})"));
        port.write("ATE0DT*99#\r\n");
        QVERIFY(card.hears(u"ATE0DT*99#"_s));
        QVERIFY(card.advance(1000));
        QCOMPARE(port.readUntil("\n", 0), "ATE0DT*99#\r");
        QVERIFY(card.advance(2000));
        QCOMPARE(port.readUntil("ANSWER\r\n"), "\r\nNO ANSWER\r\n");
    }

    void whateverIsTypedEndsADial()
    {
        Talk talk;
        QVERIFY(talk.card.tell(R"({"command": "dial-result", "result": "silence"})"));
        talk.port.write("ATD*99#\r\n");
        QVERIFY(talk.card.hears(u"ATD*99#"_s));
        QCOMPARE(talk.later(3600000), "");
        QCOMPARE(talk.port.exchange("AT\r", "CARRIER\r\n"), "\r\nNO CARRIER\r\n");
        QCOMPARE(talk.ask("AT"), "OK");
        QCOMPARE(TestPort(talk.card.path(u"modem"_s)).exchange("ATD*99#\r", "#\r"), "ATD*99#\r");
        QVERIFY(talk.card.isLeft(u"modem"_s));
        TestPort again(talk.card.path(u"modem"_s));
        QCOMPARE(again.exchange("ATE0\r", "OK\r\n"), "ATE0\r\r\nOK\r\n");
    }

    void dataCallEndsByEscapeOrClosing()
    {
        Talk talk;
        QCOMPARE(talk.ask("ATD*99#"), "NO CARRIER");
        QCOMPARE(talk.card.control(R"({"command": "drop-data"})")[u"error"_s], u"there is no data call"_s);
        QVERIFY(talk.card.tell(R"({"command": "dial-result", "result": "connect"})"));
        QCOMPARE(talk.ask("ATD*99#"), "CONNECT");
        talk.port.write("AT+CSQ\r+++");
        QVERIFY(talk.card.hears(u"AT+CSQ\r+++"_s));
        QCOMPARE(talk.later(5000), "");
        talk.port.write("+++");
        QVERIFY(talk.card.hears(u"+++"_s));
        QCOMPARE(talk.later(300), "");
        QCOMPARE(talk.later(700), "\r\nOK\r\n");
        QCOMPARE(talk.ask("AT+CSQ"), "+CSQ: 20,99|OK");
        QCOMPARE(talk.ask("ATO"), "CONNECT");
        QCOMPARE(TestPort(talk.card.path(u"modem"_s)).exchange("ATE0D*99#\r", "CONNECT\r\n"),
                 "ATE0D*99#\r\r\nCONNECT\r\n");
        QVERIFY(talk.card.isLeft(u"modem"_s));
        TestPort again(talk.card.path(u"modem"_s));
        QCOMPARE(again.exchange("ATO\r", "CARRIER\r\n"), "\r\nNO CARRIER\r\n");
    }

    void restartForgetsSettings()
    {
        Talk talk;
        QCOMPARE(talk.ask("AT+CFUN=1,1"), "OK");
        QTRY_COMPARE(talk.port.exchange("AT\r", "OK\r\n"), "AT\r\r\nOK\r\n");
    }
};

QTEST_GUILESS_MAIN(TestEmulatorCard)
#include "tst_emulator_card.moc"
