// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/parseatres.h"

#include <QTest>

namespace
{

constexpr int any = -1;

struct Case {
    const char *command;
    const char *reply;
    int code; ///< with the echo, and without it when the command is known
    int bare; ///< from the reply alone; `any` where nothing is laid down
};

constexpr const char *ok = "\r\nOK\r\n";
constexpr const char *error = "\r\nERROR\r\n";
constexpr const char *wrongPin = "\r\n+CME ERROR: incorrect password\r\n";
constexpr const char *pukRequired = "\r\n+CME ERROR: SIM PUK required\r\n";
constexpr const char *simFailure = "\r\n+CME ERROR: SIM failure\r\n";
constexpr const char *simBusy = "\r\n+CME ERROR: SIM busy\r\n";

const Case cases[] = {
    {"AT", error, 103, any},
    {"AT+CMGS=20", "\r\n+CMGS: 7\r\n\r\nOK\r\n", 86, 86},
    {"AT+CMGS=20", "\r\n+CMS ERROR: 500\r\n", 103, any},
    {"AT+CMGW=20", "\r\n+CMGW: 7\r\n\r\nERROR\r\n", 103, 103},
    {"ATD*99#", "\r\nNO CARRIER\r\n", 94, any},
    {"ATD*99#", "\r\nBUSY\r\n", 95, any},
    {"ATD5551234;", "\r\nNO ANSWER\r\n", 96, any},
    {"ATD*99#", "\r\nCONNECT 7200000\r\n", 97, any},
    {"ATD*99#", "\r\nNO DIALTONE\r\n", 103, any},
    {"AT^CPIN?", "\r\n^CPIN: SIM PIN\r\n\r\nOK\r\n", 1, 1},
    {"AT+CPIN?", "\r\n+CPIN: SIM PUK\r\n\r\nOK\r\n", 4, 4},
    {"AT+CPIN?", "\r\n+CPIN: SIM PIN2\r\n\r\nOK\r\n", 0, 0},
    {"AT+CPIN?", "\r\n+CPIN: PH-NET PIN\r\n\r\nOK\r\n", 103, 103},
    {"AT+CPIN?", simBusy, 2, 2},
    {"AT+CPIN?", simFailure, 3, 3},
    {"AT+CPIN?", "\r\n+CME ERROR: 14\r\n", 2, any},
    {"AT+CPIN?", "\r\n+CME ERROR: 11\r\n", 1, any},
    {"AT+CPIN?", "\r\n+CME ERROR: 141\r\n", 103, any},
    {"AT+CLCK=\"SC\",2", "\r\n+CLCK: 1\r\n\r\nOK\r\n", 13, 13},
    {"AT+CLCK=\"SC\",2", pukRequired, 7, 7},
    {"AT+CLCK=\"SC\",1,\"1234\"", ok, 15, 98},
    {"AT+CLCK=\"SC\",1,\"1234\"", wrongPin, 16, 99},
    {"AT+CLCK=\"SC\",1,\"1234\"", "\r\n+CME ERROR: 16\r\n", 16, 99},
    {"AT+CLCK=\"SC\",1,\"1234\"", simFailure, 3, 3},
    {"AT+CLCK=\"SC\",1,\"1234\"", simBusy, 103, 2},
    {"AT+CPWD=\"SC\",\"1234\",\"4711\"", pukRequired, 21, 7},
    {"AT+CPWD=\"SC\",\"1234\",\"4711\"", simBusy, 22, 2},
    {"AT+CGMR", error, 63, any},
    {"AT+CPBS=\"ME\"", ok, '0', any},
    {"AT+CPBS=\"ME\"", error, '1', any},
    {"AT+CPMS=\"SM\"", "\r\n+CPMS: 1,20\r\n\r\nOK\r\n", 44, 44},
    {"AT+CPMS=\"XX\"", "\r\n+CMS ERROR: 302\r\n", 45, any},
    {"AT+CPMS?", "\r\n+CPMS: \"SM\",1,20\r\n\r\nOK\r\n", 46, 44},
    {"AT+CPMS?", error, 47, any},
    {"AT+CSQ", "\r\n+CSQ: ,99\r\n\r\nOK\r\n", 103, 103},
    {"AT+CSQ", error, 103, any},
    {"AT+CCWA=1,1", ok, 106, any},
    {"AT+CCWA=1,1", error, 107, any},
    {"AT+JOPRT?", "\r\n+JOPRT: 1\r\n\r\nOK\r\n", 28, any},
    {"AT+JOPRT?", "\r\n+JOPRT: 0\r\n\r\nOK\r\n", 29, any},
    {"AT+JOPRT=5", ok, 26, any},
    {"AT+JOPRT=5", error, 103, any},
    {"AT+COPS?", "", 103, 103},
    {"AT+COPS?", "\r\n^SYSINFO: 2\r\n", 103, 103},
};

} // namespace

