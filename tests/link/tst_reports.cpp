// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/serialthread.h"
#include "linktest.h"
#include "shell/commoncfg.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestReports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void table_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("calls"); // "*" stands for the text
        const auto row = [](const char *name, const QString &text, const QString &calls) {
            QTest::newRow(name) << text << calls;
        };
        row("stored message", u"+CMTI: \"SM\",3\r\n"_s, u"getSmsAndVoice(*)"_s);
        row("delivered message", u"+CMT: ,23\r\n0791\r\n"_s, u"getSmsAndVoice(*)"_s);
        row("delivery report", u"+CDSI: \"SR\",1\r\n"_s, u"smsStatusReported(*)"_s);
        row("flash message", u"+JCLAS: 0\r\n"_s, u"class0SmsReceived(*)"_s);
        row("SIM menu", u"+JPSTM: 1\r\n"_s, u"stkReportBuildMainMenu(*)"_s);
        row("SIM session over", u"+JEND\r\n"_s, u"stkRebuildMainMenu"_s);
        row("SIM submenu", u"+JSTI: 1\r\n"_s, u"stkEnterSubMenu(*)"_s);
        row("SIM asks", u"+JGINP: 1\r\n"_s, u"stkQueryInputText(*)"_s);
        row("SIM shows", u"+JDIST: 1\r\n"_s, u"stkShowText(*)"_s);
        row("SIM sent", u"+JSMSR: 1\r\n"_s, u"stkReportSmsState(*)"_s);
        row("USSD", u"+CUSD: 0,\"12\",15\r\n"_s, u"ussdReportService(*)"_s);
        row("cell broadcast", u"+CBM: 88\r\n"_s, u"cellBroadcastReceived(*)"_s);
        row("it rings there", u"RINGBACK\r\n"_s, u"peerStartRing"_s);
        row("it rings here for there", u"RINGBACKLOCAL\r\n"_s, u"peerStartRingLocal"_s);
        row("both", u"RINGBACKLOCAL\r\nRINGBACK\r\n"_s, u"peerStartRing"_s);
        row("picked up", u"ANSWER\r\n"_s, u"peerPickupPhone"_s);
        row("hung up", u"HANGUP: 1\r\n"_s, u"getSmsAndVoice"_s);
        row("ring", u"RING\r\n"_s, u"getSmsAndVoice(*)"_s);
        row("ring without line end", u"RING"_s, u""_s);
        row("STOPRING rings too", u"STOPRING\r\n"_s, u"getSmsAndVoice(*) cancelRing"_s);
        row("NO ANSWER answers too", u"NO ANSWER\r\n"_s, u"peerPickupPhone"_s);
        row("call failed", u"VOICE NO CARRIER\r\n"_s, u"callFailed"_s);
        row("data line failed", u"NO CARRIER\r\n"_s, u""_s);
        row("waiting call", u"+CCWA: \"555\",129,1\r\n"_s, u"callIsWaiting(*)"_s);
        row("call-waiting query", u"+CCWA: 1,1\r\n\r\nOK\r\n"_s, u""_s);
        row("twice in one text", u"+CMTI: \"SM\",3\r\n+CMTI: \"SM\",4\r\n"_s, u"getSmsAndVoice(*)"_s);
        row("table's order", u"RING\r\nANSWER\r\n+CUSD: 0\r\n+CMTI: 1\r\n"_s,
            u"getSmsAndVoice(*) ussdReportService(*) peerPickupPhone getSmsAndVoice(*)"_s);
        row("in the middle of a reply", u"AT+CSQ\r\r\n+CMTI: \"SM\",3\r\n+CSQ: 1,1\r\nOK\r\n"_s,
            u"getSmsAndVoice(*)"_s);
        row("nothing", u""_s, u""_s);
        row("unknown", u"+CREG: 1\r\n+CMTI:\r\n"_s, u""_s);
    }
    void table()
    {
        QFETCH(QString, text);
        QFETCH(QString, calls);
        cmcfg.setValue(u"call"_s, u"enable"_s, u"1"_s);
        m_link.findUpReportAtCmd(text);
        QCOMPARE(m_owner.takeCalls().join(u' '), calls.replace(u'*', text));
    }

    void conditions_data()
    {
        QTest::addColumn<QString>("without"); // the condition that is not met
        QTest::addColumn<QString>("text");
        QTest::newRow("no calls") << u"calls"_s
                                  << u"RINGBACK\r\nRINGBACKLOCAL\r\nANSWER\r\nHANGUP:RING\r\n"
                                     "STOPRING\r\nVOICE NO CARRIER"_s;
        QTest::newRow("no delivery reports") << u"delivery"_s << u"+CDSI: 1\r\n"_s;
        QTest::newRow("not ready for them") << u"ready"_s << u"+CDSI: 1\r\n"_s;
        QTest::newRow("no SIM message states") << u"stk"_s << u"+JSMSR\r\n"_s;
    }
    void conditions()
    {
        QFETCH(QString, without);
        QFETCH(QString, text);
        cmcfg.setValue(u"call"_s, u"enable"_s, without == u"calls"_s ? u"2"_s : u"1"_s);
        m_owner.deliveryReports = without != u"delivery"_s;
        m_owner.ready = without != u"ready"_s;
        m_owner.stkSmsState = without != u"stk"_s;
        m_link.findUpReportAtCmd(text + u"+CCWA: 1\r\n+JPDPACT: 1,1"_s);
        QCOMPARE(m_owner.takeCalls().size(), 1); // a waiting call is told in any case
        QCOMPARE(m_link.dataCallState(), 1);
    }

    void dataCallState_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("latest");
        QTest::newRow("up") << u"+JPDPACT: 1,1\r\n"_s << 1 << 1;
        QTest::newRow("down") << u"+JPDPACT: 1,0\r\n"_s << 0 << 0;
        QTest::newRow("down, then up") << u"+JPDPACT: 1,0\r\n+JPDPACT: 1,1\r\n"_s << 0 << 1;
        QTest::newRow("all, 2 is last in the table")
            << u"+JPDPACT: 1,2+JPDPACT: 1,3+JPDPACT: 1,0+JPDPACT: 1,1"_s << 2 << 1;
        QTest::newRow("3 beats 0") << u"+JPDPACT: 1,3+JPDPACT: 1,0"_s << 3 << 0;
        QTest::newRow("other context, state kept") << u"+JPDPACT: 2,1\r\n"_s << 3 << 0;
    }
    void dataCallState()
    {
        QFETCH(QString, text);
        m_link.findUpReportAtCmd(text);
        QTEST(m_link.dataCallState(), "state");
        QTEST(m_link.latestDataCallState(), "latest");
    }

private:
    ScratchFolder m_folder;
    FakeOwner m_owner;
    SerialThread m_link{&m_owner};
};

QTEST_GUILESS_MAIN(TestReports)
#include "tst_reports.moc"
