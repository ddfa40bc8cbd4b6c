// SPDX-License-Identifier: GPL-3.0-or-later
// What the card makes of the bytes of a command line, and the form of its answers: ITU-T V.250 5.
#include "testcard.h"

#include <QRandomGenerator>

namespace
{

const QByteArray okay = "\r\nOK\r\n";
const QByteArray error = "\r\nERROR\r\n";
const QByteArray signal = "\r\n+CSQ: 20,99\r\n";

// What comes behind the line's echo.
const Rows<QByteArray, QByteArray> answersRows{
    {"lower case", "at+csq\r", signal + okay},
    {"basic commands stand side by side", "ATQ0V1X4&C1+CSQ\r", signal + okay},
    {"stops at the first refusal, and tells what ran before", "AT+CSQ;+NOSUCH;+CSQ\r", signal + error},
    {"without a line end the next command sticks to it", "AT+CGMRAT+CSQ\r", error},
    {"blanks between and within", "AT +CSQ ; +CSQ\r", signal + signal + okay},
    {"semicolon and comma inside quotes", "AT+CGDCONT=1,\"IP\",\"a;b,c\";+CGDCONT?\r",
     "\r\n+CGDCONT: 1,\"IP\",\"a;b,c\",\"\",0,0\r\n" + okay},
    {"open quote", "AT+CSCS=\"GSM\r", error},
    {"text behind a quote", "AT+CSCS=\"GSM\"x\r", error},
    {"number too large for a number", "AT+CMEE=99999999999\r", error},
    {"number above the range", "AT+CMEE=3\r", error},
    {"unknown form of a known command", "AT+CSQ?\r", error},
    {"test form of a known command without a list", "AT+CIMI=?\r", okay},
    {"test form of an unknown command", "AT+XYZZY=?\r", error},
    {"line longer than the card takes", "AT" + QByteArray(5000, '1') + "\r", error},
    {"S register", "ATS7=60S7?\r", "\r\n060\r\n" + okay},
    {"S register out of range", "ATS7=256\r", error},
    {"dial string goes to the end of the line", "ATD*99***1#;+CSQ\r", "\r\nNO CARRIER\r\n"},
    {"errors as numbers", "AT+CMEE=1;+CFUN=9\r", "\r\n+CME ERROR: 50\r\n"},
    {"message errors as numbers", "AT+CMGR=7\r", "\r\n+CMS ERROR: 321\r\n"},
    {"file of the SIM, beyond its end", "AT+CRSM=176,12258,0,8,10\r", "\r\n+CRSM: 103,0\r\n" + okay},
    {"file that the SIM has not", "AT+CRSM=176,1,0,0,1\r", "\r\n+CRSM: 148,4\r\n" + okay},
};

const Rows<QByteArray, QByteArray> echoesRows{
    {"line feed behind the line is not echoed", "AT\r\nAT\r\n", "AT\r" + okay + "AT\r" + okay},
    {"noise before the line", "\xff}#AT\r", "\xff}#AT\r" + okay},
    {"NUL bytes are skipped", QByteArray("A\0T\0\r", 5), "AT\r" + okay},
    {"AAT", "AAT\r", "AAT\r" + okay},
    {"backspace", "AT+CSX\bQ\r", "AT+CSX\b \bQ\r" + signal + okay},
    {"backspace stops at AT", "AT\b\b\b+CSQ\r", "AT+CSQ\r" + signal + okay},
    {"A/ repeats at once", "AT+CSQ\rA/", "AT+CSQ\r" + signal + okay + "A/" + signal + okay},
    {"echo off holds from the next line", "ATE0\rAT+CSQ\r", "ATE0\r" + okay + signal + okay},
    {"short answers", "ATE0V0\rAT+CSQ\rAT+NO\r", "ATE0V0\r0\r+CSQ: 20,99\r\n0\r4\r"},
    {"no result codes", "ATE0Q1\rAT+CSQ\rATQ0\r", "ATE0Q1\r" + signal + okay},
    {"own line end and line feed", "ATE0S3=33S4=42\rAT+CSQ!", "ATE0S3=33S4=42\r!*OK!*!*+CSQ: 20,99!*!*OK!*"},
};

void compare(const QByteArray &sent, const QByteArray &answered)
{
    TestCard card;
    TestPort port(card.path(u"at"_s));
    QCOMPARE(port.exchange(sent, answered), answered);
    QCOMPARE(card.pending(port), QByteArray());
}

} // namespace

class TestEmulatorGrammar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data() { addRows(answersRows); }
    void answers()
    {
        const auto &[name, sent, answered] = currentRow(answersRows);
        compare(sent, sent + answered);
    }

    void echoes_data() { addRows(echoesRows); }
    void echoes()
    {
        const auto &[name, sent, answered] = currentRow(echoesRows);
        compare(sent, answered);
    }

    // Pieces of commands and noise in any order; afterwards the card must still answer.
    void randomBytesDoNoHarm()
    {
        const QByteArrayList pieces =
            QByteArray("AT|+C|+CREG|=|?|=?|\"|;|,|2147483648|-1|\r|\r\n|A/|\b|\x1a|+COPS=1,2|ATS3|D|^SYSINFO|"
                       "\xff|+CRSM=176,12258,|+CPIN=|+CSCS=\"UCS2\"|+CMGL=4|+CPBW=|&F|E1")
                .split('|');
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

    void settingsStayUntilResetAndAreThePortsOwn()
    {
        TestCard card;
        TestPort(card.path(u"at"_s)).exchange("ATE0+CMEE=2\r", "OK\r\n");
        TestPort port(card.path(u"at"_s));
        QCOMPARE(port.exchange("AT+CMEE?\r", "OK\r\n"), "\r\n+CMEE: 2\r\n\r\nOK\r\n");
        TestPort modem(card.path(u"modem"_s));
        QCOMPARE(modem.exchange("AT+CMEE?\r", "OK\r\n"), "AT+CMEE?\r\r\n+CMEE: 0\r\n\r\nOK\r\n");
        port.exchange("ATZ\r", "OK\r\n");
        QCOMPARE(port.exchange("AT+CMEE?\r", "OK\r\n"), "AT+CMEE?\r\r\n+CMEE: 0\r\n\r\nOK\r\n");
    }
};

QTEST_GUILESS_MAIN(TestEmulatorGrammar)
#include "tst_emulator_grammar.moc"
