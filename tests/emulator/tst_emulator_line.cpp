// SPDX-License-Identifier: GPL-3.0-or-later
// The ports as things: pace, faults, pulling the stick and pushing it in.
#include "testcard.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTest>
#include <sys/resource.h>
#include <termios.h>

class TestEmulatorLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faults_data();
    void faults();
    void faultCountsAndMatches();
    void cutReplyPauses();
    void lateReply();
    void paceAndDelay();
    void silenceSwallowsCommands();
    void unansweredBytesDoNotWaitForTheNextClient();
    void clientThatDoesNotReadLosesNothing();
    void clientThatLeavesWithoutReadingBlocksNobody();
    void oneOfTwoClientsMayLeave();
    void portStartsRaw();
    void unplugEndsClientsAndPlugIsNew();
    void idlePortTakesNoTime();
    void nothingIsLeftBehind();
};

namespace
{

QStringList openDescriptors()
{
    return QDir(u"/proc/self/fd"_s).entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot);
}

qsizetype threads()
{
    return QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

constexpr char sent[] = "AT+CSQ\r\n";
const QByteArray reply = "\r\n+CSQ: 20,99\r\n\r\nOK\r\n";

} // namespace

void TestEmulatorLine::faults_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<QByteArray>("answered");
    QTest::newRow("no reply") << QByteArray(R"("kind": "noreply")") << QByteArray();
    QTest::newRow("garbage in front")
        << QByteArray(R"("kind": "garbage", "text": "x\u0000\u00ff")") << QByteArray("x\0\xff", 3) + reply;
    QTest::newRow("report in mid-reply") << QByteArray(R"("kind": "interleave", "text": "RING")")
                                         << QByteArray("\r\n+CSQ: 20,99\r\n\r\nRING\r\n\r\nOK\r\n");
    QTest::newRow("report inside a line") << QByteArray(R"("kind": "interleave", "text": "RING", "at": 8)")
                                          << QByteArray("\r\n+CSQ: \r\nRING\r\n20,99\r\n\r\nOK\r\n");
    QTest::newRow("cut off") << QByteArray(R"("kind": "truncate", "at": 9)") << QByteArray("\r\n+CSQ: 2");
    QTest::newRow("cut off behind its end") << QByteArray(R"("kind": "truncate", "at": 900)") << reply;
    QTest::newRow("very long") << QByteArray(R"("kind": "long", "bytes": 102400)")
                               << "\r\n+CSQ: 20,99\r\n" + (QByteArray(62, 'x') + "\r\n").repeated(1600) +
                                      "\r\nOK\r\n";
    QTest::newRow("echo storm") << QByteArray(R"("kind": "echostorm", "bytes": 3)")
                                << "AT+CSQ\rAT+CSQ\rAT+CSQ\r" + reply;
    QTest::newRow("refused in words") << QByteArray(R"("kind": "refuse", "text": "+CME ERROR: SIM busy")")
                                      << QByteArray("\r\n+CME ERROR: SIM busy\r\n");
    QTest::newRow("refused plainly") << QByteArray(R"("kind": "refuse")") << QByteArray("\r\nERROR\r\n");
    QTest::newRow("refused by number, as +CMEE has it")
        << QByteArray(R"("kind": "refuse", "code": 14)") << QByteArray("\r\n+CME ERROR: 14\r\n");
}

void TestEmulatorLine::faults()
{
    QFETCH(QByteArray, fault);
    QFETCH(QByteArray, answered);
    TestCard card;
    TestPort port(card.path(u"at"_s));
    port.exchange("ATE0+CMEE=1\r", "OK\r\n");
    QVERIFY(card.tell(R"({"command": "fault", "match": "at+csq", )" + fault + '}'));
    QCOMPARE(port.exchange("AT+CGMM\r", "OK\r\n"), "\r\nEM7-W\r\n\r\nOK\r\n");
    port.write(sent);
    QCOMPARE(port.readUntil(answered.isEmpty() ? "<none>" : answered, answered.isEmpty() ? 0 : 5000),
             answered);
    QCOMPARE(port.exchange(sent, reply), reply);
}

void TestEmulatorLine::faultCountsAndMatches()
{
    TestCard card;
    TestPort port(card.path(u"at"_s));
    port.exchange("ATE0\r", "OK\r\n");
    QVERIFY(card.tell(R"({"command": "fault", "kind": "refuse", "match": "+CSQ", "count": 2})"));
    QVERIFY(card.tell(R"({"command": "fault", "kind": "interleave", "text": "+X", "count": 0})"));
    for (int i = 0; i < 2; ++i)
        QCOMPARE(port.exchange(sent, "ERROR\r\n"), "\r\n+X\r\n\r\nERROR\r\n");
    for (int i = 0; i < 3; ++i)
        QCOMPARE(port.exchange(sent, "OK\r\n"), "\r\n+CSQ: 20,99\r\n\r\n+X\r\n\r\nOK\r\n");
    QVERIFY(card.tell(R"({"command": "clear"})"));
    QCOMPARE(port.exchange(sent, "OK\r\n"), reply);
}

