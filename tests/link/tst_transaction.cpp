// SPDX-License-Identifier: GPL-3.0-or-later
#include "../rows.h"
#include "link/replyreader.h"
#include "link/serialthread.h"
#include "linktest.h"
#include "shell/commoncfg.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

// A search that runs; "can be cancelled, may be disturbed" as configured; whether the command is sent.
const Rows<bool, QString, const char *, bool> gatesRows{
    {"nothing runs", false, u"1,0"_s, "AT+CSQ\r\n", true},
    {"search runs", true, u"0,0"_s, "AT+CSQ\r\n", false},
    {"search runs, keys missing", true, u","_s, "AT\r\n", false},
    {"search may be disturbed", true, u"0,1"_s, "AT+CSQ\r\n", true},
    {"search can be cancelled", true, u"1,1"_s, "AT+CSQ\r\n", false},
    {"the search itself", true, u"1,0"_s, "AT+COPS=?\r\n", true},
    {"almost the search", true, u"1,0"_s, "AT+COPS=?\r", false},
};

const Rows<QString> secretsAreMaskedRows{
    {"AT+CPIN=\"4711\"", u"AT+CPIN=\"****\""_s},
    {"AT+CPIN=\"47114711\",\"4711\"", u"\"********\",\"****\""_s},
    {"AT+APWIFIW=1,2,a4711z", u"=1,2,******"_s},
};

// Probe's seconds and tenths, time-out of a reply: as configured, and as taken.
const Rows<QString, QList<int>> timersRows{
    {"none", u"  "_s, {0, 1, 3}},
    {"lowest", u"0 1 1"_s, {0, 1, 1}},
    {"highest", u"15 15 60"_s, {15, 15, 60}},
    {"above", u"16 16 61"_s, {0, 1, 3}},
    {"below", u"-1 0 0"_s, {0, 1, 3}},
    {"any tenths beside seconds", u"2 99 4"_s, {2, 99, 4}},
    {"no numbers", u"a b c"_s, {0, 1, 3}},
};

const Rows<QByteArray, QByteArray> tornMessageIsWholeRows{
    {"before the message", "\r\n+CMT: ,24\r\n", "0791\r\n"},
    {"in the message", "+CMT: ,24\r\n07", "91\r\n"},
    {"in the line before it", "OTHER\r\n+CM", "T: ,24\r\n0791\r\n"},
};