class TestParseAtRes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void codes()
    {
        for (const auto &[command, reply, code, bare] : cases) {
            const QByteArray name = QByteArray(command) + ": " + QByteArray(reply).simplified();
            const QByteArray line = QByteArray(command) + "\r\n";
            QByteArray alone = reply;
            QByteArray echoed = alone.isEmpty() ? alone : QByteArray(command) + "\r" + reply;
            QVERIFY2(corva::classifyReply(alone, line) == code, name.constData());
            QVERIFY2(corva::classifyReply(echoed, line) == code, name.constData());
            QVERIFY2(Parse_At_Res(echoed.data()) == unsigned(code), name.constData());
            QVERIFY2(bare == any || Parse_At_Res(alone.data()) == unsigned(bare), name.constData());
        }
    }

    void signalLevels()
    {
        const std::pair<int, int> levels[] = {{0, 35},  {1, 30},  {10, 30}, {11, 31}, {15, 31},
                                              {16, 32}, {22, 32}, {23, 33}, {28, 33}, {29, 34},
                                              {31, 34}, {32, 35}, {99, 35}, {-1, 103}};
        for (const auto &[rssi, code] : levels)
            QCOMPARE(
                corva::classifyReply("\r\n+CSQ: " + QByteArray::number(rssi) + ",0\r\nOK\r\n", "AT+CSQ\r\n"),
                code);
    }

    void plainResults()
    {
        QCOMPARE(corva::classifyReply(ok, "AT+CMGF=0\r\n"), 48);
        QCOMPARE(corva::classifyReply("AT+CMGF=0\r\r\nOK\r\n", "AT+CMGF=0\r\n"), 48);
        QCOMPARE(corva::classifyReply(error, "AT+CMGF=0\r\n"), 49);
        QByteArray echoed = "AT+CMGF=0\r\r\nOK\r\n";
        QCOMPARE(Parse_At_Res(echoed.data()), 103U);
        QCOMPARE(Parse_At_Res(nullptr), 103U);
    }

    /// What a network or a person wrote must not pass for an echo, nor another command's report for an
    /// answer.
    void textsInsideReplies()
    {
        QCOMPARE(corva::classifyReply("\r\n+CLCK: 1\r\n\r\nCOMBAT\r\nOK\r\n", "AT+CLCK=\"SC\",2\r\n"), 13);
        QCOMPARE(corva::classifyReply("\r\n+CPIN: READY\r\n\r\n+CSQ: 9,9\r\nOK\r\n", "AT+CSQ\r\n"), 30);
        QCOMPARE(corva::classifyReply("\r\n+CUSD: 0,\"AT+CSQ\"\r\n\r\nOK\r\n", "AT+CPBS=\"SM\"\r\n"), 48);
        QCOMPARE(corva::classifyReply("\r\n+CMGS: 3\r\n\r\nOK\r\n", "0011000A91\x1a"), 86);
    }
};

QTEST_APPLESS_MAIN(TestParseAtRes)
#include "tst_parseatres.moc"
