// SPDX-License-Identifier: GPL-3.0-or-later
#include "../rows.h"
#include "link/serialthread.h"
#include "linktest.h"
#include "shell/commoncfg.h"

using namespace Qt::StringLiterals;

namespace
{

// "*" stands for the text.
const Rows<QString, QString> tableRows{
    {"stored message", u"+CMTI: \"SM\",3\r\n"_s, u"getSmsAndVoice(*)"_s},
    {"whatever brings a message, or is about one",
     u"+CMTI: \"SM\",3\r\n+CMT: ,23\r\n+CDSI: \"SR\",1\r\n+JCLAS: 0\r\n+CBM: 88\r\n"_s,
     u"getSmsAndVoice(*) getSmsAndVoice(*) smsStatusReported(*) class0SmsReceived(*) "
     "cellBroadcastReceived(*)"_s},
    {"whatever the SIM's programs say",
     u"+JPSTM: 1\r\n+JEND\r\n+JSTI: 1\r\n+JGINP: 1\r\n+JDIST: 1\r\n+JSMSR: 1\r\n"_s,
     u"stkReportBuildMainMenu(*) stkRebuildMainMenu stkEnterSubMenu(*) stkQueryInputText(*) stkShowText(*) "
     "stkReportSmsState(*)"_s},
    {"it rings here for there", u"RINGBACKLOCAL\r\n"_s, u"peerStartRingLocal"_s},
    {"picked up", u"ANSWER\r\n"_s, u"peerPickupPhone"_s},
    {"hung up", u"HANGUP: 1\r\n"_s, u"getSmsAndVoice"_s},
    {"ring", u"RING\r\n"_s, u"getSmsAndVoice(*)"_s},
    {"ring without line end", u"RING"_s, u""_s},
    {"STOPRING rings too", u"STOPRING\r\n"_s, u"getSmsAndVoice(*) cancelRing"_s},
    {"NO ANSWER answers too", u"NO ANSWER\r\n"_s, u"peerPickupPhone"_s},
    {"call failed", u"VOICE NO CARRIER\r\n"_s, u"callFailed"_s},
    {"data line failed", u"NO CARRIER\r\n"_s, u""_s},
    {"waiting call", u"+CCWA: \"555\",129,1\r\n"_s, u"callIsWaiting(*)"_s},
    {"call-waiting query", u"+CCWA: 1,1\r\n\r\nOK\r\n"_s, u""_s},
    {"twice in one text", u"+CMTI: \"SM\",3\r\n+CMTI: \"SM\",4\r\n"_s, u"getSmsAndVoice(*)"_s},
    {"table's order", u"RING\r\nANSWER\r\n+CUSD: 0\r\n+CMTI: 1\r\n"_s,
     u"getSmsAndVoice(*) ussdReportService(*) peerPickupPhone getSmsAndVoice(*)"_s},
    {"in the middle of a reply", u"AT+CSQ\r\r\n+CMTI: \"SM\",3\r\n+CSQ: 1,1\r\nOK\r\n"_s,
     u"getSmsAndVoice(*)"_s},
};

// The condition that is not met.
const Rows<QString, QString> conditionsRows{
    {"no calls", u"calls"_s,
     u"RINGBACK\r\nRINGBACKLOCAL\r\nANSWER\r\nHANGUP:RING\r\nSTOPRING\r\nVOICE NO CARRIER"_s},
    {"no delivery reports", u"delivery"_s, u"+CDSI: 1\r\n"_s},
    {"not ready for them", u"ready"_s, u"+CDSI: 1\r\n"_s},
    {"no SIM message states", u"stk"_s, u"+JSMSR\r\n"_s},
};

const Rows<QString, int, int> dataCallStateRows{
    {"up", u"+JPDPACT: 1,1\r\n"_s, 1, 1},
    {"down, then up", u"+JPDPACT: 1,0\r\n+JPDPACT: 1,1\r\n"_s, 0, 1},
    {"all, 2 is last in the table", u"+JPDPACT: 1,2+JPDPACT: 1,3+JPDPACT: 1,0+JPDPACT: 1,1"_s, 2, 1},
    {"3 beats 0", u"+JPDPACT: 1,3+JPDPACT: 1,0"_s, 3, 0},
    {"other context, state kept", u"+JPDPACT: 2,1\r\n"_s, 3, 0},
};

} // namespace

class TestReports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void table_data() { addRows(tableRows); }
    void table()
    {
        const auto &[name, text, calls] = currentRow(tableRows);
        cmcfg.setValue(u"call"_s, u"enable"_s, u"1"_s);
        m_link.findUpReportAtCmd(text);
        QCOMPARE(m_owner.takeCalls().join(u' '), QString(calls).replace(u'*', text));
    }

    void conditions_data() { addRows(conditionsRows); }
    void conditions()
    {
        const auto &[name, without, text] = currentRow(conditionsRows);
        cmcfg.setValue(u"call"_s, u"enable"_s, without == u"calls"_s ? u"2"_s : u"1"_s);
        m_owner.deliveryReports = without != u"delivery"_s;
        m_owner.ready = without != u"ready"_s;
        m_owner.stkSmsState = without != u"stk"_s;
        m_link.findUpReportAtCmd(text + u"+CCWA: 1\r\n+JPDPACT: 1,1"_s);
        QCOMPARE(m_owner.takeCalls().size(), 1); // a waiting call is told in any case
        QCOMPARE(m_link.dataCallState(), 1);
    }

    void dataCallState_data() { addRows(dataCallStateRows); }
    void dataCallState()
    {
        const auto &[name, text, state, latest] = currentRow(dataCallStateRows);
        m_link.findUpReportAtCmd(text);
        QCOMPARE(m_link.dataCallState(), state);
        QCOMPARE(m_link.latestDataCallState(), latest);
    }

private:
    ScratchFolder m_folder;
    FakeOwner m_owner;
    SerialThread m_link{&m_owner};
};

QTEST_GUILESS_MAIN(TestReports)
#include "tst_reports.moc"
