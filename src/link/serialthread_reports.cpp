// SPDX-License-Identifier: GPL-3.0-or-later
#include "linkowner.h"
#include "reporttable.h"
#include "serialthread.h"
#include "shell/commoncfg.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using corva::Report;

/// The state that the last data-call report of the text tells, or -1.
static int lastDataCallState(const QString &text)
{
    static const QRegularExpression form(u"\\+JPDPACT: 1,([0-3])"_s);
    QRegularExpressionMatch match;
    return text.lastIndexOf(form, -1, &match) < 0 ? -1 : match.captured(1).toInt();
}

void SerialThread::findUpReportAtCmd(QString text)
{
    if (text.isEmpty())
        return;
    if (text.contains("+JRSSI:"_L1))
        m_radioReport = text.toLatin1();
    if (const int state = lastDataCallState(text); state >= 0)
        m_latestDataCallState = state;
    const corva::ReportConditions conditions{
        .deliveryReports = m_owner->wantsDeliveryReports() && m_owner->isReadyForReports(),
        .stkSmsState = m_owner->wantsStkSmsState(),
        .calls = cmcfg.getNumber(u"call"_s, u"enable"_s) == 1,
    };
    for (const Report report : corva::findReports(text, conditions)) {
        switch (report) {
        case Report::MessageStored: findAtiveMsg(text, u"+CMTI: "_s); break;
        case Report::MessageDelivered: findAtiveMsg(text, u"+CMT: "_s); break;
        case Report::DeliveryReport: findSmsStatusReport(text); break;
        case Report::Class0Message: receiveClass0Sms(text); break;
        case Report::StkMainMenu: m_owner->stkReportBuildMainMenu(text); break;
        case Report::StkEnd: m_owner->stkRebuildMainMenu(); break;
        case Report::StkSubMenu: m_owner->stkEnterSubMenu(text); break;
        case Report::StkInput: m_owner->stkQueryInputText(text); break;
        case Report::StkText: m_owner->stkShowText(text); break;
        case Report::StkSmsState: m_owner->stkReportSmsState(text); break;
        case Report::Ussd: m_owner->ussdReportService(text); break;
        case Report::CellBroadcast: handleCellBoard(text); break;
        case Report::RingBack: m_owner->peerStartRing(); break;
        case Report::RingBackLocal: m_owner->peerStartRingLocal(); break;
        case Report::Answer: m_owner->peerPickupPhone(); break;
        case Report::HangUp: m_owner->getSmsAndVoice(QString()); break;
        case Report::Ring: m_owner->getSmsAndVoice(text); break;
        case Report::StopRing: m_owner->cancelRing(); break;
        case Report::CallFailed: m_owner->callFailed(); break;
        case Report::CallWaiting: m_owner->callIsWaiting(text); break;
        case Report::DataCallDown: m_dataCallState = 0; break;
        case Report::DataCallUp: m_dataCallState = 1; break;
        case Report::DataCallState2: m_dataCallState = 2; break;
        case Report::DataCallState3: m_dataCallState = 3; break;
        }
    }
}

void SerialThread::findAtiveMsg(QString &text, const QString &)
{
    m_owner->getSmsAndVoice(text);
}

void SerialThread::findSmsStatusReport(const QString &text)
{
    m_owner->smsStatusReported(text);
}

void SerialThread::receiveClass0Sms(const QString &text)
{
    m_owner->class0SmsReceived(text);
}

void SerialThread::handleCellBoard(const QString &text)
{
    m_owner->cellBroadcastReceived(text);
}
