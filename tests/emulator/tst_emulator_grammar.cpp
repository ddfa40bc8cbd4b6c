// SPDX-License-Identifier: GPL-3.0-or-later
// What the card makes of the bytes of a command line, and the form of its answers: ITU-T V.250 5.
#include "testcard.h"

#include <QRandomGenerator>
#include <QTest>

class TestEmulatorGrammar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data();
    void answers();
    void randomBytesDoNoHarm();
    void settingsStayUntilReset();
    void portsHaveTheirOwnSettings();
    void familiesKnowTheirCommands_data();
    void familiesKnowTheirCommands();
};

void TestEmulatorGrammar::answers_data()
{
    QTest::addColumn<QByteArray>("sent");
    QTest::addColumn<QByteArray>("answered");

    const QByteArray okay = "\r\nOK\r\n";
    const QByteArray error = "\r\nERROR\r\n";
    const QByteArray signal = "\r\n+CSQ: 20,99\r\n";
    const auto row = [](const char *name, const QByteArray &sent, const QByteArray &answered) {
        QTest::newRow(name) << sent << answered;
    };
    row("nothing but AT", "AT\r", "AT\r" + okay);
    row("line feed behind the line is not echoed", "AT\r\nAT\r\n", "AT\r" + okay + "AT\r" + okay);
    row("lower case", "at+csq\r", "at+csq\r" + signal + okay);
    row("extended commands in one line", "AT+CSQ;+CSQ\r", "AT+CSQ;+CSQ\r" + signal + signal + okay);
    row("basic commands stand side by side", "ATQ0V1X4&C1+CSQ\r", "ATQ0V1X4&C1+CSQ\r" + signal + okay);
    row("stops at the first refusal", "AT+NOSUCH;+CSQ\r", "AT+NOSUCH;+CSQ\r" + error);
    row("what ran before a refusal is told", "AT+CSQ;+NOSUCH\r", "AT+CSQ;+NOSUCH\r" + signal + error);
    row("without a line end the next command sticks to it", "AT+CGMRAT+CSQ\r\n", "AT+CGMRAT+CSQ\r" + error);
    row("blanks between and within", "AT +CSQ ; +CSQ\r", "AT +CSQ ; +CSQ\r" + signal + signal + okay);
    row("semicolon and comma inside quotes", "AT+CGDCONT=1,\"IP\",\"a;b,c\";+CGDCONT?\r",
        "AT+CGDCONT=1,\"IP\",\"a;b,c\";+CGDCONT?\r\r\n+CGDCONT: 1,\"IP\",\"a;b,c\",\"\",0,0\r\n" + okay);
    row("open quote", "AT+CSCS=\"GSM\r", "AT+CSCS=\"GSM\r" + error);
    row("text behind a quote", "AT+CSCS=\"GSM\"x\r", "AT+CSCS=\"GSM\"x\r" + error);
    row("number too large for a number", "AT+CMEE=99999999999\r", "AT+CMEE=99999999999\r" + error);
    row("number above the range", "AT+CMEE=3\r", "AT+CMEE=3\r" + error);
    row("unknown command", "AT+XYZZY?\r", "AT+XYZZY?\r" + error);
    row("unknown form of a known command", "AT+CSQ?\r", "AT+CSQ?\r" + error);
    row("test form of a known command without a list", "AT+CIMI=?\r", "AT+CIMI=?\r" + okay);
    row("test form of an unknown command", "AT+XYZZY=?\r", "AT+XYZZY=?\r" + error);
    row("noise before the line", "\xff}#AT\r", "\xff}#AT\r" + okay);
    row("NUL bytes are skipped", QByteArray("A\0T\0\r", 5), "AT\r" + okay);
    row("AAT", "AAT\r", "AAT\r" + okay);
    row("backspace", "AT+CSX\bQ\r", "AT+CSX\b \bQ\r" + signal + okay);
    row("backspace stops at AT", "AT\b\b\b+CSQ\r", "AT+CSQ\r" + signal + okay);
    row("A/ repeats at once", "AT+CSQ\rA/", "AT+CSQ\r" + signal + okay + "A/" + signal + okay);
    row("line longer than the card takes", "AT" + QByteArray(5000, '1') + "\r",
        "AT" + QByteArray(5000, '1') + "\r" + error);
    row("echo off holds from the next line", "ATE0\rAT+CSQ\r", "ATE0\r" + okay + signal + okay);
    row("short answers", "ATE0V0\rAT+CSQ\rAT+NO\r", "ATE0V0\r0\r+CSQ: 20,99\r\n0\r4\r");
    row("no result codes", "ATE0Q1\rAT+CSQ\rATQ0\r", "ATE0Q1\r" + signal + okay);
    row("own line end and line feed", "ATE0S3=33S4=42\rAT+CSQ!",
        "ATE0S3=33S4=42\r!*OK!*!*+CSQ: 20,99!*!*OK!*");
    row("S register", "ATS7=60S7?\r", "ATS7=60S7?\r\r\n060\r\n" + okay);
    row("S register out of range", "ATS7=256\r", "ATS7=256\r" + error);
    row("dial string goes to the end of the line", "ATD*99***1#;+CSQ\r",
        "ATD*99***1#;+CSQ\r\r\nNO CARRIER\r\n");
    row("errors as numbers", "AT+CMEE=1;+CFUN=9\r", "AT+CMEE=1;+CFUN=9\r\r\n+CME ERROR: 50\r\n");
    row("errors in words", "AT+CMEE=2;+CFUN=9\r",
        "AT+CMEE=2;+CFUN=9\r\r\n+CME ERROR: Incorrect parameters\r\n");
    row("message errors as numbers", "AT+CMGR=7\r", "AT+CMGR=7\r\r\n+CMS ERROR: 321\r\n");
    row("message errors in words", "AT+CMEE=2;+CMGR=7\r",
        "AT+CMEE=2;+CMGR=7\r\r\n+CMS ERROR: invalid memory index\r\n");
}

