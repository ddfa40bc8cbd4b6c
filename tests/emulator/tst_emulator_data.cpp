// SPDX-License-Identifier: GPL-3.0-or-later
// Data calls with a network behind them, the card's own data connection, and ports on real devices.
#include "testcard.h"

#include <QFileInfo>
#include <csignal>
#include <termios.h>

namespace
{

const QByteArray noCarrier = "\r\nNO CARRIER\r\n";

void dropDtr(const TestPort &port)
{
    termios settings{};
    tcgetattr(port.descriptor(), &settings);
    cfsetspeed(&settings, B0);
    tcsetattr(port.descriptor(), TCSANOW, &settings);
}

using Act = void (*)(TestCard &, TestPort &);
constexpr Act nothing = [](TestCard &, TestPort &) {};
constexpr Act say = [](TestCard &, TestPort &port) { QCOMPARE(port.exchange("bye!", "bye!"), "bye!"); };
constexpr Act drop = [](TestCard &card, TestPort &) { QVERIFY(card.tell(R"({"command": "drop-data"})")); };
constexpr Act hangUp = [](TestCard &, TestPort &port) { dropDtr(port); };

const Rows<QByteArray, Act> callEndsRows{
    {"network ends", "head -c 4", say},
    {"no such program", "/nowhere/pppd", nothing},
    {"network drops it", "cat", drop},
    {"DTR is dropped", "cat", hangUp},
    {"network that does not listen is killed", "sh -c 'trap : TERM; while :; do sleep 0.1; done'", drop},
};

const Rows<QByteArray, QByteArray> accessPointIsCheckedRows{
    {"first context, by default", "*99#", noCarrier},
    {"second context", "*99***2#", "\r\nCONNECT\r\n"},
    {"second context, short form", "*98*2#", "\r\nCONNECT\r\n"},
    {"undefined context", "*99***3#", noCarrier},
};

const Rows<QByteArray, QByteArray> contextComesUpAndGoesDownRows{
    {"up", "\r\n+JPDPACT: 1,1\r\n", "1"},
    {"refused", "\r\n+JPDPACT: 1,3\r\n", "3"},
    {"silence", {}, "2"}, // never ready
};

} // namespace

