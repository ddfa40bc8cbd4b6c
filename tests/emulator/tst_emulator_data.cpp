// SPDX-License-Identifier: GPL-3.0-or-later
// Data calls with a network behind them, the card's own data connection, and ports on real devices.
#include "testcard.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTest>
#include <csignal>
#include <cstdlib>
#include <termios.h>

class TestEmulatorData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void bytesGoBothWays();
    void callEnds_data();
    void callEnds();
    void escapeHoldsTheNetworkBack();
    void slowClientLosesNothing();
    void accessPointIsChecked_data();
    void accessPointIsChecked();
    void contextComesUpAndGoesDown_data();
    void contextComesUpAndGoesDown();
    void hookStandsForTheNetwork_data();
    void hookStandsForTheNetwork();
    void contextGoesDownWithTheNetwork();
    void servesADevice();
    void wvdialDials_data();
    void wvdialDials();

private:
    void setPeer(const QByteArray &command);
    /// Dials on the modem port, up to the CONNECT.
    bool dial(TestPort &port, const QByteArray &number = "*99#");
    qint64 peerProcess();
    bool peerIsGone(qint64 process);

    std::unique_ptr<TestCard> m_card;
};

namespace
{

const QByteArray noCarrier = "\r\nNO CARRIER\r\n";

} // namespace

void TestEmulatorData::init()
{
    m_card = std::make_unique<TestCard>();
    QVERIFY(m_card->tell(R"({"command": "dial-result", "result": "connect"})"));
}

void TestEmulatorData::cleanup()
{
    m_card.reset();
}

void TestEmulatorData::setPeer(const QByteArray &command)
{
    QVERIFY(m_card->tell(R"({"command": "set", "key": "data.peer", "value": ")" + command + "\"}"));
}

bool TestEmulatorData::dial(TestPort &port, const QByteArray &number)
{
    return port.exchange("ATE0DT" + number + '\r', "CONNECT\r\n").endsWith("\r\nCONNECT\r\n");
}

qint64 TestEmulatorData::peerProcess()
{
    const QJsonObject state = m_card->control(R"({"command": "show"})")[u"state"_s].toObject();
    return state[u"ports"_s][u"modem"_s][u"peer"_s].toInteger();
}

bool TestEmulatorData::peerIsGone(qint64 process)
{
    return QTest::qWaitFor([process] { return ::kill(pid_t(process), 0) != 0; });
}

void TestEmulatorData::bytesGoBothWays()
{
    setPeer("cat");
    TestPort port(m_card->path(u"modem"_s));
    QVERIFY(dial(port));
    const QByteArray bytes("~\xff\x03\xc0!\0\r\n\x11\x13+++", 13);
    QCOMPARE(port.exchange(bytes, bytes), bytes);
    TestPort at(m_card->path(u"at"_s));
    QCOMPARE(at.exchange("ATE0+CSQ\r", "OK\r\n"), "ATE0+CSQ\r\r\n+CSQ: 20,99\r\n\r\nOK\r\n");
}

void TestEmulatorData::callEnds_data()
{
    QTest::addColumn<QByteArray>("peer");
    QTest::addColumn<std::function<void(TestPort &)>>("act");
    const auto nothing = [](TestPort &) {};
    QTest::newRow("network ends") << QByteArray("head -c 4")
                                  << std::function<void(TestPort &)>([](TestPort &p) {
                                         p.write("bye!");
                                         QCOMPARE(p.readUntil("bye!"), "bye!");
                                     });
    QTest::newRow("no such program") << QByteArray("/nowhere/pppd")
                                     << std::function<void(TestPort &)>(nothing);
    QTest::newRow("network drops it")
        << QByteArray("cat") << std::function<void(TestPort &)>([this](TestPort &) {
               QVERIFY(m_card->tell(R"({"command": "drop-data"})"));
           });
    QTest::newRow("DTR is dropped") << QByteArray("cat") << std::function<void(TestPort &)>([](TestPort &p) {
        termios settings{};
        tcgetattr(p.descriptor(), &settings);
        cfsetspeed(&settings, B0);
        tcsetattr(p.descriptor(), TCSANOW, &settings);
    });
    QTest::newRow("network that does not listen is killed")
        << QByteArray("sh -c 'trap : TERM; while :; do sleep 0.1; done'")
        << std::function<void(TestPort &)>(
               [this](TestPort &) { QVERIFY(m_card->tell(R"({"command": "drop-data"})")); });
}

void TestEmulatorData::callEnds()
{
    QFETCH(QByteArray, peer);
    QFETCH(std::function<void(TestPort &)>, act);
    setPeer(peer);
    TestPort port(m_card->path(u"modem"_s));
    QVERIFY(dial(port));
    const qint64 process = peerProcess();
    act(port);
    QCOMPARE(port.readUntil(noCarrier), noCarrier);
    QVERIFY(process == 0 || peerIsGone(process));
    QCOMPARE(peerProcess(), 0);
    QCOMPARE(port.exchange("AT+CSQ\r", "OK\r\n"), "\r\n+CSQ: 20,99\r\n\r\nOK\r\n");
}