void TestEmulatorGrammar::answers()
{
    QFETCH(QByteArray, sent);
    QFETCH(QByteArray, answered);
    TestCard card;
    TestPort port(card.path(u"at"_s));
    QCOMPARE(port.exchange(sent, answered), answered);
    QCOMPARE(card.pending(port), QByteArray());
}

// Pieces of commands and noise in any order; afterwards the card must still answer.
void TestEmulatorGrammar::randomBytesDoNoHarm()
{
    const QByteArrayList pieces{"AT",        "+C",
                                "+CREG",     "=",
                                "?",         "=?",
                                "\"",        ";",
                                ",",         "2147483648",
                                "-1",        "\r",
                                "\r\n",      "A/",
                                "\b",        "\x1a",
                                "+COPS=1,2", "ATS3",
                                "D",         "^SYSINFO",
                                "\xff",      "+CRSM=176,12258,",
                                "+CPIN=",    "+CSCS=\"UCS2\"",
                                "+CMGL=4",   "+CPBW=",
                                "&F",        "E1"};
    QRandomGenerator random(20240229);
    TestCard card;
    card.tell(R"({"command": "delay", "match": "+COPS=?", "ms": 0})");
    TestPort port(card.path(u"at"_s));
    for (int round = 0; round < 200; ++round) {
        QByteArray bytes;
        for (int i = 0; i < 30; ++i)
            bytes += pieces[random.bounded(pieces.size())];
        QVERIFY(port.write(bytes));
        card.pending(port);
    }
    QVERIFY(card.tell(R"({"command": "unplug"})"));
    QVERIFY(card.tell(R"({"command": "plug"})"));
    TestPort again(card.path(u"at"_s));
    QCOMPARE(again.exchange("AT\r", "OK\r\n"), "AT\r\r\nOK\r\n");
}

void TestEmulatorGrammar::settingsStayUntilReset()
{
    TestCard card;
    {
        TestPort port(card.path(u"at"_s));
        port.exchange("ATE0+CMEE=2\r", "OK\r\n");
    }
    TestPort port(card.path(u"at"_s));
    QCOMPARE(port.exchange("AT+CMEE?\r", "OK\r\n"), "\r\n+CMEE: 2\r\n\r\nOK\r\n");
    port.exchange("ATZ\r", "OK\r\n");
    QCOMPARE(port.exchange("AT+CMEE?\r", "OK\r\n"), "AT+CMEE?\r\r\n+CMEE: 0\r\n\r\nOK\r\n");
}

