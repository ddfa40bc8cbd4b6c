// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/wvdialoutput.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

QByteArray transcript(const char *name)
{
    QFile file(QStringLiteral(CORVA_SOURCE_DIR "/tests/connection/transcripts/") + QString::fromLatin1(name) +
               u".txt"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// In short: "Interface=ppp0 PppEnded=4".
QString summary(const std::vector<WvdialEvent> &events)
{
    // In the order of the enumeration.
    static const QStringList names =
        u"PortFailed Initializing ModemSilent BadInit Dialling Carrier PppStarted Interface LocalAddress "
        "PeerAddress NameServer Busy NoCarrier NoAnswer NoDialTone CommandRefused AttemptsUsedUp Refused "
        "PppEnded Reconnecting Disconnecting Terminating"_s.split(u' ');
    QStringList list;
    for (const WvdialEvent &event : events) {
        const QString value = event.number != 0 ? QString::number(event.number) : event.text;
        list += names.value(int(event.kind)) + (value.isEmpty() ? value : u'=' + value);
    }
    return list.join(u' ');
}

std::vector<WvdialEvent> readInPieces(const QByteArray &text, qsizetype size)
{
    WvdialOutput output;
    std::vector<WvdialEvent> events;
    const auto add = [&events](const std::vector<WvdialEvent> &more) {
        events.insert(events.end(), more.begin(), more.end());
    };
    for (qsizetype at = 0; at < text.size(); at += size)
        add(output.feed(QByteArrayView(text).sliced(at, qMin(size, text.size() - at))));
    add(output.finish());
    return events;
}

} // namespace

class TestWvdialOutput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void realOutput_data();
    void realOutput();
    void hostileOutput_data();
    void hostileOutput();
};

void TestWvdialOutput::realOutput_data()
{
    QTest::addColumn<QString>("expected");
    const QString dial = u"Initializing Dialling"_s;
    const QString addresses = u" LocalAddress=10.1.2.3 PeerAddress=10.64.64.64 NameServer=10.64.64.65"_s;
    const QString ready = addresses + u" NameServer=10.64.64.66"_s;
    QTest::newRow("success") << dial + u" Carrier PppStarted=159 Interface=ppp0"_s + ready +
                                    u" Terminating=15 Disconnecting"_s;
    QTest::newRow("auth-pap-refused")
        << dial + u" Carrier PppStarted=250 Interface=ppp0 Disconnecting Refused PppEnded=19"_s;
    QTest::newRow("auth-pap-refused-debug")
        << dial + u" Carrier PppStarted=219 Interface=ppp0 Disconnecting Refused PppEnded=19"_s;
    QTest::newRow("bad-peers-option") << dial + u" Carrier PppStarted=511 Disconnecting PppEnded=2"_s;
    QTest::newRow("busy") << dial + u" Busy Disconnecting"_s;
    QTest::newRow("nocarrier") << dial + u" NoCarrier AttemptsUsedUp Disconnecting"_s;
    QTest::newRow("nodialtone") << dial + u" NoDialTone Disconnecting"_s;
    QTest::newRow("error-to-dial") << dial + u" CommandRefused Disconnecting"_s;
    QTest::newRow("no-ppp-in-kernel") << dial + u" Carrier PppStarted=19203 Disconnecting PppEnded=4"_s;
    QTest::newRow("connect-but-no-ppp")
        << dial + u" Carrier PppStarted=485 Interface=ppp0 Disconnecting PppEnded=17"_s;
    QTest::newRow("init-cme-error") << u"Initializing BadInit Initializing"_s;
    QTest::newRow("modem-silent") << u"Initializing ModemSilent"_s;
    const QString gone = u"PortFailed=/dev/ttyMODEM: No such file or directory"_s;
    QTest::newRow("no-device") << QStringList{gone, gone, gone}.join(u' ');
    const QString busy = u"PortFailed=/dev/ttyMODEM: Device or resource busy"_s;
    QTest::newRow("device-locked") << QStringList{busy, busy, busy}.join(u' ');
    QTest::newRow("peer-terminates-noreconnect")
        << dial + u" Carrier PppStarted=453 Interface=ppp0"_s + ready + u" Disconnecting PppEnded=16"_s;
    // The second pppd is said anew.
    QTest::newRow("peer-terminates")
        << dial + u" Carrier PppStarted=395 Interface=ppp0"_s + ready +
               u" Disconnecting PppEnded=16 Reconnecting Initializing Initializing Dialling Carrier "
               "PppStarted=420 Interface=ppp0"_s +
               ready + u" Terminating=15 Disconnecting"_s;
    const QString missing = u" PortFailed=/dev/ttyUSB1: No such file or directory"_s;
    QTest::newRow("unplug-while-connected")
        << dial + u" Carrier PppStarted=306 Interface=ppp0"_s + addresses +
               u" NameServer=10.64.64.65 Disconnecting PppEnded=16 Reconnecting"_s + missing + missing +
               missing + u" Disconnecting"_s;
}

void TestWvdialOutput::realOutput()
{
    QFETCH(QString, expected);
    const QByteArray text = transcript(QTest::currentDataTag());
    QVERIFY(!text.isEmpty());
    for (const qsizetype size : {qsizetype(1), qsizetype(7), text.size()})
        QCOMPARE(summary(readInPieces(text, size)), expected);
}

void TestWvdialOutput::hostileOutput_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a line without an end") << QByteArray("--> The line is busy.") << u"Busy"_s;
    QTest::newRow("the modem repeats wvdial's words")
        << QByteArray("xx --> The line is busy.\n") << QString();
    QTest::newRow("no address") << QByteArray("--> local  IP address 10.1.2.300\n") << QString();
    QTest::newRow("two words for a name") << QByteArray("--> Using interface ppp0 -x\n") << QString();
    QTest::newRow("a number too large") << QByteArray("--> Pid of pppd: 99999999999999999999\n") << QString();
    QTest::newRow("status of no number") << QByteArray("--> died (exit code = x)\n") << QString();
    QTest::newRow("a line of megabytes") << QByteArray(4'000'000, 'a') + "\n--> The line is busy.\n"
                                         << u"Busy"_s;
    QTest::newRow("zero bytes") << QByteArray("\0\0\n--> The line is busy.\n\0", 26) << u"Busy"_s;
}

void TestWvdialOutput::hostileOutput()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);
    QCOMPARE(summary(readInPieces(text, 4096)), expected);
}

QTEST_APPLESS_MAIN(TestWvdialOutput)
#include "tst_wvdialoutput.moc"
