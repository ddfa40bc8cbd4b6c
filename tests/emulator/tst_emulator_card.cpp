// SPDX-License-Identifier: GPL-3.0-or-later
// The card behaves: what one command or the world changes, the next answer shows.
#include "testcard.h"

#include <QTest>

class TestEmulatorCard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void threeWrongPinsAskForThePuk();
    void tenWrongPuksBlock();
    void pinLockAndChange();
    void unusableSim_data();
    void unusableSim();
    void radioOffDeregisters();
    void registrationReports();
    void operatorSelection();
    void operatorSearchKeepsOthersWaiting();
    void clockFollowsCommandsAndControl();
    void ringsUntilHungUp();
    void ussdAnswersComeLater();
    void dialResults_data();
    void dialResults();
    void whateverIsTypedEndsADial();
    void dataCallEndsByEscapeOrClosing();
    void networkDropsTheDataCall();
    void restartForgetsSettings();
};

void TestEmulatorCard::threeWrongPinsAskForThePuk()
{
    Talk talk(u"locked"_s);
    QCOMPARE(talk.ask("AT+CPIN?"), "+CPIN: SIM PIN|OK");
    QCOMPARE(talk.ask("AT+CIMI"), "+CME ERROR: SIM PIN required");
    QCOMPARE(talk.ask("AT+CREG?"), "+CREG: 0,0|OK");
    QCOMPARE(talk.ask("AT+CPIN=\"12\""), "+CME ERROR: Incorrect parameters");
    QCOMPARE(talk.ask("AT+CPIN=\"1111\""), "+CME ERROR: incorrect password");
    QCOMPARE(talk.ask("AT+JPINPUK=?"), "+JPINPUK: 2,10|OK");
    QCOMPARE(talk.ask("AT+CSIM=10,\"0020000100\";+CSIM=10,\"002C000100\""),
             "+CSIM: 4,\"63C2\"|+CSIM: 4,\"63CA\"|OK");
    QCOMPARE(talk.ask("AT+CPIN=\"1111\""), "+CME ERROR: incorrect password");
    QCOMPARE(talk.ask("AT+CPIN=\"1111\""), "+CME ERROR: SIM PUK required");
    QCOMPARE(talk.ask("AT+CPIN?"), "+CPIN: SIM PUK|OK");
    QCOMPARE(talk.ask("AT+CPIN=\"1234\""), "+CME ERROR: SIM PUK required");
    QCOMPARE(talk.ask("AT+CPIN=\"12345678\",\"4321\""), "OK");
    QCOMPARE(talk.ask("AT+CPIN?"), "+CPIN: READY|OK");
    QCOMPARE(talk.ask("AT+JPINPUK=?"), "+JPINPUK: 3,10|OK");
    talk.card.tell(R"({"command": "restart"})");
    talk.port.exchange("ATE0\r", "OK\r\n");
    QCOMPARE(talk.ask("AT+CPIN=\"4321\""), "OK");
}

void TestEmulatorCard::tenWrongPuksBlock()
{
    Talk talk(u"locked"_s);
    talk.card.tell(R"({"command": "pin", "pinAttempts": 0})");
    for (int i = 0; i < 9; ++i)
        QCOMPARE(talk.ask("AT+CPIN=\"00000000\",\"1234\""), "+CME ERROR: incorrect password");
    QCOMPARE(talk.ask("AT+CPIN=\"00000000\",\"1234\""), "+CME ERROR: SIM failure");
    QCOMPARE(talk.ask("AT+CPIN=\"12345678\",\"1234\""), "+CME ERROR: SIM failure");
    QCOMPARE(talk.ask("AT+CPIN?"), "+CME ERROR: SIM failure");
}

void TestEmulatorCard::pinLockAndChange()
{
    Talk talk;
    QCOMPARE(talk.ask("AT+CLCK=\"SC\",2"), "+CLCK: 0|OK");
    QCOMPARE(talk.ask("AT+CPWD=\"SC\",\"1234\",\"5678\""), "+CME ERROR: operation not allowed");
    QCOMPARE(talk.ask("AT+CLCK=\"SC\",1,\"9999\""), "+CME ERROR: incorrect password");
    QCOMPARE(talk.ask("AT+CLCK=\"SC\",1,\"1234\""), "OK");
    QCOMPARE(talk.ask("AT+CLCK=\"SC\",2"), "+CLCK: 1|OK");
    QCOMPARE(talk.ask("AT+CPWD=\"SC\",\"1234\",\"567\""), "+CME ERROR: Incorrect parameters");
    QCOMPARE(talk.ask("AT+CPWD=\"SC\",\"1234\",\"5678\""), "OK");
    QCOMPARE(talk.ask("AT+CLCK=\"SC\",0,\"5678\""), "OK");
    QCOMPARE(talk.ask("AT+CLCK=\"XX\",2"), "+CME ERROR: Incorrect parameters");
}