void TestEmulatorLine::cutReplyPauses()
{
    TestCard card;
    TestPort port(card.path(u"at"_s));
    port.exchange("ATE0\r", "OK\r\n");
    QVERIFY(card.tell(R"({"command": "fault", "kind": "cut", "at": 5, "ms": 4000})"));
    QCOMPARE(port.exchange(sent, reply.left(5)), reply.left(5));
    QVERIFY(card.advance(1000));
    QCOMPARE(port.readUntil("\n", 0), "");
    QVERIFY(card.advance(3000));
    QCOMPARE(port.readUntil("OK\r\n"), reply.mid(5));
}

void TestEmulatorLine::lateReply()
{
    TestCard card;
    TestPort port(card.path(u"at"_s));
    port.exchange("ATE0\r", "OK\r\n");
    QVERIFY(card.tell(R"({"command": "fault", "kind": "late", "ms": 60000, "match": "+CSQ"})"));
    port.write(sent);
    QVERIFY(card.hears(u"AT+CSQ"_s));
    port.write("AT+CGMM\r");
    QVERIFY(card.advance(30000));
    QCOMPARE(port.readUntil("\n", 0), "");
    QVERIFY(card.advance(30000));
    QCOMPARE(port.readUntil("OK\r\n"), reply);
    QCOMPARE(port.readUntil("OK\r\n"), "\r\nEM7-W\r\n\r\nOK\r\n");
}

void TestEmulatorLine::paceAndDelay()
{
    TestCard card;
    TestPort port(card.path(u"at"_s));
    port.exchange("ATE0\r", "OK\r\n");
    QVERIFY(card.tell(R"({"command": "pace", "bytesPerSecond": 10, "delay": 2000})"));
    QVERIFY(card.tell(R"({"command": "delay", "match": "+CS", "ms": 5000})"));
    QVERIFY(card.tell(R"({"command": "delay", "match": "AT+CSQ", "ms": 30000})"));
    port.write(sent);
    QVERIFY(card.hears(u"AT+CSQ"_s));
    QVERIFY(card.advance(10000));
    QCOMPARE(port.readUntil("\n", 0), "");
    QVERIFY(card.advance(20000 + 500));
    const QByteArray first = port.readUntil("OK\r\n", 20);
    QVERIFY(!first.isEmpty() && first.size() < reply.size());
    QVERIFY(card.advance(10000));
    QCOMPARE(first + port.readUntil("OK\r\n"), reply);
}

void TestEmulatorLine::silenceSwallowsCommands()
{
    TestCard card;
    TestPort port(card.path(u"at"_s));
    QVERIFY(card.tell(R"({"command": "silence", "ms": 3000})"));
    port.write("AT+CFUN=0\r");
    QVERIFY(card.tell(R"({"command": "report", "text": "RING"})"));
    QCOMPARE(port.readUntil("\n", 50), "");
    QVERIFY(card.advance(3000));
    QCOMPARE(port.exchange("AT+CFUN?\r", "OK\r\n"), "AT+CFUN?\r\r\n+CFUN: 1\r\n\r\nOK\r\n");
    QVERIFY(card.tell(R"({"command": "silence"})"));
    QVERIFY(card.advance(3600000));
    port.write("AT\r");
    QCOMPARE(port.readUntil("\n", 50), "");
    QVERIFY(card.tell(R"({"command": "speak"})"));
    QCOMPARE(port.exchange("AT\r", "OK\r\n"), "AT\r\r\nOK\r\n");
}

void TestEmulatorLine::unansweredBytesDoNotWaitForTheNextClient()
{
    TestCard card;
    QVERIFY(card.tell(R"({"command": "report", "text": "+CMTI: \"SM\",1"})"));
    TestPort(card.path(u"at"_s)).write("AT+CSQ\r");
    QVERIFY(card.hears(u"AT+CSQ"_s));
    QTRY_VERIFY(!card.control(R"({"command": "show"})")[u"state"_s][u"ports"_s][u"at"_s][u"open"_s].toBool());
    TestPort port(card.path(u"at"_s));
    QCOMPARE(port.exchange("AT\r", "OK\r\n"), "AT\r\r\nOK\r\n");
}

void TestEmulatorLine::clientThatDoesNotReadLosesNothing()
{
    TestCard card;
    TestPort port(card.path(u"at"_s));
    port.exchange("ATE0\r", "OK\r\n");
    constexpr int lines = 6;
    constexpr int filling = 300000;
    QVERIFY(
        card.tell(R"({"command": "fault", "kind": "long", "bytes": 300000, "match": "+CSQ", "count": 6})"));
    for (int i = 0; i < lines; ++i)
        QVERIFY(port.write(sent));
    QCOMPARE(port.count(lines * (filling + reply.size())), lines * (filling + reply.size()));
}