class TestEmulatorData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_card = std::make_unique<TestCard>();
        QVERIFY(m_card->tell(R"({"command": "dial-result", "result": "connect"})"));
    }

    void cleanup() { m_card.reset(); }

    void bytesGoBothWays()
    {
        TestPort port(m_card->path(u"modem"_s));
        dial(port, "cat");
        const QByteArray bytes("~\xff\x03\xc0!\0\r\n\x11\x13+++", 13);
        QCOMPARE(port.exchange(bytes, bytes), bytes);
        TestPort at(m_card->path(u"at"_s));
        QCOMPARE(at.exchange("ATE0+CSQ\r", "OK\r\n"), "ATE0+CSQ\r\r\n+CSQ: 20,99\r\n\r\nOK\r\n");
    }

    void callEnds_data() { addRows(callEndsRows); }
    void callEnds()
    {
        const auto &[name, peer, act] = currentRow(callEndsRows);
        TestPort port(m_card->path(u"modem"_s));
        dial(port, peer);
        const qint64 process = peerProcess();
        act(*m_card, port);
        QCOMPARE(port.readUntil(noCarrier), noCarrier);
        QVERIFY(process == 0 || isGone(process));
        QCOMPARE(peerProcess(), 0);
        QCOMPARE(port.exchange("AT+CSQ\r", "OK\r\n"), "\r\n+CSQ: 20,99\r\n\r\nOK\r\n");
    }

    void escapeHoldsTheNetworkBack()
    {
        TestPort port(m_card->path(u"modem"_s));
        dial(port, "cat");
        const qint64 process = peerProcess();
        const auto escape = [&] {
            QVERIFY(m_card->advance(1000));
            QCOMPARE(port.exchange("+++", "+++"), "+++");
            QVERIFY(m_card->advance(1000));
            QCOMPARE(port.readUntil("OK\r\n"), "\r\nOK\r\n");
        };
        escape();
        QCOMPARE(peerProcess(), process);
        QCOMPARE(port.exchange("ATO\r", "CONNECT\r\n"), "\r\nCONNECT\r\n");
        QCOMPARE(port.exchange("again", "again"), "again");
        escape();
        QCOMPARE(port.exchange("ATH\r", "OK\r\n"), "\r\nOK\r\n");
        QVERIFY(isGone(process));
        QCOMPARE(port.exchange("ATO\r", noCarrier), noCarrier);
    }

    // The network sends far more than fits between it and a client that looks at it late.
    void slowClientLosesNothing()
    {
        constexpr qsizetype most = 8 << 20;
        TestPort port(m_card->path(u"modem"_s));
        dial(port, "sh -c 'head -c 8388608 /dev/zero; cat'");
        QVERIFY(m_card->advance(1000));
        QCOMPARE(port.count(most), most);
        QCOMPARE(port.exchange("end", "end"), "end");
    }

    void accessPointIsChecked_data() { addRows(accessPointIsCheckedRows); }
    void accessPointIsChecked()
    {
        const auto &[name, number, answered] = currentRow(accessPointIsCheckedRows);
        QVERIFY(set("accessPoint", "internet"));
        TestPort port(m_card->path(u"modem"_s));
        port.exchange("ATE0+CMEE=1;+CGDCONT=1,\"IP\",\"wap\";+CGDCONT=2,\"IP\",\"Internet\"\r", "OK\r\n");
        QCOMPARE(port.exchange("AT+CGACT=1,1\r", "\r\n+CME ERROR: 133\r\n"), "\r\n+CME ERROR: 133\r\n");
        QCOMPARE(port.exchange("ATD" + number + '\r', answered), answered);
    }

    void contextComesUpAndGoesDown_data() { addRows(contextComesUpAndGoesDownRows); }
    void contextComesUpAndGoesDown()
    {
        const auto &[activation, reported, state] = currentRow(contextComesUpAndGoesDownRows);
        QVERIFY(set("activation", activation));
        QVERIFY(m_card->tell(R"({"command": "set", "key": "data.activationDelay", "value": 2000})"));
        TestPort port(m_card->path(u"at"_s));
        port.exchange("ATE0+CMEE=1\r", "OK\r\n");
        QCOMPARE(port.exchange("AT+JPDPACT=1,1\r", "50\r\n"), "\r\n+CME ERROR: 50\r\n");
        port.exchange("AT+CGDCONT=1,\"IP\",\"internet\"\r", "OK\r\n");
        QCOMPARE(port.exchange("AT+JPDPACT=1,1\r", "1,2\r\n"), "\r\nOK\r\n\r\n+JPDPACT: 1,2\r\n");
        QVERIFY(m_card->advance(500));
        QCOMPARE(m_card->pending(port), "");
        QVERIFY(m_card->advance(1500));
        QCOMPARE(m_card->pending(port), reported);
        QCOMPARE(port.exchange("AT+JPDPACT?\r", "OK\r\n"), "\r\n+JPDPACT: 1," + state + "\r\n\r\nOK\r\n");
        QCOMPARE(port.exchange("AT+CGACT?;+CGPADDR=1\r", "OK\r\n"),
                 state == "1" ? "\r\n+CGACT: 1,1\r\n\r\n+CGPADDR: 1,\"192.0.2.1\"\r\n\r\nOK\r\n"
                              : "\r\n+CGACT: 1,0\r\n\r\n+CGPADDR: 1\r\n\r\nOK\r\n");
        QCOMPARE(port.exchange("AT+JPDPACT=1,0\r", "1,0\r\n"), "\r\nOK\r\n\r\n+JPDPACT: 1,0\r\n");
    }

    void hookStandsForTheNetwork()
    {
        TestPort port(m_card->path(u"at"_s));
        port.exchange("ATE0+CGDCONT=1,\"IP\",\"a b\"\r", "OK\r\n");
        const QString record = m_card->path(u"record"_s);
        for (const auto &[status, reported] : {std::pair("0", "1"), std::pair("1", "3")}) { // works, fails
            const QByteArray returned = QByteArray("; return ") + status + "; }; f";
            QVERIFY(set("hook", "f() { echo \\\"$@\\\" >> " + record.toUtf8() + returned));
            port.exchange("AT+JPDPACT=1,1\r", "1,2\r\n");
            const QByteArray report = QByteArray("\r\n+JPDPACT: 1,") + reported + "\r\n";
            QCOMPARE(port.readUntil(report), report);
            port.exchange("AT+JPDPACT=1,0\r", "1,0\r\n");
        }
        QTRY_COMPARE(contentOf(record), QByteArray("up 1 a b\ndown 1 a b\n").repeated(2));
    }

    void contextGoesDownWithTheNetwork()
    {
        TestPort port(m_card->path(u"at"_s));
        port.exchange("ATE0+CGDCONT=1,\"IP\",\"internet\"\r", "OK\r\n");
        for (const QByteArray end : {R"("drop-data")", R"("register", "service": "none")"}) {
            port.exchange("AT+JPDPACT=1,1\r", "1,1\r\n");
            QVERIFY(m_card->tell("{\"command\": " + end + '}'));
            QCOMPARE(m_card->pending(port), "\r\n+JPDPACT: 1,0\r\n");
        }
        QCOMPARE(port.exchange("AT+JPDPACT=1,1\r", "1,3\r\n"),
                 "\r\nOK\r\n\r\n+JPDPACT: 1,2\r\n\r\n+JPDPACT: 1,3\r\n");
    }

    // The cable is a pseudo-terminal: the far end is the test's, the other stands for the gadget's device.
    void servesADevice()
    {
        const int cable = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(cable >= 0 && grantpt(cable) == 0 && unlockpt(cable) == 0);
        const QString device = QString::fromLocal8Bit(ptsname(cable));
        const auto profile = std::get<cardemu::Profile>(
            cardemu::Profile::parse(R"({"line": {"dialResult": "CONNECT"}, "data": {"peer": "cat"}})"));
        const QTemporaryDir folder;
        cardemu::EmulatedCard card(profile, {{u"modem"_s, device}});
        QCOMPARE(card.start(folder.path()), QString());
        QVERIFY(QFileInfo::exists(folder.filePath(u"at"_s)));
        QVERIFY(!QFileInfo::exists(folder.filePath(u"modem"_s)));
        const auto answers = [cable](const QByteArray &text, const QByteArray &wanted) {
            QByteArray answer;
            std::array<char, 256> chunk{};
            return ::write(cable, text.constData(), size_t(text.size())) == text.size() &&
                   QTest::qWaitFor([&] {
                       const ssize_t size = ::read(cable, chunk.data(), chunk.size());
                       answer += QByteArray(chunk.data(), std::max<ssize_t>(size, 0));
                       return answer == wanted;
                   });
        };
        QVERIFY(answers("ATE0D*99#\r", "ATE0D*99#\r\r\nCONNECT\r\n"));
        QVERIFY(answers("data", "data"));
        const qint64 peer = card.portsAsJson()[u"modem"_s][u"peer"_s].toInteger();
        QVERIFY(peer > 0);
        ::close(cable);
        QVERIFY(isGone(peer));
    }

private:
    /// Dials on the modem port, up to the CONNECT, with this program for the network.
    void dial(TestPort &port, const QByteArray &peer)
    {
        QVERIFY(set("peer", peer));
        QVERIFY(port.exchange("ATE0DT*99#\r", "CONNECT\r\n").endsWith("\r\nCONNECT\r\n"));
    }

    qint64 peerProcess() { return m_card->state()[u"ports"_s][u"modem"_s][u"peer"_s].toInteger(); }

    bool set(const QByteArray &key, const QByteArray &value)
    {
        return m_card->tell(R"({"command": "set", "key": "data.%1"})", key + "\", \"value\": \"" + value);
    }

    static bool isGone(qint64 process)
    {
        return QTest::qWaitFor([process] { return ::kill(pid_t(process), 0) != 0; });
    }

    std::unique_ptr<TestCard> m_card;
};

QTEST_GUILESS_MAIN(TestEmulatorData)
#include "tst_emulator_data.moc"