void TestEmulatorCard::unusableSim_data()
{
    QTest::addColumn<QByteArray>("condition");
    QTest::addColumn<QByteArray>("pinError");
    QTest::addColumn<QByteArray>("messageError");
    QTest::addColumn<QByteArray>("simState");
    QTest::newRow("absent") << QByteArray("absent") << QByteArray("SIM not inserted")
                            << QByteArray("SIM not inserted") << QByteArray("255");
    QTest::newRow("busy") << QByteArray("busy") << QByteArray("SIM busy") << QByteArray("SIM busy")
                          << QByteArray("0");
    QTest::newRow("failure") << QByteArray("failure") << QByteArray("SIM failure")
                             << QByteArray("SIM failure") << QByteArray("0");
}

void TestEmulatorCard::unusableSim()
{
    QFETCH(QByteArray, condition);
    QFETCH(QByteArray, pinError);
    QFETCH(QByteArray, messageError);
    QFETCH(QByteArray, simState);
    Talk talk;
    talk.card.tell(R"({"command": "sim", "ms": 2000, "condition": ")" + condition + "\"}");
    QCOMPARE(talk.ask("AT+CPIN?"), "+CME ERROR: " + pinError);
    QCOMPARE(talk.ask("AT+CLCK=\"SC\",2"), "+CME ERROR: " + pinError);
    QCOMPARE(talk.ask("AT+CPMS?"), "+CMS ERROR: " + messageError);
    QCOMPARE(talk.ask("AT^SYSINFO"), "^SYSINFO:1,0,0,5," + simState + ",0,4|OK");
    talk.card.advance(2000);
    QCOMPARE(talk.ask("AT+CPIN?"), "+CPIN: READY|OK");
}

void TestEmulatorCard::radioOffDeregisters()
{
    Talk talk;
    QCOMPARE(talk.ask("AT+CFUN=0"), "OK");
    QCOMPARE(talk.ask("AT+CSQ"), "+CSQ: 99,99|OK");
    QCOMPARE(talk.ask("AT+CREG?"), "+CREG: 0,0|OK");
    QCOMPARE(talk.ask("AT+COPS?"), "+COPS: 0|OK");
    QCOMPARE(talk.ask("AT+JOPRT?"), "+JOPRT: 0|OK");
    QCOMPARE(talk.ask("AT+JTIME?"), "+CME ERROR: no network service");
    QCOMPARE(talk.ask("AT+JOPRT=5"), "OK");
    QCOMPARE(talk.ask("AT+CFUN?"), "+CFUN: 1|OK");
    talk.card.advance(300);
    QCOMPARE(talk.ask("AT+CREG?"), "+CREG: 0,1|OK");
    QCOMPARE(talk.ask("AT+JOPRT=6"), "OK");
    QCOMPARE(talk.ask("AT+CFUN?"), "+CFUN: 4|OK");
}

void TestEmulatorCard::registrationReports()
{
    Talk talk;
    talk.ask("AT+CREG=1;+CGREG=2");
    talk.card.tell(R"({"command": "roaming", "on": true})");
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CREG: 5\r\n\r\n+CGREG: 5,\"1234\",\"0000ABCD\"\r\n");
    QCOMPARE(talk.ask("AT^SYSINFO"), "^SYSINFO:2,3,1,5,1,0,4|OK");
    talk.card.tell(R"({"command": "roaming", "on": true})");
    QCOMPARE(talk.card.pending(talk.port), "");
    talk.card.tell(R"({"command": "register", "service": "denied"})");
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CREG: 3\r\n\r\n+CGREG: 3\r\n");
    QCOMPARE(talk.ask("AT+CREG?;+CREG=0"), "+CREG: 1,3|OK");
    talk.card.tell(R"({"command": "register", "service": "full"})");
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CGREG: 5,\"1234\",\"0000ABCD\"\r\n");
}

