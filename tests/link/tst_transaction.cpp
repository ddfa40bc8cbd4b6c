// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/replyreader.h"
#include "link/serialthread.h"
#include "linktest.h"
#include "shell/commoncfg.h"

#include <QElapsedTimer>
#include <QTest>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// One command after another over a pseudo-terminal whose far side is the test.
class TestTransaction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        resetLinkGlobals();
        for (const auto &[section, key] : settings)
            cmcfg.setValue(section, key, {});
        m_owner.ready = true;
        m_owner.onCall = nullptr;
        m_owner.takeCalls();
        m_pty = std::make_unique<Pty>();
        m_link = std::make_unique<SerialThread>(&m_owner);
        QVERIFY(m_link->openPort(m_pty->name()) > 0);
        foundPortFlag = true;
    }
    void cleanup()
    {
        m_link->closePortNormal(m_link->descriptor());
        m_link.reset();
    }

    void gates_data()
    {
        QTest::addColumn<bool>("searching");
        QTest::addColumn<QStringList>("keys"); // the search can be cancelled; it may be disturbed
        QTest::addColumn<QByteArray>("cmd");
        QTest::addColumn<bool>("passes");
        const auto row = [](const char *name, bool searching, const QString &keys, const char *cmd,
                            bool passes) {
            QTest::newRow(name) << searching << keys.split(u',') << QByteArray(cmd) << passes;
        };
        row("nothing runs", false, u"1,0"_s, "AT+CSQ\r\n", true);
        row("search runs", true, u"0,0"_s, "AT+CSQ\r\n", false);
        row("search runs, keys missing", true, u","_s, "AT\r\n", false);
        row("search may be disturbed", true, u"0,1"_s, "AT+CSQ\r\n", true);
        row("search can be cancelled", true, u"1,1"_s, "AT+CSQ\r\n", false);
        row("the search itself", true, u"1,0"_s, "AT+COPS=?\r\n", true);
        row("almost the search", true, u"1,0"_s, "AT+COPS=?\r", false);
    }
    void gates()
    {
        QFETCH(bool, searching);
        QFETCH(QStringList, keys);
        QFETCH(QByteArray, cmd);
        cmcfg.setValue(u"function"_s, u"cancelManualSearch_enabled"_s, keys[0]);
        cmcfg.setValue(u"network"_s, u"serchNetworkAlowSentAt_enabled"_s, keys[1]);
        m_link->setCOPSCmdSendingStatus(searching);
        QTEST(m_link->excuteAtStr(cmd.constData()), "passes");
    }

    void noPortOrNoDeviceFile()
    {
        foundPortFlag = false;
        QCOMPARE(m_link->sendCmdAndRec("AT+CSQ\r\n", 1, 0), 103);
        foundPortFlag = true;
        cmcfg.setValue(u"function"_s, u"findAtAndModemNewWay"_s, u"1"_s);
        QCOMPARE(m_link->excuteAtStr("AT\r\n"), QFile::exists(u"/dev/at"_s));
    }

    void selectionGate()
    {
        QVERIFY(m_link->excuteAtStr("AT+COPS=1,2,\"00101\"\r\n"));
        QVERIFY(!m_link->excuteAtStr("AT+CSQ\r\n"));
        QCOMPARE(m_link->setManualNetworkMode(u"2"_s, u"00101"_s, u"2"_s, u"1"_s),
                 -1); // refused like the rest
        QVERIFY(m_link->excuteAtStr("AT+CSQ\r\n"));
        QCOMPARE(m_link->setManualNetworkMode({}, u"001\"01"_s, u"2"_s, u"1"_s), -1);
        m_pty->readUntil("AT+CSQ\r\n");
        const int result =
            exchange([this] { return m_link->setManualNetworkMode(u"2"_s, u"00101"_s, u"2"_s, u"1"_s); },
                     "\r\nOK\r\n");
        QCOMPARE(m_sent, "AT+COPS=1,2,\"00101\",2\r\n");
        QCOMPARE(result, 1);
        QVERIFY(m_link->excuteAtStr("AT+CSQ\r\n"));
    }

    void logLinesInOrder()
    {
        const LogCapture log;
        m_pty->write("\r\nOK\r\n");
        QCOMPARE(exchange([this] { return m_link->sendCmdAndRec("AT+CSQ\r\n", 1, 500000); },
                          "+JEND\r\n\r\n+CSQ: 5,9\r\nOK\r\n"),
                 30);
        QCOMPARE(log.lines(), (QStringList{u"purgeComData:: \r\nOK\r\n"_s, u"sent cmd: AT+CSQ\r\n"_s,
                                           u"****** Cmd of JEND find!"_s,
                                           u"****** in resAtStr, timer_sec=1, timer_usec=500000, con=15"_s,
                                           u"****** in resAtStr, pResStr = \r\n+CSQ: 5,9\r\nOK\r\n"_s}));
    }

    void secretsAreMasked_data()
    {
        QTest::addColumn<QByteArray>("cmd");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *cmd, const QString &shown) {
            QTest::newRow(cmd) << QByteArray(cmd) + "\r\n" << shown;
        };
        row("AT+CPIN=\"4711\"", u"AT+CPIN=\"****\""_s);
        row("AT+CPIN=\"47114711\",\"4711\"", u"\"********\",\"****\""_s);
        row("AT+CLCK=\"SC\",1,\"4711\"", u"\"SC\",1,\"****\""_s);
        row("at+cpwd=\"SC\",\"4711\",\"4711\"", u"\"SC\",\"****\",\"****\""_s);
        row("AT^CPIN=\"4711\"", u"AT^CPIN=\"****\""_s);
        row("AT+APWIFIW=1,2,a4711z", u"=1,2,******"_s);
    }
    void secretsAreMasked()
    {
        QFETCH(QByteArray, cmd);
        QFETCH(QString, shown);
        const LogCapture log;
        m_pty->write(cmd); // an echo that comes late
        exchange([&] { return m_link->sendCmdAndRec(cmd.constData(), 1, 0); }, cmd + "\r\nOK\r\n");
        QCOMPARE(m_sent, cmd);
        QVERIFY2(!log.lines().join(u'|').contains(u"4711"_s), qPrintable(log.lines().join(u'|')));
        QCOMPARE(log.lines().filter(shown).size(), 3); // drained, sent, in the reply
    }

    void silenceSpendsTheBudget_data()
    {
        QTest::addColumn<int>("microseconds");
        QTest::addColumn<int>("least");
        QTest::newRow("none") << 0 << 5;
        QTest::newRow("less than a round") << 99999 << 5;
        QTest::newRow("three rounds") << 300000 << 315;
    }
    void silenceSpendsTheBudget()
    {
        QFETCH(int, microseconds);
        QFETCH(int, least);
        std::vector<char> reply(SerialThread::replyBufferSize, 'x');
        m_pty->write("\r\n+CSQ: 1"); // half a reply is no reply
        const LogCapture log;
        QElapsedTimer time;
        time.start();
        QCOMPARE(m_link->resAtStr(m_link->descriptor(), reply.data(), 0, microseconds), -1);
        QVERIFY2(time.elapsed() >= least - 2 && time.elapsed() < least + 300,
                 qPrintable(QString::number(time.elapsed())));
        QCOMPARE(QByteArray(reply.data()), QByteArray());
        QCOMPARE(log.lines(), QStringList{u"****** select of SerialThread::resAtStr is timerout"_s});
        QVERIFY(!receive_flag);
    }

    void arrivingBytesCostNoBudget()
    {
        auto result = inBackground([this] { return m_link->sendCmdAndRec("AT+CSQ\r\n", 0, 500000); });
        m_pty->readUntil("\n");
        const QByteArray reply = "\r\n+CSQ: 20,9\r\n\r\nOK\r\n";
        for (const char byte : reply) { // 0.8 s in all: the pace is what is tested
            QTest::qWait(40);
            m_pty->write({&byte, 1});
        }
        QCOMPARE(result.get(), 32);
    }

    void tricklesWithoutEndAreGivenUp()
    {
        auto result = inBackground([this] { return m_link->sendCmdAndRec("AT+CSQ\r\n", 0, 500000); });
        m_pty->readUntil("\n");
        QElapsedTimer time;
        time.start();
        while (result.wait_for(60ms) != std::future_status::ready && !time.hasExpired(60000))
            m_pty->write("\r\n+JRSSI: -80,-5,-75\r\n");
        QVERIFY(time.elapsed() >= std::chrono::milliseconds(SerialThread::lowestCeiling).count());
        QVERIFY(!time.hasExpired(60000));
        QCOMPARE(result.get(), 102);
        QCOMPARE(exchange([this] { return m_link->sendCmdAndRec("AT+CSQ\r\n", 1, 0); },
                          "\r\n+CSQ: 5,9\r\n\r\nOK\r\n"),
                 30);
    }

    void nestedReadReturnsAtOnce()
    {
        int nested = -1;
        m_owner.onCall = [&] {
            std::vector<char> reply(SerialThread::replyBufferSize, 'x');
            nested = m_link->resAtStr(m_link->descriptor(), reply.data(), 10, 0);
            QCOMPARE(QByteArray(reply.data()), QByteArray());
        };
        QCOMPARE(exchange([this] { return m_link->sendCmdAndRec("AT+CSQ\r\n", 5, 0); },
                          "\r\n+CMTI: \"SM\",3\r\n\r\n+CSQ: 99,99\r\n\r\nOK\r\n"),
                 35);
        QCOMPARE(nested, 0);
        QCOMPARE(m_owner.takeCalls(),
                 QStringList{u"getSmsAndVoice(\r\n+CMTI: \"SM\",3\r\n\r\n+CSQ: 99,99\r\n\r\nOK\r\n)"_s});
    }

    void writerWaitsForTheLock()
    {
        const LogCapture log;
        m_link->atLock();
        auto written = inBackground([this] { return m_link->excuteAtStr("AT+CSQ\r\n"); });
        QCOMPARE(written.wait_for(250ms), std::future_status::timeout);
        m_link->atUnlock();
        QVERIFY(written.get());
        QCOMPARE(m_pty->readUntil("\n"), "AT+CSQ\r\n");
        receive_flag = true; // the lock alone decides
        QVERIFY(m_link->excuteAtStr("AT\r\n"));
        QVERIFY(log.lines().isEmpty());
        receive_flag = false;
        m_link->atLock();
        QElapsedTimer time;
        time.start();
        QCOMPARE(m_link->sendCmdAndRec("AT+CSQ\r\n", 1, 0), 103); // it gives up after 30 rounds
        QVERIFY(time.elapsed() >= 3000);
    }

    void drainDispatchesWhenReady()
    {
        m_owner.ready = false;
        m_pty->write("\r\n+CMTI: \"SM\",1\r\n");
        m_link->purgeComData();
        QCOMPARE(m_owner.takeCalls(), QStringList());
        m_owner.ready = true;
        m_pty->write("\r\n+CMTI: \"SM\",2\r\n");
        m_link->purgeComData();
        QCOMPARE(m_owner.takeCalls(), QStringList{u"getSmsAndVoice(\r\n+CMTI: \"SM\",2\r\n)"_s});
        m_link->purgeComData();
        QCOMPARE(m_owner.takeCalls(), QStringList());
    }

    void drainWaitsForTheRestOfALine()
    {
        QElapsedTimer time;
        time.start();
        m_pty->write("\r\n+CMTI: \"S");
        m_link->purgeComData();
        QVERIFY(time.elapsed() >= 49);
        QCOMPARE(m_owner.takeCalls(), QStringList{u"getSmsAndVoice(\r\n+CMTI: \"S)"_s});
    }

    void drainStandsBackForATransaction()
    {
        const LogCapture log;
        m_pty->write("RING\r\n");
        receive_flag = true;
        m_link->purgeComData();
        receive_flag = false;
        QVERIFY(log.lines().isEmpty());
        QTRY_COMPARE(m_link->readDataWaiting(), 6);
    }

    void unpluggedInMidCommand()
    {
        const LogCapture log;
        auto result = inBackground([this] { return m_link->sendCmdAndRec("AT+CSQ\r\n", 60, 0); });
        m_pty->readUntil("\n");
        m_pty->write("\r\n+CS");
        m_pty->unplug();
        QCOMPARE(result.wait_for(5s), std::future_status::ready);
        QCOMPARE(result.get(), 102);
        QVERIFY(m_link->isPortLost());
        QCOMPARE(log.lines().last(), u"SerialThread::resAtStr() ===> no data to read!"_s);
        QCOMPARE(m_link->sendCmdAndRec("AT+CSQ\r\n", 60, 0), 103);
    }

    void stopEndsEveryWait()
    {
        auto result = inBackground([this] { return m_link->sendCmdAndRec("AT+CSQ\r\n", 60, 0); });
        m_pty->readUntil("\n");
        m_link->requestStop();
        QCOMPARE(result.wait_for(5s), std::future_status::ready);
        QCOMPARE(result.get(), 102);
        QVERIFY(!m_link->isPortLost());
    }

    void endlessReplyFails()
    {
        auto result = inBackground([this] { return m_link->sendCmdAndRec("AT+CSQ\r\n", 60, 0); });
        m_pty->readUntil("\n");
        m_pty->write(QByteArray(corva::ReplyReader::capacity + 1, 'x'));
        QCOMPARE(result.get(), 102);
    }

    void readersSeeWhatWasReadAhead()
    {
        QCOMPARE(exchange([this] { return m_link->sendCmdAndRec("AT+CSQ\r\n", 5, 0); },
                          "\r\n+CSQ: 1,1\r\n\r\nOK\r\nabcdef"),
                 30);
        QVERIFY(m_link->hasReadAhead());
        QCOMPARE(m_link->readDataWaiting(), 6);
        char text[16] = "";
        QCOMPARE(m_link->readData(text, 2), 2);
        m_pty->write("nopq");
        QCOMPARE(m_link->readAll(m_link->descriptor(), text + 2, 3), 3);
        QCOMPARE(m_link->readLine(m_link->descriptor(), text + 5, 9), 1); // "n" begins the next chunk
        QCOMPARE(QByteArray(text, 6), "abcdef");
        QCOMPARE(m_link->readAll(0, text, 1), -1);
        QCOMPARE(m_link->readLine(-1, text, 1), -1);
        m_pty->unplug();
        QVERIFY(m_link->readData(text, 1) <= 0); // an end or an error, as the kernel likes
        QVERIFY(m_link->isPortLost());
    }

    void timers_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QList<int>>("values");
        const auto row = [](const char *name, const QString &values, const QList<int> &expected) {
            QTest::newRow(name) << values.split(u' ') << expected;
        };
        // probe seconds, probe tenths, reply time-out
        row("none", u"  "_s, {0, 1, 3});
        row("lowest", u"0 1 1"_s, {0, 1, 1});
        row("highest", u"15 15 60"_s, {15, 15, 60});
        row("above", u"16 16 61"_s, {0, 1, 3});
        row("below", u"-1 0 0"_s, {0, 1, 3});
        row("any tenths beside seconds", u"2 99 4"_s, {2, 99, 4});
        row("no numbers", u"a b c"_s, {0, 1, 3});
    }
    void timers()
    {
        QFETCH(QStringList, texts);
        const char *const names[] = {"send_nullatcommand_timer_s", "send_nullatcommand_timer_100ms",
                                     "send_atcommand_timer"};
        for (int i = 0; i < 3; ++i)
            cmcfg.setValue(u"network_dialer_setting"_s, QString::fromLatin1(names[i]), texts[i]);
        const SerialThread link(&m_owner);
        const QList<int> values{send_nullatcommand_timer_s, send_nullatcommand_timer_100ms,
                                send_atcommand_timer};
        QTEST(values, "values");
    }

    void configuredTimeoutGoesOverTheCallers()
    {
        const LogCapture log;
        for (const int configured : {3, 4}) {
            send_atcommand_timer = configured;
            exchange([this] { return m_link->sendCmdAndRec("AT\r\n", 1, 7); }, "\r\nOK\r\n");
        }
        QCOMPARE(log.lines()[2], u"****** in resAtStr, timer_sec=1, timer_usec=7, con=10"_s);
        QCOMPARE(log.lines()[6], u"****** in resAtStr, timer_sec=4, timer_usec=7, con=40"_s);
    }

    void probe()
    {
        foundPortFlag = false;
        const LogCapture log;
        QCOMPARE(exchange([this] { return m_link->sendNULL_ATCmd(); }, "\r\nERROR\r\n"), 1);
        QCOMPARE(m_sent, "AT\r\n");
        QCOMPARE(log.lines().last(), u"AT_CMD_RES_STATE state is 103"_s);
        QCOMPARE(exchange([this] { return m_link->sendNULL_ATCmd(); }, "AT\r\r\nOK\r\n"), 1);
        QCOMPARE(log.lines().last(), u"AT_CMD_RES_STATE state is 86"_s);
        QCOMPARE(m_link->sendNULL_ATCmd(), -1);
        QVERIFY(!m_link->excuteAtStr("AT\r\n"));
    }

    void pendingSignalReport()
    {
        int values[3] = {};
        QCOMPARE(m_link->getSignalQualityR(3, values), -1);
        m_pty->write("\r\n+JRSSI: -71,-6,-80\r\n\r\n+CMTI: \"SM\",1\r\n");
        const LogCapture log;
        QCOMPARE(m_link->getSignalQualityR(3, values), 1);
        QCOMPARE(log.lines(), QStringList{u"rssi is -71.ecio is -6.rscp is -80"_s});
        QCOMPARE(QList<int>(values, values + 3), (QList<int>{-71, -6, -80}));
        QCOMPARE(m_owner.takeCalls().size(), 1);
        QCOMPARE(m_link->getSignalQualityR(3, values), -1);
    }

    void threadRunsTheStartJobs()
    {
        gManualSearch = gManualSelect = 1;
        gMode = u"1"_s;
        gFormat = u"0"_s;
        gOpt = u"Test Net"_s;
        gAct.clear();
        m_link->start();
        QCOMPARE(m_pty->readUntil("\n"), "AT+COPS=?\r\n");
        const QByteArray list = "\r\n+COPS: " + QByteArray(2000, '(') + "\r\n";
        m_pty->write(list + "\r\nOK\r\n");
        QCOMPARE(m_pty->readUntil("\n"), "AT+COPS=1,0,\"Test Net\"\r\n");
        m_pty->write("\r\n+CME ERROR: 30\r\n");
        QTRY_COMPARE(gWaitSearchOrSelectEnd.load(), 1);
        QCOMPARE(gManualSearchResult.load(), 1);
        QCOMPARE(gManualSelectResult.load(), 0);
        QCOMPARE(gManualSearch + gManualSelect, 0);
        QCOMPARE(QByteArray(gSearchStr), list.first(1023));
    }

    void threadLooksForThePort()
    {
        foundPortFlag = false;
        const LogCapture log;
        m_link->start();
        QTRY_COMPARE(m_owner.calls(), QStringList{u"findPortNames"_s});
        QCOMPARE(log.lines(), (QStringList{u"enter run......"_s, u"SerialThread: need to findPortName!"_s}));
        cmcfg.setValue(u"function"_s, u"findAtAndModemNewWay"_s, u"1"_s);
        QTRY_COMPARE(m_owner.calls(), (QStringList{u"findPortNames"_s, u"findPortNamesNew"_s})); // 2 s later
    }

private:
    /// Runs `work`, which writes one command, and answers it.
    int exchange(const std::function<int()> &work, const QByteArray &reply)
    {
        auto result = inBackground(work);
        m_sent = m_pty->readUntil("\n");
        m_pty->write(reply);
        return result.get();
    }

    static inline const std::pair<QString, QString> settings[] = {
        {u"function"_s, u"cancelManualSearch_enabled"_s},
        {u"function"_s, u"findAtAndModemNewWay"_s},
        {u"network"_s, u"serchNetworkAlowSentAt_enabled"_s},
        {u"network_dialer_setting"_s, u"send_nullatcommand_timer_s"_s},
        {u"network_dialer_setting"_s, u"send_nullatcommand_timer_100ms"_s},
        {u"network_dialer_setting"_s, u"send_atcommand_timer"_s},
    };

    ScratchFolder m_folder;
    FakeOwner m_owner;
    std::unique_ptr<Pty> m_pty;
    std::unique_ptr<SerialThread> m_link;
    QByteArray m_sent;
};

QTEST_GUILESS_MAIN(TestTransaction)
#include "tst_transaction.moc"
