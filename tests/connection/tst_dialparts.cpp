// SPDX-License-Identifier: GPL-3.0-or-later
// The pure parts of dialling: what is spoken with the helper, what the system's files say.
#include "../rows.h"
#include "connection/dhcpclient.h"
#include "connection/dialwire.h"
#include "connection/linkfacts.h"
#include "connection/processsession.h"

#include <QTemporaryDir>
#include <QTest>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

const Rows<QByteArray, bool> optionsInTheirRangeRows{
    {"below it", R"({"mtu":127})", false},       {"the most", R"({"mtu":16384})", true},
    {"above it", R"({"mtu":16385})", false},     {"a text", R"({"mtu":"1500\nplugin evil.so"})", false},
    {"half a byte", R"({"mtu":1500.5})", false}, {"another option of pppd", R"({"connect":1})", false},
};

const QByteArray head =
    "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n";
const QByteArray ppp = "ppp0\t00000000\t00000000\t0001\t0\t0\t0\t00000000\t0\t0\t0\n";
const QByteArray lan = "eth0\t00000000\t0101A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n";
const QByteArray host = "ppp0\t4040400A\t00000000\t0005\t0\t0\t0\tFFFFFFFF\t0\t0\t0\n";
const Rows<QByteArray, QString, QString> routesRows{
    {"none", head + host, {}, {}},
    {"over the link", head + host + ppp, u"ppp0"_s, {}},
    {"two, the cheaper one", head + lan + ppp, u"ppp0"_s, {}},
    {"over a gateway", head + lan, u"eth0"_s, u"192.168.1.1"_s},
    {"cut off", head + lan.left(20), {}, {}},
};

const QByteArray rest = " S 10 20 30 0 -1 4194304 1 2 3 4 5 6 7 8 9 10 11 12 777 13 14\n";
const Rows<QByteArray, QByteArray, int> processLinesRows{
    {"a name that plays fields", "40 (a) Z 1 1 1)" + rest, "a) Z 1 1 1", 30},
    {"cut off", "40 (wvdial) S 10 20", {}, -1},
    {"nothing", {}, {}, -1},
};

} // namespace

class TestDialParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void requestsArriveAsTheyWere()
    {
        DialRequest request{.verb = DialVerb::Write};
        for (int i = 0; i < profileFieldCount; ++i)
            request.profile.setText(ProfileField(i), u"\"%1\"\n\\é€"_s.arg(i));
        request.modemPort = u"/dev/ttyUSB2"_s;
        request.options.values[0] = 4;
        request.options.values[6] = 1500;
        const QByteArray line = toLine(request);
        QCOMPARE(line.count('\n'), 1);
        const auto there = requestFromLine(line);
        QVERIFY(there);
        QCOMPARE(there->verb, DialVerb::Write);
        QVERIFY(there->profile == request.profile && there->options == request.options);
        QCOMPARE(there->modemPort, request.modemPort);
    }

    void noRequests()
    {
        for (const char *line : {"", R"({"verb":"Save"})", R"({"verb":"dial","port":"/dev/ttyUSB0"})",
                                 R"({"verb":"lease","port":"/dev/ttyUSB0"})",
                                 R"({"verb":"lease","port":["/dev/ttyUSB0"],"interface":"wwan0"})",
                                 R"({"verb":"write","profile":["Home"],"port":"/dev/ttyUSB0","options":{}})",
                                 R"({"verb":"nameServers","servers":["1.1.1.1","1.1.1.2","1.1.1.3"]})",
                                 R"({"verb":"save"}{"verb":"dial"})"})
            QVERIFY2(!requestFromLine(line), line);
    }

    void optionsInTheirRange_data() { addRows(optionsInTheirRangeRows); }
    void optionsInTheirRange()
    {
        const auto &[name, options, isTaken] = currentRow(optionsInTheirRangeRows);
        QByteArray line = toLine(DialRequest{.verb = DialVerb::Write});
        line.replace("\"options\":{}", "\"options\":" + options);
        QCOMPARE(requestFromLine(line).has_value(), isTaken);
    }

    void eventsArriveAsTheyWere()
    {
        QByteArray everyByte;
        for (int byte = 0; byte < 256; ++byte)
            everyByte += char(byte);
        const auto output = eventFromLine(toLine(DialEvent{DialEvent::Kind::Output, {}, everyByte}));
        QVERIFY(output);
        QCOMPARE(output->output, everyByte);
        const DialEvent refused{DialEvent::Kind::Done, {DialResult::Kind::NoRights, u"No."_s}, {}};
        const auto there = eventFromLine(toLine(refused));
        QVERIFY(there);
        QCOMPARE(there->result.kind, DialResult::Kind::NoRights);
        QCOMPARE(there->result.error, u"No."_s);
    }

    void linesInPieces()
    {
        LineCutter cutter;
        QVERIFY(cutter.feed("on").empty());
        QCOMPARE(cutter.feed("e\ntwo\nth"), (std::vector<QByteArray>{"one", "two"}));
        QCOMPARE(cutter.feed("ree\n"), std::vector<QByteArray>{"three"});
        cutter.feed(QByteArray(LineCutter::longestLine, 'x'));
        QVERIFY(!cutter.isBroken());
        cutter.feed("x");
        QVERIFY(cutter.isBroken());
        QVERIFY(cutter.feed("\nsave\n").empty());
    }

    void routes_data() { addRows(routesRows); }
    void routes()
    {
        const auto &[name, table, interfaceName, gateway] = currentRow(routesRows);
        const DefaultRoute route = defaultRouteIn(table).value_or(DefaultRoute());
        QCOMPARE(route.interfaceName, interfaceName);
        QCOMPARE(route.gateway, gateway);
    }

    void nameServers()
    {
        const QByteArray text =
            "# nameserver 1.1.1.1\nnameserver 10.64.64.65\n\nsearch x\nnameserver\tfe80::1 # y\nnameserver\n";
        QCOMPARE(nameServersIn(text), (QStringList{u"10.64.64.65"_s, u"fe80::1"_s}));
    }

    /// A file outlives its writer, and another process may have its number meanwhile.
    void staleLinkFile()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"ppp0.pid"_s));
        QVERIFY(!hasLinkFile({file.fileName()}));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QByteArray::number(getpid())) > 0);
        file.close();
        QVERIFY(!hasLinkFile({file.fileName()}));
    }

    void processLines_data() { addRows(processLinesRows); }
    void processLines()
    {
        const auto &[title, line, name, session] = currentRow(processLinesRows);
        const auto stat = parseProcessStat(line);
        QCOMPARE(stat ? stat->name : QByteArray(), name);
        QCOMPARE(stat ? int(stat->session) : -1, session);
        QVERIFY(!stat || (stat->startTime == 777 && stat->pid == 40 && !stat->isZombie()));
    }

    void notedSessionOfAStranger()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"session"_s);
        QVERIFY(noteSession(path, getsid(0)) || getsid(0) == 0);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write(QByteArray::number(getpid()) + " 1\n") > 0); // not when this process started
        file.close();
        QCOMPARE(notedSession(path), 0);
    }

    void interfaceNames()
    {
        for (const QString &name : {u"wwan0"_s, u"enx0250f4000000"_s, u"usb0.1"_s})
            QVERIFY(DhcpClient::isInterfaceName(name));
        for (const QString &name :
             {u""_s, u"-r"_s, u"a b"_s, u"../eth0"_s, u"wwan0\n"_s, u"abcdefghijklmnop"_s})
            QVERIFY(!DhcpClient::isInterfaceName(name));
    }
};

QTEST_GUILESS_MAIN(TestDialParts)
#include "tst_dialparts.moc"
