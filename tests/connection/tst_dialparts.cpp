// SPDX-License-Identifier: GPL-3.0-or-later
// The pure parts of dialling: what is spoken with the helper, what the system's files say.
#include "connection/dhcpclient.h"
#include "connection/dialwire.h"
#include "connection/linkfacts.h"
#include "connection/processsession.h"

#include <QTemporaryDir>
#include <QTest>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace corva;

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

    void noRequests_data()
    {
        QTest::addColumn<QByteArray>("line");
        const auto row = [](const char *name, const char *line) { QTest::newRow(name) << QByteArray(line); };
        row("nothing", "");
        row("an unknown verb", R"({"verb":"Save"})");
        row("a member too many", R"({"verb":"dial","port":"/dev/ttyUSB0"})");
        row("a member too few", R"({"verb":"lease","port":"/dev/ttyUSB0"})");
        row("a port that is no text", R"({"verb":"lease","port":["/dev/ttyUSB0"],"interface":"wwan0"})");
        row("half a profile", R"({"verb":"write","profile":["Home"],"port":"/dev/ttyUSB0","options":{}})");
        row("three servers", R"({"verb":"nameServers","servers":["1.1.1.1","1.1.1.2","1.1.1.3"]})");
        row("a line that goes on", R"({"verb":"save"}{"verb":"dial"})");
    }
    void noRequests()
    {
        QFETCH(QByteArray, line);
        QVERIFY(!requestFromLine(line));
    }

    void optionsInTheirRange_data()
    {
        QTest::addColumn<QByteArray>("options");
        QTest::addColumn<bool>("isTaken");
        QTest::newRow("below it") << QByteArray(R"({"mtu":127})") << false;
        QTest::newRow("the most") << QByteArray(R"({"mtu":16384})") << true;
        QTest::newRow("above it") << QByteArray(R"({"mtu":16385})") << false;
        QTest::newRow("a text") << QByteArray(R"({"mtu":"1500\nplugin evil.so"})") << false;
        QTest::newRow("half a byte") << QByteArray(R"({"mtu":1500.5})") << false;
        QTest::newRow("another option of pppd") << QByteArray(R"({"connect":1})") << false;
    }
    void optionsInTheirRange()
    {
        QFETCH(QByteArray, options);
        QByteArray line = toLine(DialRequest{.verb = DialVerb::Write});
        line.replace("\"options\":{}", "\"options\":" + options);
        QTEST(requestFromLine(line).has_value(), "isTaken");
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

    void routes_data()
    {
        QTest::addColumn<QByteArray>("table");
        QTest::addColumn<QString>("interfaceName");
        QTest::addColumn<QString>("gateway");
        const QByteArray head =
            "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\t"
            "IRTT\n";
        const QByteArray ppp = "ppp0\t00000000\t00000000\t0001\t0\t0\t0\t00000000\t0\t0\t0\n";
        const QByteArray lan = "eth0\t00000000\t0101A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n";
        const QByteArray host = "ppp0\t4040400A\t00000000\t0005\t0\t0\t0\tFFFFFFFF\t0\t0\t0\n";
        QTest::newRow("none") << head + host << QString() << QString();
        QTest::newRow("over the link") << head + host + ppp << u"ppp0"_s << QString();
        QTest::newRow("two, the cheaper one") << head + lan + ppp << u"ppp0"_s << QString();
        QTest::newRow("over a gateway") << head + lan << u"eth0"_s << u"192.168.1.1"_s;
        QTest::newRow("cut off") << head + lan.left(20) << QString() << QString();
    }
    void routes()
    {
        QFETCH(QByteArray, table);
        const DefaultRoute route = defaultRouteIn(table).value_or(DefaultRoute());
        QTEST(route.interfaceName, "interfaceName");
        QTEST(route.gateway, "gateway");
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

    void processLines_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<int>("session");
        const QByteArray rest = " S 10 20 30 0 -1 4194304 1 2 3 4 5 6 7 8 9 10 11 12 777 13 14\n";
        QTest::newRow("a name that plays fields")
            << "40 (a) Z 1 1 1)" + rest << QByteArray("a) Z 1 1 1") << 30;
        QTest::newRow("cut off") << QByteArray("40 (wvdial) S 10 20") << QByteArray() << -1;
        QTest::newRow("nothing") << QByteArray() << QByteArray() << -1;
    }
    void processLines()
    {
        QFETCH(QByteArray, line);
        const auto stat = parseProcessStat(line);
        QTEST(stat ? stat->name : QByteArray(), "name");
        QTEST(stat ? int(stat->session) : -1, "session");
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
