// SPDX-License-Identifier: GPL-3.0-or-later
#include "../files.h"
#include "../rows.h"
#include "connection/wvdialoutput.h"

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

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

const QString dial = u"Initializing Dialling"_s;
const QString addresses = u" LocalAddress=10.1.2.3 PeerAddress=10.64.64.64 NameServer=10.64.64.65"_s;
const QString ready = addresses + u" NameServer=10.64.64.66"_s;
const QString missing = u" PortFailed=/dev/ttyUSB1: No such file or directory"_s;

// By the name of the transcript.
const Rows<QString> realOutputRows{
    {"success",
     dial + u" Carrier PppStarted=159 Interface=ppp0"_s + ready + u" Terminating=15 Disconnecting"_s},
    {"auth-pap-refused",
     dial + u" Carrier PppStarted=250 Interface=ppp0 Disconnecting Refused PppEnded=19"_s},
    {"auth-pap-refused-debug",
     dial + u" Carrier PppStarted=219 Interface=ppp0 Disconnecting Refused PppEnded=19"_s},
    {"bad-peers-option", dial + u" Carrier PppStarted=511 Disconnecting PppEnded=2"_s},
    {"busy", dial + u" Busy Disconnecting"_s},
    {"nocarrier", dial + u" NoCarrier AttemptsUsedUp Disconnecting"_s},
    {"nodialtone", dial + u" NoDialTone Disconnecting"_s},
    {"error-to-dial", dial + u" CommandRefused Disconnecting"_s},
    {"no-ppp-in-kernel", dial + u" Carrier PppStarted=19203 Disconnecting PppEnded=4"_s},
    {"connect-but-no-ppp", dial + u" Carrier PppStarted=485 Interface=ppp0 Disconnecting PppEnded=17"_s},
    {"init-cme-error", u"Initializing BadInit Initializing"_s},
    {"modem-silent", u"Initializing ModemSilent"_s},
    {"no-device", u" PortFailed=/dev/ttyMODEM: No such file or directory"_s.repeated(3).trimmed()},
    {"device-locked", u" PortFailed=/dev/ttyMODEM: Device or resource busy"_s.repeated(3).trimmed()},
    {"peer-terminates-noreconnect",
     dial + u" Carrier PppStarted=453 Interface=ppp0"_s + ready + u" Disconnecting PppEnded=16"_s},
    {"peer-terminates", // the second pppd is said anew
     dial + u" Carrier PppStarted=395 Interface=ppp0"_s + ready +
         u" Disconnecting PppEnded=16 Reconnecting Initializing Initializing Dialling Carrier "
         "PppStarted=420 Interface=ppp0"_s +
         ready + u" Terminating=15 Disconnecting"_s},
    {"unplug-while-connected", dial + u" Carrier PppStarted=306 Interface=ppp0"_s + addresses +
                                   u" NameServer=10.64.64.65 Disconnecting PppEnded=16 Reconnecting"_s +
                                   missing.repeated(3) + u" Disconnecting"_s},
};

const Rows<QByteArray, QString> hostileOutputRows{
    {"a line without an end", "--> The line is busy.", u"Busy"_s},
    {"the modem repeats wvdial's words", "xx --> The line is busy.\n", {}},
    {"no address", "--> local  IP address 10.1.2.300\n", {}},
    {"two words for a name", "--> Using interface ppp0 -x\n", {}},
    {"a number too large", "--> Pid of pppd: 99999999999999999999\n", {}},
    {"status of no number", "--> died (exit code = x)\n", {}},
    {"a line of megabytes", QByteArray(4'000'000, 'a') + "\n--> The line is busy.\n", u"Busy"_s},
    {"zero bytes", QByteArray("\0\0\n--> The line is busy.\n\0", 26), u"Busy"_s},
};

} // namespace

class TestWvdialOutput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void realOutput_data() { addRows(realOutputRows); }
    void realOutput()
    {
        const auto &[name, expected] = currentRow(realOutputRows);
        const QString folder = QStringLiteral(CORVA_SOURCE_DIR "/tests/connection/transcripts/");
        const QByteArray text = contentOf(folder + QString::fromLatin1(name) + u".txt"_s);
        QVERIFY(!text.isEmpty());
        for (const qsizetype size : {qsizetype(1), qsizetype(7), text.size()})
            QCOMPARE(summary(readInPieces(text, size)), expected);
    }

    void hostileOutput_data() { addRows(hostileOutputRows); }
    void hostileOutput()
    {
        const auto &[name, text, expected] = currentRow(hostileOutputRows);
        QCOMPARE(summary(readInPieces(text, 4096)), expected);
    }
};

QTEST_APPLESS_MAIN(TestWvdialOutput)
#include "tst_wvdialoutput.moc"