void TestEmulatorCard::operatorSelection()
{
    Talk talk;
    QCOMPARE(talk.ask("AT+COPS=1,2,\"00103\""), "+CME ERROR: network not allowed - emergency calls only");
    QCOMPARE(talk.ask("AT+COPS=1,2,\"00199\""), "+CME ERROR: no network service");
    QCOMPARE(talk.ask("AT+COPS?"), "+COPS: 0,0,\"Test Network\",2|OK");
    QCOMPARE(talk.ask("AT+COPS=1,0,\"Other Network\""), "OK");
    QCOMPARE(talk.ask("AT+COPS=3,2;+COPS?"), "+COPS: 1,2,\"00102\",0|OK");
    QCOMPARE(talk.ask("AT+CREG?"), "+CREG: 0,5|OK");
    QCOMPARE(talk.ask("AT+COPS=3,1;+CSCS=\"UCS2\";+COPS?"),
             "+COPS: 1,1,\"004F0074006800650072004E00650074\",0|OK");
    QCOMPARE(talk.ask("AT+COPS=1,1,\"0054006500730074004E00650074\""), "OK");
    QCOMPARE(talk.ask("AT+CSCS=\"IRA\";+COPS?"), "+COPS: 1,1,\"TestNet\",2|OK");
    QCOMPARE(talk.ask("AT+COPS=2;+COPS?"), "+COPS: 2|OK");
    QCOMPARE(talk.ask("AT+COPS=0;+COPS?"), "+COPS: 0|OK");
    talk.card.advance(300);
    QCOMPARE(talk.ask("AT+COPS?"), "+COPS: 0,1,\"TestNet\",2|OK");
    QCOMPARE(talk.ask("AT+COPS=5"), "+CME ERROR: Incorrect parameters");
    talk.card.tell(R"({"command": "operator", "plmn": "00104", "long": "Newcomer"})");
    QCOMPARE(talk.ask("AT+COPS=3,0;+COPS?"), "+COPS: 0,0,\"Newcomer\",2|OK");
}

void TestEmulatorCard::operatorSearchKeepsOthersWaiting()
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

void TestEmulatorCard::clockFollowsCommandsAndControl()
{
    Talk talk;
    talk.card.tell(R"({"command": "set", "key": "network.timeZone", "value": 8})");
    talk.card.tell(R"({"command": "clock", "time": "2028-02-28T21:59:58Z", "advance": 1000})");
    QCOMPARE(talk.ask("AT+CCLK?"), "+CCLK: \"28/02/28,23:59:59+08\"|OK");
    QCOMPARE(talk.ask("AT+CCLK=\"28/02/29,12:00:00-04\""), "OK");
    QCOMPARE(talk.ask("AT+JTIME?"), "+JTIME: \"28/02/29,15:00:00+08\"|OK");
    QCOMPARE(talk.ask("AT+CCLK=\"28/02/30,12:00:00+00\""), "+CME ERROR: Incorrect parameters");
}

void TestEmulatorCard::ringsUntilHungUp()
{
    Talk talk;
    talk.ask("AT+CLIP=1");
    const QByteArray ring = "\r\nRING\r\n\r\n+CLIP: \"+12025550177\",145\r\n";
    talk.card.tell(R"({"command": "ring", "number": "+12025550177", "interval": 3000})");
    talk.card.advance(6000);
    QCOMPARE(talk.card.pending(talk.port), ring + ring + ring);
    QCOMPARE(talk.ask("AT+CPAS"), "+CPAS: 3|OK");
    QCOMPARE(talk.ask("AT+CLCC"), "+CLCC: 1,1,4,0,0,\"+12025550177\",145|OK");
    QCOMPARE(talk.ask("ATH"), "OK");
    talk.card.advance(10000);
    QCOMPARE(talk.card.pending(talk.port), "");
    QCOMPARE(talk.ask("AT+CPAS"), "+CPAS: 0|OK");
}

void TestEmulatorCard::ussdAnswersComeLater()
{
    Talk talk;
    QCOMPARE(talk.ask("AT+CUSD=1,\"*100#\",15"), "OK");
    QCOMPARE(talk.card.pending(talk.port), "");
    talk.card.advance(500);
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CUSD: 0,\"Your balance is 12.50\",15\r\n");
    talk.ask("AT+CUSD=1,\"*1#\",15");
    talk.card.advance(500);
    QCOMPARE(talk.card.pending(talk.port), "\r\n+CUSD: 4\r\n");
}

void TestEmulatorCard::dialResults_data()
{
    QTest::addColumn<QString>("result");
    QTest::addColumn<QByteArray>("answered");
    for (const QString &words : {u"no-carrier"_s, u"busy"_s, u"no-answer"_s, u"no-dialtone"_s, u"error"_s})
        QTest::newRow(qPrintable(words)) << words << words.toUpper().replace(u'-', u' ').toLatin1();
    QTest::newRow("connect, then silence") << u"connect-then-silence"_s << QByteArray("CONNECT");
}

