// SPDX-License-Identifier: GPL-3.0-or-later
// The ports as things: pace, faults, pulling the stick and pushing it in.
#include "testcard.h"

#include <QElapsedTimer>
#include <sys/resource.h>
#include <termios.h>

namespace
{

constexpr char sent[] = "AT+CSQ\r\n";
const QByteArray reply = "\r\n+CSQ: 20,99\r\n\r\nOK\r\n";

const Rows<QByteArray, QByteArray> faultsRows{
    {"no reply", R"("kind": "noreply")", {}},
    {"garbage in front", R"("kind": "garbage", "text": "x\u0000\u00ff")", QByteArray("x\0\xff", 3) + reply},
    {"report in mid-reply", R"("kind": "interleave", "text": "RING")",
     "\r\n+CSQ: 20,99\r\n\r\nRING\r\n\r\nOK\r\n"},
    {"report inside a line", R"("kind": "interleave", "text": "RING", "at": 8)",
     "\r\n+CSQ: \r\nRING\r\n20,99\r\n\r\nOK\r\n"},
    {"cut off", R"("kind": "truncate", "at": 9)", "\r\n+CSQ: 2"},
    {"cut off behind its end", R"("kind": "truncate", "at": 900)", reply},
    {"very long", R"("kind": "long", "bytes": 102400)",
     "\r\n+CSQ: 20,99\r\n" + (QByteArray(62, 'x') + "\r\n").repeated(1600) + "\r\nOK\r\n"},
    {"echo storm", R"("kind": "echostorm", "bytes": 3)", "AT+CSQ\rAT+CSQ\rAT+CSQ\r" + reply},
    {"refused in words", R"("kind": "refuse", "text": "BUSY")", "\r\nBUSY\r\n"},
    {"refused plainly", R"("kind": "refuse")", "\r\nERROR\r\n"},
    {"refused by number, as +CMEE has it", R"("kind": "refuse", "code": 14)", "\r\n+CME ERROR: SIM busy\r\n"},
};

} // namespace

class TestEmulatorLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faults_data() { addRows(faultsRows); }
    void faults()
    {
        const auto &[name, fault, answered] = currentRow(faultsRows);
        auto [card, port] = Talk();
        QVERIFY(card.tell(R"({"command": "fault", "match": "at+csq", %1})", fault));
        QCOMPARE(port.exchange("AT+CGMM\r", "OK\r\n"), "\r\nEM7-W\r\n\r\nOK\r\n");
        port.write(sent);
        if (!answered.isEmpty())
            QCOMPARE(port.readUntil(answered), answered);
        QCOMPARE(port.exchange(sent, reply), reply);
    }

    void faultCountsAndMatches()
    {
        auto [card, port] = Talk();
        QVERIFY(card.tell(R"({"command": "fault", "kind": "refuse", "match": "+CSQ", "count": 2})"));
        QVERIFY(card.tell(R"({"command": "fault", "kind": "interleave", "text": "+X", "count": 0})"));
        for (int i = 0; i < 2; ++i)
            QCOMPARE(port.exchange(sent, "ERROR\r\n"), "\r\n+X\r\n\r\nERROR\r\n");
        for (int i = 0; i < 3; ++i)
            QCOMPARE(port.exchange(sent, "OK\r\n"), "\r\n+CSQ: 20,99\r\n\r\n+X\r\n\r\nOK\r\n");
        QVERIFY(card.tell(R"({"command": "clear"})"));
        QCOMPARE(port.exchange(sent, "OK\r\n"), reply);
    }

    void cutReplyPauses()
    {
        auto [card, port] = Talk();
        QVERIFY(card.tell(R"({"command": "fault", "kind": "cut", "at": 5, "ms": 4000})"));
        QCOMPARE(port.exchange(sent, reply.left(5)), reply.left(5));
        QVERIFY(card.advance(1000));
        QCOMPARE(port.readUntil("\n", 0), "");
        QVERIFY(card.advance(3000));
        QCOMPARE(port.readUntil("OK\r\n"), reply.mid(5));
    }

    void lateReply()
    {
        auto [card, port] = Talk();
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

    void paceAndDelay()
    {
        auto [card, port] = Talk();
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

    void silenceSwallowsCommands()
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

    // The second time more is under way than fits into the port.
    void unansweredBytesDoNotWaitForTheNextClient()
    {
        for (const QByteArray filling : {"1", "3000000"}) {
            TestCard card;
            QVERIFY(card.tell(R"({"command": "report", "text": "RING"})"));
            QVERIFY(card.tell(R"({"command": "fault", "kind": "long", "count": 3, "bytes": %1})", filling));
            QVERIFY(TestPort(card.path(u"at"_s)).write("AT+CSQ\rAT+CSQ\rAT+CSQ\r") &&
                    card.hears(u"AT+CSQ"_s));
            QVERIFY(card.isLeft());
            TestPort port(card.path(u"at"_s));
            QCOMPARE(port.exchange("AT\r", "OK\r\n"), "AT\r\r\nOK\r\n");
        }
    }

    void clientThatDoesNotReadLosesNothing()
    {
        auto [card, port] = Talk();
        const qsizetype most = 6 * (300000 + reply.size());
        QVERIFY(card.tell(
            R"({"command": "fault", "kind": "long", "bytes": 300000, "match": "+CSQ", "count": 6})"));
        QVERIFY(port.write(QByteArray(sent).repeated(6)));
        QCOMPARE(port.count(most), most);
    }

    void oneOfTwoClientsMayLeave()
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

    void portStartsRaw()
    {
        TestCard card;
        const TestPort port(card.path(u"voice"_s));
        termios settings{};
        QCOMPARE(tcgetattr(port.descriptor(), &settings), 0);
        QCOMPARE(settings.c_lflag & (ECHO | ICANON | ISIG), 0U);
        QCOMPARE(settings.c_oflag & OPOST, 0U);
        QCOMPARE(cfgetospeed(&settings), speed_t(B115200));
    }

    void unplugEndsClientsAndPlugIsNew()
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

    void idlePortTakesNoTime()
    {
        TestCard card;
        { // A port that was open and is no more is the one that might spin.
            TestPort port(card.path(u"at"_s));
            port.exchange("AT\r", "OK\r\n");
        }
        const auto used = [] {
            rusage usage{};
            getrusage(RUSAGE_SELF, &usage);
            return usage.ru_utime.tv_sec * 1000000 + usage.ru_utime.tv_usec +
                   usage.ru_stime.tv_sec * 1000000 + usage.ru_stime.tv_usec;
        };
        const auto before = used();
        QElapsedTimer waited;
        waited.start();
        TestPort port(card.path(u"at"_s));
        QVERIFY(!port.waitForBytes(500));
        QVERIFY2(used() - before < waited.elapsed() * 1000 / 5,
                 "an idle card must not use a fifth of a core");
    }

    void nothingIsLeftBehind()
    {
        const qsizetype threadsBefore = threads();
        static_cast<void>(TestCard()); // what is made once is there after this
        const qsizetype descriptors = openDescriptors();
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
};

QTEST_GUILESS_MAIN(TestEmulatorLine)
#include "tst_emulator_line.moc"