void TestEmulatorData::escapeHoldsTheNetworkBack()
{
    setPeer("cat");
    TestPort port(m_card->path(u"modem"_s));
    QVERIFY(dial(port));
    const qint64 process = peerProcess();
    QVERIFY(m_card->advance(1000));
    QCOMPARE(port.exchange("+++", "+++"), "+++");
    QVERIFY(m_card->advance(1000));
    QCOMPARE(port.readUntil("OK\r\n"), "\r\nOK\r\n");
    QCOMPARE(peerProcess(), process);
    QCOMPARE(port.exchange("ATO\r", "CONNECT\r\n"), "\r\nCONNECT\r\n");
    QCOMPARE(port.exchange("again", "again"), "again");
    QVERIFY(m_card->advance(1000));
    port.exchange("+++", "+++");
    QVERIFY(m_card->advance(1000));
    QCOMPARE(port.readUntil("OK\r\n"), "\r\nOK\r\n");
    QCOMPARE(port.exchange("ATH\r", "OK\r\n"), "\r\nOK\r\n");
    QVERIFY(peerIsGone(process));
    QCOMPARE(port.exchange("ATO\r", noCarrier), noCarrier);
}

// The network sends far more than fits between it and a client that looks at it late.
void TestEmulatorData::slowClientLosesNothing()
{
    constexpr qsizetype most = 8 << 20;
    setPeer("sh -c 'head -c 8388608 /dev/zero; cat'");
    TestPort port(m_card->path(u"modem"_s));
    QVERIFY(dial(port));
    QVERIFY(m_card->advance(1000));
    QCOMPARE(port.count(most), most);
    QCOMPARE(port.exchange("end", "end"), "end");
}

void TestEmulatorData::accessPointIsChecked_data()
{
    QTest::addColumn<QByteArray>("number");
    QTest::addColumn<QByteArray>("answered");
    QTest::newRow("first context, by default") << QByteArray("*99#") << noCarrier;
    QTest::newRow("second context") << QByteArray("*99***2#") << QByteArray("\r\nCONNECT\r\n");
    QTest::newRow("second context, short form") << QByteArray("*98*2#") << QByteArray("\r\nCONNECT\r\n");
    QTest::newRow("undefined context") << QByteArray("*99***3#") << noCarrier;
}

void TestEmulatorData::accessPointIsChecked()
{
    QFETCH(QByteArray, number);
    QFETCH(QByteArray, answered);
    QVERIFY(m_card->tell(R"({"command": "set", "key": "data.accessPoint", "value": "internet"})"));
    TestPort port(m_card->path(u"modem"_s));
    port.exchange("ATE0+CMEE=1;+CGDCONT=1,\"IP\",\"wap\";+CGDCONT=2,\"IP\",\"Internet\"\r", "OK\r\n");
    QCOMPARE(port.exchange("AT+CGACT=1,1\r", "\r\n+CME ERROR: 133\r\n"), "\r\n+CME ERROR: 133\r\n");
    QCOMPARE(port.exchange("ATD" + number + '\r', answered), answered);
}

void TestEmulatorData::contextComesUpAndGoesDown_data()
{
    QTest::addColumn<QByteArray>("activation");
    QTest::addColumn<QByteArray>("reported");
    QTest::addColumn<QByteArray>("state");
    QTest::newRow("up") << QByteArray("up") << QByteArray("\r\n+JPDPACT: 1,1\r\n") << QByteArray("1");
    QTest::newRow("refused") << QByteArray("refused") << QByteArray("\r\n+JPDPACT: 1,3\r\n")
                             << QByteArray("3");
    QTest::newRow("never ready") << QByteArray("silence") << QByteArray() << QByteArray("2");
}

void TestEmulatorData::contextComesUpAndGoesDown()
{
    QFETCH(QByteArray, activation);
    QFETCH(QByteArray, reported);
    QFETCH(QByteArray, state);
    QVERIFY(m_card->tell(R"({"command": "set", "key": "data.activation", "value": ")" + activation + "\"}"));
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
    const bool isUp = state == "1";
    QCOMPARE(port.exchange("AT+CGACT?;+CGPADDR=1\r", "OK\r\n"),
             isUp ? "\r\n+CGACT: 1,1\r\n\r\n+CGPADDR: 1,\"192.0.2.1\"\r\n\r\nOK\r\n"
                  : "\r\n+CGACT: 1,0\r\n\r\n+CGPADDR: 1\r\n\r\nOK\r\n");
    QCOMPARE(port.exchange("AT+JPDPACT=1,0\r", "1,0\r\n"), "\r\nOK\r\n\r\n+JPDPACT: 1,0\r\n");
}