void TestEmulatorCard::dialResults()
{
    QFETCH(QString, result);
    QFETCH(QByteArray, answered);
    TestCard card;
    TestPort port(card.path(u"modem"_s));
    QVERIFY(
        card.tell("{\"command\": \"dial-result\", \"ms\": 3000, \"result\": \"" + result.toLatin1() + "\"}"));
    port.write("ATE0DT*99#\r\n");
    QVERIFY(card.hears(u"ATE0DT*99#"_s));
    QVERIFY(card.advance(1000));
    QCOMPARE(port.readUntil("\n", 0), "ATE0DT*99#\r");
    QVERIFY(card.advance(2000));
    QCOMPARE(port.readUntil(answered + "\r\n"), "\r\n" + answered + "\r\n");
}

void TestEmulatorCard::whateverIsTypedEndsADial()
{
    Talk talk;
    QVERIFY(talk.card.tell(R"({"command": "dial-result", "result": "silence"})"));
    talk.port.write("ATD*99#\r\n");
    QVERIFY(talk.card.hears(u"ATD*99#"_s));
    talk.card.advance(3600000);
    QCOMPARE(talk.card.pending(talk.port), "");
    QCOMPARE(talk.port.exchange("AT\r", "CARRIER\r\n"), "\r\nNO CARRIER\r\n");
    QCOMPARE(talk.ask("AT"), "OK");
    {
        TestPort other(talk.card.path(u"modem"_s));
        QCOMPARE(other.exchange("ATD*99#\r", "#\r"), "ATD*99#\r");
    }
    QVERIFY(talk.card.isLeft(u"modem"_s));
    TestPort again(talk.card.path(u"modem"_s));
    QCOMPARE(again.exchange("ATE0\r", "OK\r\n"), "ATE0\r\r\nOK\r\n");
}

void TestEmulatorCard::networkDropsTheDataCall()
{
    Talk talk;
    QCOMPARE(talk.card.control(R"({"command": "drop-data"})")[u"error"_s], u"there is no data call"_s);
    QVERIFY(talk.card.tell(R"({"command": "dial-result", "result": "connect"})"));
    QCOMPARE(talk.ask("ATD*99#"), "CONNECT");
    QVERIFY(talk.card.tell(R"({"command": "drop-data"})"));
    QCOMPARE(talk.port.readUntil("CARRIER\r\n"), "\r\nNO CARRIER\r\n");
    QCOMPARE(talk.ask("AT+CSQ"), "+CSQ: 20,99|OK");
}

void TestEmulatorCard::dataCallEndsByEscapeOrClosing()
{
    Talk talk;
    QCOMPARE(talk.ask("ATD*99#"), "NO CARRIER");
    QVERIFY(talk.card.tell(R"({"command": "dial-result", "result": "connect"})"));
    QCOMPARE(talk.ask("ATD*99#"), "CONNECT");
    talk.port.write("AT+CSQ\r+++");
    QVERIFY(talk.card.hears(u"AT+CSQ\r+++"_s));
    talk.card.advance(5000);
    QCOMPARE(talk.card.pending(talk.port), "");
    talk.port.write("+++");
    QVERIFY(talk.card.hears(u"+++"_s));
    talk.card.advance(300);
    QCOMPARE(talk.card.pending(talk.port), "");
    talk.card.advance(700);
    QCOMPARE(talk.card.pending(talk.port), "\r\nOK\r\n");
    QCOMPARE(talk.ask("AT+CSQ"), "+CSQ: 20,99|OK");
    QCOMPARE(talk.ask("ATO"), "CONNECT");
    {
        TestPort other(talk.card.path(u"modem"_s));
        QCOMPARE(other.exchange("ATE0D*99#\r", "CONNECT\r\n"), "ATE0D*99#\r\r\nCONNECT\r\n");
    }
    QVERIFY(talk.card.isLeft(u"modem"_s));
    TestPort again(talk.card.path(u"modem"_s));
    QCOMPARE(again.exchange("ATO\r", "CARRIER\r\n"), "\r\nNO CARRIER\r\n");
}

void TestEmulatorCard::restartForgetsSettings()
{
    Talk talk;
    QCOMPARE(talk.ask("AT+CFUN=1,1"), "OK");
    QTRY_COMPARE(talk.port.exchange("AT\r", "OK\r\n"), "AT\r\r\nOK\r\n");
}

QTEST_GUILESS_MAIN(TestEmulatorCard)
#include "tst_emulator_card.moc"