void TestEmulatorGrammar::portsHaveTheirOwnSettings()
{
    TestCard card;
    TestPort at(card.path(u"at"_s));
    TestPort modem(card.path(u"modem"_s));
    at.exchange("ATE0\r", "OK\r\n");
    QCOMPARE(modem.exchange("AT\r", "OK\r\n"), "AT\r\r\nOK\r\n");
    QCOMPARE(at.exchange("AT\r", "OK\r\n"), "\r\nOK\r\n");
}

void TestEmulatorGrammar::familiesKnowTheirCommands_data()
{
    QTest::addColumn<QString>("profile");
    QTest::addColumn<QByteArray>("sent");
    QTest::addColumn<QByteArray>("answered");

    const auto row = [](const char *profile, const QByteArray &sent, const QByteArray &line) {
        const QByteArray answered = line.isEmpty() ? "\r\nERROR\r\n" : "\r\n" + line + "\r\n\r\nOK\r\n";
        QTest::addRow("%s %s", profile, sent.constData()) << QString::fromLatin1(profile) << sent << answered;
    };
    row("wcdma", "AT+CPIN?", "+CPIN: READY");
    row("wcdma", "AT+CGMR", "+CGMR: 11.002.03.01.00");
    row("wcdma", "AT+GMR", "11.002.03.01.00");
    row("wcdma", "AT+JVN", "+JVN: EM7W-B112D03");
    row("wcdma", "AT+JPCB?", "+JPCB: EM7W-PCB-A");
    row("wcdma", "AT+JANT?", "+JANT: 1");
    row("wcdma", "AT+JUSIM=?", "+JUSIM: 1");
    row("wcdma", "AT+JPAS?", "+JPAS: 5,2,4");
    row("wcdma", "AT^SYSINFO", "^SYSINFO:2,3,0,5,1,0,4");
    row("wcdma", "AT+CNUM", "+CNUM: \"\",\"+12025550123\",145");
    row("wcdma", "AT+CIMI", "001010123456789");
    row("wcdma", "AT+CRSM=176,12258,0,0,10", "+CRSM: 144,0,\"98000101214365870951\"");
    row("wcdma", "AT+CRSM=176,12258,0,8,10", "+CRSM: 103,0");
    row("wcdma", "AT+CRSM=176,28423,0,0,9", "+CRSM: 144,0,\"080910101032547698\"");
    row("wcdma", "AT+CRSM=176,1,0,0,1", "+CRSM: 148,4");
    row("wcdma", "AT^HDRCSQ", "");
    row("tdscdma", "AT^SYSINFO", "^SYSINFO:2,3,0,15,1,0,8");
    row("tdscdma", "AT+CGMM", "EM7-T");
    row("cdma", "AT^SYSINFO", "^SYSINFO:2,255,0,8,1");
    row("cdma", "AT^HDRCSQ", "^HDRCSQ: 80");
    row("cdma", "AT^CPIN?", "^CPIN: READY");
    row("cdma", "AT+CPIN?", "");
    row("cdma", "AT+COPS?", "");
    row("cdma", "AT+GSN", "A1000009B1C2D3");
    row("standard", "AT^SYSINFO", "");
    row("standard", "AT+JPAS?", "");
    row("standard", "AT+JOPRT?", "");
    row("standard", "AT+CGMR", "1.0");
    row("standard", "AT+COPS?", "+COPS: 0,0,\"Test Network\",2");
}

void TestEmulatorGrammar::familiesKnowTheirCommands()
{
    QFETCH(QString, profile);
    QFETCH(QByteArray, sent);
    QFETCH(QByteArray, answered);
    TestCard card(profile);
    TestPort port(card.path(u"at"_s));
    port.exchange("ATE0\r", "OK\r\n");
    QCOMPARE(port.exchange(sent + "\r\n", answered), answered);
}

QTEST_GUILESS_MAIN(TestEmulatorGrammar)
#include "tst_emulator_grammar.moc"
