// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/cmserrors.h"
#include "sms/smsreplies.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace corva;

/// What the card says of messages, by itself and when asked.
class TestSmsReplies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lists_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QByteArray>("messages"); // index,status,length:pdu
        QTest::newRow("plain")
            << QByteArray("\r\n+CMGL: 3,1,,23\r\n0791AA\r\n+CMGL: 1,0,,24\r\n0791BB\r\n\r\nOK\r\n")
            << QByteArray("1,0,24:0791BB 3,1,23:0791AA");
        QTest::newRow("with the echo")
            << QByteArray("AT+CMGL=4\r\r\n+CMGL: 1,2,,9\r\n00AA\r\n\r\nOK\r\n") << QByteArray("1,2,9:00AA");
        QTest::newRow("a name, with a comma in it")
            << QByteArray("+CMGL: 7,3,\"Doe, Jo\",12\r\n00AB\r\n\r\nOK\r\n") << QByteArray("7,3,12:00AB");
        QTest::newRow("no third field")
            << QByteArray("+CMGL: 7,1,12\r\n00AB\r\nOK\r\n") << QByteArray("7,1,12:00AB");
        QTest::newRow("an announcement between line and PDU")
            << QByteArray(
                   "+CMGL: 1,1,,9\r\n\r\n+CMTI: \"SM\",5\r\n\r\n00AA\r\n+CMGL: 2,1,,9\r\n00BB\r\nOK\r\n")
            << QByteArray("1,1,9:00AA 2,1,9:00BB");
        QTest::newRow("a delivered message between line and PDU")
            << QByteArray(
                   "+CMGL: 1,1,,9\r\n\r\n+CMT: ,20\r\n00CC\r\n\r\n00AA\r\n+CMGL: 2,1,,9\r\n00BB\r\nOK\r\n")
            << QByteArray("1,1,9:00AA 2,1,9:00BB");
        QTest::newRow("a status of its own")
            << QByteArray("+CMGL: 1,9,,9\r\n00AA\r\nOK\r\n") << QByteArray("1,9,9:00AA");
        QTest::newRow("the PDU is missing") << QByteArray("+CMGL: 1,1,,9\r\n+CMGL: 2,1,,9\r\n00BB\r\nOK\r\n")
                                            << QByteArray("1,1,9: 2,1,9:00BB");
        QTest::newRow("cut off") << QByteArray("+CMGL: 1,1,,9\r\n00AA\r\n+CMGL: 2,1")
                                 << QByteArray("1,1,9:00AA 2,1,-1:");
        QTest::newRow("no numbers") << QByteArray("+CMGL: a,b,,c\r\n00AA\r\n+CMGL: 2,1,,9\r\n00BB\r\nOK\r\n")
                                    << QByteArray("-1,-1,-1:00AA 2,1,9:00BB");
        QTest::newRow("a PDU that was damaged on its way")
            << QByteArray("+CMGL: 1,1,,9\r\n07A?91\r\n+CMGL: 2,1,,9\r\n00BB\r\nOK\r\n")
            << QByteArray("1,1,9:07A?91 2,1,9:00BB");
        QTest::newRow("a report of letters between line and PDU")
            << QByteArray("+CMGL: 1,1,,9\r\nANSWER\r\n00AA\r\nOK\r\n") << QByteArray("1,1,9:00AA");
        QTest::newRow("a place that no card has")
            << QByteArray("+CMGL: 65536,1,,9\r\n00AA\r\nOK\r\n") << QByteArray("-1,-1,-1:00AA");
    }
    void lists()
    {
        QFETCH(QByteArray, reply);
        QByteArrayList messages;
        for (const ListedSms &each : parseSmsList(reply))
            messages += QByteArray::number(each.index) + ',' + QByteArray::number(each.status) + ',' +
                        QByteArray::number(each.length) + ':' + each.pdu;
        QTEST(messages.join(' '), "messages");
    }

    void readsOne()
    {
        const auto read = parseReadSms("AT+CMGR=3\r\r\n+CMGR: 0,\"Doe\",24\r\n07AA\r\n\r\nOK\r\n");
        QVERIFY(read);
        QCOMPARE(*read, (ListedSms{-1, 0, 24, "07AA"}));
        QCOMPARE(parseReadSms("+CMGR: 0,,24\r\n07.A\r\n\r\nOK\r\n"), (ListedSms{-1, 0, 24, "07.A"}));
        QCOMPARE(parseReadSms("+CMGR: x,,24\r\nOK\r\n"), (ListedSms{-1, -1, 24, {}})); // no empty place
        QVERIFY(!parseReadSms("\r\nOK\r\n"));
        QVERIFY(!parseReadSms("\r\n+CMS ERROR: 321\r\n"));
    }

    void everyReportOfAText()
    {
        const QByteArray text =
            "\r\n+CMT: ,24\r\n07AA\r\n\r\n+CMTI: \"SM\",3\r\n\r\nRING\r\n\r\n+CMT: \"Doe\",25\r\n07BB\r\n"
            "\r\n+CMTI: \"ME\",70000\r\n+CMT: ,20\r\n07?C\r\n+CMT: ,20\r\n";
        QCOMPARE(parseReportedPdus(text, "+CMT:"),
                 (std::vector<ReportedPdu>{{24, "07AA"}, {25, "07BB"}, {20, "07?C"}, {20, {}}}));
        QCOMPARE(parseStoredReports(text, "+CMTI:"),
                 (std::vector<StoredReport>{{u"SM"_s, 3}, {u"ME"_s, -1}}));
        QCOMPARE(parseReportedPdus("+CBM: 88\r\n0010\r\n", "+CBM:"),
                 (std::vector<ReportedPdu>{{88, "0010"}}));
        QCOMPARE(parseReportedPdus("+JCLAS: 1,,30\r\n07CC\r\n", "+JCLAS:"),
                 (std::vector<ReportedPdu>{{30, "07CC"}}));
    }

    void fills_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<int>("named"); // free places on the SIM, -1 not told
        QTest::addColumn<int>("any");
        QTest::newRow("asked") << QByteArray("+CPMS: \"ME\",5,23,\"SM\",7,20,\"SM\",7,20\r\n\r\nOK\r\n") << 13
                               << 13;
        QTest::newRow("asked, other stores")
            << QByteArray("+CPMS: \"ME\",5,23,\"ME\",5,23,\"ME\",5,23\r\nOK\r\n") << -1 << -1;
        QTest::newRow("selected") << QByteArray("+CPMS: 7,20,7,20,5,23\r\n\r\nOK\r\n") << -1 << 13;
        QTest::newRow("more used than there is") << QByteArray("+CPMS: 21,20\r\nOK\r\n") << -1 << 0;
        QTest::newRow("nonsense") << QByteArray("+CPMS: x,20,-1\r\nOK\r\n") << -1 << -1;
    }
    void fills()
    {
        QFETCH(QByteArray, reply);
        const auto spare = [](const std::optional<StoreFill> &fill) { return fill ? fill->spare() : -1; };
        QTEST(spare(parseNamedFill(reply, "SM")), "named");
        QTEST(spare(parseFill(reply, "SM")), "any");
    }

    void serviceCentre_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QString>("number");
        QTest::newRow("plain") << QByteArray("+CSCA: \"+491710760000\",145\r\nOK\r\n") << u"+491710760000"_s;
        QTest::newRow("the plus in the type")
            << QByteArray("+CSCA: \"491710760000\",145\r\nOK\r\n") << u"+491710760000"_s;
        QTest::newRow("national") << QByteArray("+CSCA: \"01710760000\",129\r\nOK\r\n") << u"01710760000"_s;
        QTest::newRow("as UCS2") << QByteArray("+CSCA: \"002B0034003900310037\",145\r\nOK\r\n") << u"+4917"_s;
        QTest::newRow("digits that might be UCS2")
            << QByteArray("+CSCA: \"00491710\",129\r\nOK\r\n") << u"00491710"_s;
        QTest::newRow("none") << QByteArray("+CSCA: \"\",129\r\nOK\r\n") << QString();
        QTest::newRow("no number") << QByteArray("+CSCA: \"a;b\",129\r\nOK\r\n") << QString();
    }
    void serviceCentre()
    {
        QFETCH(QByteArray, reply);
        QTEST(parseServiceCentre(reply), "number");
    }

    void nearestModes()
    {
        const QByteArray offered = "+CNMI: (0-2),(0-3),(0,2),(0,1),(0,1)\r\nOK\r\n";
        QCOMPARE(nearestNoticeModes("3,1,2,2,0", offered), QByteArray("2,1,2,0,0"));
        QCOMPARE(nearestNoticeModes("3,1,2,2,0", "ERROR\r\n"), QByteArray("3,1,2,2,0"));
        QCOMPARE(nearestNoticeModes("3,1", "+CNMI: (),(9-4),("), QByteArray("3,1"));
    }

    void refusals()
    {
        QVERIFY(!cmsErrorIn("+CMGS: 3\r\n\r\nOK\r\n"));
        QCOMPARE(cmsErrorIn("\r\n+CMS ERROR: 322\r\n"), std::optional(CmsError{322, {}}));
        QCOMPARE(cmsErrorIn("\r\nERROR\r\n"), std::optional(CmsError{-1, {}}));
        QCOMPARE(cmsErrorIn("\r\n+CMS ERROR: Memory full\r\n"), std::optional(CmsError{322, {}}));
        QCOMPARE(cmsErrorIn("\r\n+CMS ERROR: 65536\r\n"), std::optional(CmsError{-1, u"65536"_s}));
        QCOMPARE(cmsErrorIn("\r\n+CME ERROR: 14\r\n"), std::optional(CmsError{314, {}}));
        QCOMPARE(cmsErrorIn("\r\n+CME ERROR: 9999\r\n"), std::optional(CmsError{-1, u"9999"_s}));
        QCOMPARE(cmsErrorText({322, {}}), u"The memory for messages is full."_s);
        QCOMPARE(cmsErrorText({-1, u"on strike"_s}), u"The card says: on strike"_s);
        QCOMPARE(cmsErrorText({9999, {}}), u"The card refuses, with the code 9999."_s);
        const QString notYet = u"The message could not be delivered yet; the network goes on trying."_s;
        QCOMPARE(deliveryStatusText(0x1F), u"The message was delivered."_s);
        QCOMPARE(deliveryStatusText(0x20), notYet + u" The network is overloaded."_s);
        QCOMPARE(deliveryStatusText(0x30), notYet);
        QCOMPARE(deliveryStatusText(0x46), u"The message could not be delivered in time."_s);
        QCOMPARE(deliveryStatusText(0x65), u"The recipient's device failed."_s);
        for (const int unknown : {-1, 0x50, 0xC0})
            QCOMPARE(deliveryStatusText(unknown), u"The message could not be delivered."_s);
    }
};

QTEST_GUILESS_MAIN(TestSmsReplies)
#include "tst_smsreplies.moc"