void TestEmulatorData::hookStandsForTheNetwork_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QByteArray>("reported");
    QTest::addColumn<QByteArray>("told");
    QTest::newRow("works") << QByteArray("0") << QByteArray("1") << QByteArray("up 1 a b\ndown 1 a b\n");
    QTest::newRow("fails") << QByteArray("1") << QByteArray("3") << QByteArray("up 1 a b\ndown 1 a b\n");
}

void TestEmulatorData::hookStandsForTheNetwork()
{
    QFETCH(QByteArray, status);
    QFETCH(QByteArray, reported);
    QFETCH(QByteArray, told);
    const QString record = m_card->path(u"record"_s);
    const QByteArray hook = "f() { echo \\\"$@\\\" >> " + record.toUtf8() + "; return " + status + "; }; f";
    QVERIFY(m_card->tell(R"({"command": "set", "key": "data.hook", "value": ")" + hook + "\"}"));
    TestPort port(m_card->path(u"at"_s));
    port.exchange("ATE0+CGDCONT=1,\"IP\",\"a b\"\r", "OK\r\n");
    port.exchange("AT+JPDPACT=1,1\r", "1,2\r\n");
    QCOMPARE(port.readUntil("1," + reported + "\r\n"), "\r\n+JPDPACT: 1," + reported + "\r\n");
    port.exchange("AT+JPDPACT=1,0\r", "1,0\r\n");
    const auto text = [&record] {
        QFile file(record);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    QTRY_COMPARE(text(), told);
}

void TestEmulatorData::contextGoesDownWithTheNetwork()
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

// The far end of the cable is the test's: a pseudo-terminal, whose other side stands for the gadget's device.
void TestEmulatorData::servesADevice()
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
    const auto ask = [cable](const QByteArray &text, const QByteArray &end) {
        QByteArray answer;
        if (::write(cable, text.constData(), size_t(text.size())) != text.size())
            return answer;
        const auto readMore = [cable, &answer, &end] {
            std::array<char, 256> chunk{};
            const ssize_t size = ::read(cable, chunk.data(), chunk.size());
            answer += QByteArray(chunk.data(), std::max<ssize_t>(size, 0));
            return answer.endsWith(end);
        };
        return QTest::qWaitFor(readMore) ? answer : answer + "<no end>";
    };
    QCOMPARE(ask("ATE0D*99#\r", "CONNECT\r\n"), "ATE0D*99#\r\r\nCONNECT\r\n");
    QCOMPARE(ask("data", "data"), "data");
    const qint64 peer = card.portsAsJson()[u"modem"_s][u"peer"_s].toInteger();
    QVERIFY(peer > 0);
    ::close(cable);
    QVERIFY(QTest::qWaitFor([peer] { return ::kill(pid_t(peer), 0) != 0; }));
}

void TestEmulatorData::wvdialDials_data()
{
    QTest::addColumn<QByteArray>("result");
    QTest::addColumn<QByteArray>("said");
    QTest::newRow("taken") << QByteArray("connect-then-silence") << QByteArray("Carrier detected");
    QTest::newRow("busy") << QByteArray("busy") << QByteArray("The line is busy");
    QTest::newRow("no carrier") << QByteArray("no-carrier") << QByteArray("No Carrier!");
    QTest::newRow("no answer") << QByteArray("no-answer") << QByteArray("No Answer.");
    QTest::newRow("no dialtone") << QByteArray("no-dialtone") << QByteArray("No dial tone.");
}

// The real dialler, with a configuration of its own. It talks on its standard error.
void TestEmulatorData::wvdialDials()
{
    QFETCH(QByteArray, result);
    QFETCH(QByteArray, said);
    QVERIFY(m_card->tell(R"({"command": "dial-result", "result": ")" + result + "\"}"));
    QFile configuration(m_card->path(u"wvdial.conf"_s));
    QVERIFY(configuration.open(QIODevice::WriteOnly));
    configuration.write(
        "[Dialer Defaults]\nPhone = *99#\nUsername = null\nPassword = null\nStupid Mode = 1\n"
        "Dial Command = ATDT\nBaud = 115200\nDial Attempts = 1\nAuto Reconnect = off\nModem = " +
        m_card->path(u"modem"_s).toUtf8() + '\n');
    configuration.close();
    QProcess wvdial;
    wvdial.setProcessChannelMode(QProcess::MergedChannels);
    wvdial.start(u"wvdial"_s, {u"-C"_s, configuration.fileName()});
    QVERIFY2(wvdial.waitForStarted(), "wvdial is missing");
    QByteArray output;
    while (!output.contains(said) && wvdial.waitForReadyRead(20000))
        output += wvdial.readAll();
    wvdial.terminate();
    wvdial.waitForFinished(20000);
    QVERIFY2(output.contains(said), output.constData());
}

QTEST_GUILESS_MAIN(TestEmulatorData)
#include "tst_emulator_data.moc"