void TestEmulatorLine::clientThatLeavesWithoutReadingBlocksNobody()
{
    TestCard card;
    QVERIFY(
        card.tell(R"({"command": "fault", "kind": "long", "bytes": 3000000, "match": "+CSQ", "count": 3})"));
    {
        TestPort port(card.path(u"at"_s));
        QVERIFY(port.write("ATE0\rAT+CSQ\rAT+CSQ\rAT+CSQ\r"));
        QVERIFY(card.hears(u"AT+CSQ"_s));
    }
    QTRY_VERIFY(!card.control(R"({"command": "show"})")[u"state"_s][u"ports"_s][u"at"_s][u"open"_s].toBool());
    TestPort port(card.path(u"at"_s));
    QCOMPARE(port.exchange("AT\r", "OK\r\n"), "\r\nOK\r\n");
}

void TestEmulatorLine::oneOfTwoClientsMayLeave()
{
    TestCard card;
    for (int i = 0; i < 50; ++i) {
        TestPort stays(card.path(u"at"_s));
        { // Opened and closed at once, so that the kernel may merge its reports of both.
            const TestPort leaves(card.path(u"at"_s));
        }
        QCOMPARE(stays.exchange("AT\r", "OK\r\n"), "AT\r\r\nOK\r\n");
    }
}

void TestEmulatorLine::portStartsRaw()
{
    TestCard card;
    const TestPort port(card.path(u"voice"_s));
    termios settings{};
    QCOMPARE(tcgetattr(port.descriptor(), &settings), 0);
    QCOMPARE(settings.c_lflag & (ECHO | ICANON | ISIG), 0U);
    QCOMPARE(settings.c_oflag & OPOST, 0U);
    QCOMPARE(cfgetospeed(&settings), speed_t(B115200));
}

void TestEmulatorLine::unplugEndsClientsAndPlugIsNew()
{
    TestCard card(u"locked"_s);
    TestPort port(card.path(u"at"_s));
    port.exchange("ATE0+CPIN=\"1234\"\r", "OK\r\n");
    QVERIFY(card.tell(R"({"command": "delay", "match": "+CSQ", "ms": 1000})"));
    port.write("AT+CSQ\r");
    QVERIFY(card.tell(R"({"command": "unplug"})"));
    QVERIFY(port.isAtEnd());
    QVERIFY(!QFileInfo(card.path(u"at"_s)).isSymLink());
    QVERIFY(!card.control(R"({"command": "unplug"})")[u"ok"_s].toBool());
    QCOMPARE(card.control(R"({"command": "plug", "at": "../at"})")[u"error"_s].toString(),
             u"\"../at\" cannot be a port's name"_s);
    QCOMPARE(card.control(R"({"command": "plug", "at": "x", "voice": "x"})")[u"error"_s].toString(),
             u"two ports cannot have one name"_s);
    QVERIFY(card.tell(R"({"command": "plug", "at": "at2"})"));
    QVERIFY(!QFileInfo(card.path(u"at"_s)).isSymLink());
    TestPort again(card.path(u"at2"_s));
    QCOMPARE(again.exchange("AT+CPIN?\r", "OK\r\n"), "AT+CPIN?\r\r\n+CPIN: SIM PIN\r\n\r\nOK\r\n");
    QVERIFY(card.advance(2000));
    QCOMPARE(card.pending(again), "");
}

void TestEmulatorLine::idlePortTakesNoTime()
{
    TestCard card;
    { // A port that was open and is no more is the one that might spin.
        TestPort port(card.path(u"at"_s));
        port.exchange("AT\r", "OK\r\n");
    }
    const auto used = [] {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_utime.tv_sec * 1000000 + usage.ru_utime.tv_usec + usage.ru_stime.tv_sec * 1000000 +
               usage.ru_stime.tv_usec;
    };
    const auto before = used();
    QElapsedTimer waited;
    waited.start();
    TestPort port(card.path(u"at"_s));
    QVERIFY(!port.waitForBytes(500));
    QVERIFY2(used() - before < waited.elapsed() * 1000 / 5, "an idle card must not use a fifth of a core");
}

void TestEmulatorLine::nothingIsLeftBehind()
{
    const qsizetype threadsBefore = threads();
    {
        TestCard warmUp;
    }
    const QStringList descriptors = openDescriptors();
    for (int i = 0; i < 20; ++i) {
        TestCard card;
        TestPort port(card.path(u"at"_s));
        port.write("AT+COPS=?\r");
        QVERIFY(card.tell(R"({"command": "unplug"})"));
        QVERIFY(card.tell(R"({"command": "plug"})"));
        TestPort again(card.path(u"at"_s));
        QCOMPARE(again.exchange("AT\r", "OK\r\n"), "AT\r\r\nOK\r\n");
    }
    QCOMPARE(openDescriptors(), descriptors);
    QTRY_COMPARE(threads(), threadsBefore);
}

QTEST_GUILESS_MAIN(TestEmulatorLine)
#include "tst_emulator_line.moc"