const Rows<int, int> silenceSpendsTheBudgetRows{
    {"none", 0, 5},
    {"less than a round", 99999, 5},
    {"three rounds", 300000, 315},
};

} // namespace

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

    void gates_data() { addRows(gatesRows); }
    void gates()
    {
        const auto &[name, searching, keys, cmd, passes] = currentRow(gatesRows);
        cmcfg.setValue(u"function"_s, u"cancelManualSearch_enabled"_s, keys.section(u',', 0, 0));
        cmcfg.setValue(u"network"_s, u"serchNetworkAlowSentAt_enabled"_s, keys.section(u',', 1));
        m_link->setCOPSCmdSendingStatus(searching);
        QCOMPARE(m_link->excuteAtStr(cmd), passes);
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
        QCOMPARE(withoutRounds(log),
                 (QStringList{u"purgeComData:: \r\nOK\r\n"_s, u"sent cmd: AT+CSQ\r\n"_s,
                              u"****** Cmd of JEND find!"_s,
                              u"****** in resAtStr, timer_sec=1, timer_usec=500000"_s,
                              u"****** in resAtStr, pResStr = \r\n+CSQ: 5,9\r\nOK\r\n"_s}));
    }

    void secretsAreMasked_data() { addRows(secretsAreMaskedRows); }
    void secretsAreMasked()
    {
        const auto &[secret, shown] = currentRow(secretsAreMaskedRows);
        const QByteArray cmd = QByteArray(secret) + "\r\n";
        const LogCapture log;
        m_pty->write(cmd); // an echo that comes late
        exchange([&] { return m_link->sendCmdAndRec(cmd.constData(), 1, 0); }, cmd + "\r\nOK\r\n");
        QCOMPARE(m_sent, cmd);
        QVERIFY2(!log.lines().join(u'|').contains(u"4711"_s), qPrintable(log.lines().join(u'|')));
        QCOMPARE(log.lines().filter(shown).size(), 3); // drained, sent, in the reply
    }

    void silenceSpendsTheBudget_data() { addRows(silenceSpendsTheBudgetRows); }
    void silenceSpendsTheBudget()
    {
        const auto &[name, microseconds, least] = currentRow(silenceSpendsTheBudgetRows);
        std::vector<char> reply(SerialThread::replyBufferSize, 'x');
        m_pty->write("\r\n+CSQ: 1"); // half a reply is no reply
        const LogCapture log;
        QElapsedTimer time;
        time.start();
        QCOMPARE(m_link->resAtStr(m_link->descriptor(), reply.data(), 0, microseconds), -1);
        QVERIFY2(time.elapsed() >= least - 2 && time.elapsed() < least + 3000,
                 qPrintable(QString::number(time.elapsed())));
        QCOMPARE(QByteArray(reply.data()), QByteArray());
        QCOMPARE(log.lines(), QStringList{u"****** select of SerialThread::resAtStr is timerout"_s});
        QVERIFY(!receive_flag);
    }

    /// Nobody sends them again, whatever became of the command that they came into.
    void reportsAreSeenWithoutAReply()
    {
        m_owner.takeCalls();
        std::vector<char> reply(SerialThread::replyBufferSize);
        m_pty->write("+CUSD: 0\r\n");
        QCOMPARE(m_link->resAtStr(m_link->descriptor(), reply.data(), 0, 100000), -1);
        QCOMPARE(QByteArray(reply.data()), QByteArray());
        QVERIFY2(m_owner.takeCalls().join(u'|').contains(u"+CUSD: 0"_s), "time-out");
        exchange([this] { return m_link->sendCmdAndRec("AT+CSQ\r\n", 1, 500000); },
                 "+CUSD: 0\r\n+JEND\r\n\r\n+CSQ: 5,9\r\nOK\r\n");
        QVERIFY2(m_owner.takeCalls().join(u'|').contains(u"+CUSD: 0"_s), "thrown away");
    }

    /// A message that is torn by the end of the wait is put together when its rest comes.
    void tornMessageIsWhole_data() { addRows(tornMessageIsWholeRows); }
    void tornMessageIsWhole()
    {
        const auto &[name, begun, rest] = currentRow(tornMessageIsWholeRows);
        std::vector<char> reply(SerialThread::replyBufferSize);
        m_owner.takeCalls();
        m_pty->write(begun);
        QCOMPARE(m_link->resAtStr(m_link->descriptor(), reply.data(), 0, 100000), -1);
        m_pty->write(rest);
        m_link->purgeComData();
        const QStringList delivered = m_owner.takeCalls().filter(u"+CMT:"_s);
        QCOMPARE(delivered.size(), 1);
        QVERIFY2(delivered.first().contains(u"+CMT: ,24\r\n0791"_s), qPrintable(delivered.first()));
    }

    void arrivingBytesCostNoBudget()
    {
        auto result = sent(1s);
        const QByteArray reply = "\r\n+CSQ: 20,9\r\n\r\nOK\r\n";
        for (const char byte : reply) { // 1.2 s in all: the pace is what is tested
            QTest::qWait(60);
            m_pty->write({&byte, 1});
        }
        QCOMPARE(result.get(), 32);
    }

    void tricklesWithoutEndAreGivenUp()
    {
        QElapsedTimer time;
        time.start();
        auto result = sent(2s);
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

    void longWaitsEndAtOnce()
    {
        auto endless = sent(60s);
        m_pty->write(QByteArray(corva::ReplyReader::capacity + 1, 'x'));
        QCOMPARE(endless.get(), 102);
        QVERIFY(!m_link->hasReadAhead());

        const LogCapture log;
        auto unplugged = sent(60s);
        m_pty->write("\r\n+CS");
        m_pty->unplug();
        QCOMPARE(unplugged.wait_for(5s), std::future_status::ready);
        QCOMPARE(unplugged.get(), 102);
        QVERIFY(m_link->isPortLost());
        QCOMPARE(log.lines().last(), u"SerialThread::resAtStr() ===> no data to read!"_s);
        QCOMPARE(m_link->sendCmdAndRec("AT+CSQ\r\n", 60, 0), 103);
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

    void timers_data() { addRows(timersRows); }
    void timers()
    {
        const auto &[name, texts, expected] = currentRow(timersRows);
        const char *const names[] = {"send_nullatcommand_timer_s", "send_nullatcommand_timer_100ms",
                                     "send_atcommand_timer"};
        for (int i = 0; i < 3; ++i)
            cmcfg.setValue(u"network_dialer_setting"_s, QString::fromLatin1(names[i]),
                           texts.section(u' ', i, i));
        const SerialThread link(&m_owner);
        const QList<int> values{send_nullatcommand_timer_s, send_nullatcommand_timer_100ms,
                                send_atcommand_timer};
        QCOMPARE(values, expected);
    }

    void configuredTimeoutGoesOverTheCallers()
    {
        const LogCapture log;
        for (const int configured : {3, 4}) {
            send_atcommand_timer = configured;
            exchange([this] { return m_link->sendCmdAndRec("AT\r\n", 1, 7); }, "\r\nOK\r\n");
        }
        QCOMPARE(withoutRounds(log)[2], u"****** in resAtStr, timer_sec=1, timer_usec=7"_s);
        QCOMPARE(withoutRounds(log)[6], u"****** in resAtStr, timer_sec=4, timer_usec=7"_s);
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
    /// Without the rounds that are left of the time-out: a busy machine spends some.
    static QStringList withoutRounds(const LogCapture &log)
    {
        return log.lines().replaceInStrings(QRegularExpression(u", con=\\d+$"_s), {});
    }

    /// A command that the far side has read; its reply may take so long.
    std::future<int> sent(std::chrono::microseconds timeout)
    {
        auto result = inBackground([this, timeout] {
            return m_link->sendCmdAndRec("AT+CSQ\r\n", int(timeout / 1s), int((timeout % 1s).count()));
        });
        m_pty->readUntil("\n");
        return result;
    }

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
