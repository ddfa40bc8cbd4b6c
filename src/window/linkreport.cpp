// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/linkreport.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

const QString callKey = u"call"_s;
const QString messageKey = u"message"_s;

QString text(const char *source)
{
    return QCoreApplication::translate("Notices", source);
}

ReportNotice incomingCall()
{
    return {callKey, text(QT_TRANSLATE_NOOP("Notices", "Incoming call")),
            text(QT_TRANSLATE_NOOP("Notices", "The card is ringing."))};
}

ReportNotice newMessage(const char *body)
{
    return {messageKey, text(QT_TRANSLATE_NOOP("Notices", "New message")), text(body)};
}

std::optional<ReportNotice> ringOrMessage(const QString &report)
{
    if (report.contains("RING"_L1))
        return incomingCall();
    if (report.contains("+CMTI:"_L1))
        return newMessage(QT_TRANSLATE_NOOP("Notices", "A new message has arrived on the card"));
    if (report.contains("+CMT:"_L1))
        return newMessage(QT_TRANSLATE_NOOP("Notices", "A new message has arrived"));
    return {};
}

} // namespace

ReportHub::ReportHub(QObject *parent) : QObject(parent)
{
    connect(this, &ReportHub::sigPosted, this, &ReportHub::sigReport, Qt::QueuedConnection);
}

void ReportHub::post(LinkReport report, const QString &text)
{
    Q_EMIT sigPosted(report, text);
}

std::optional<ReportNotice> noticeFor(LinkReport report, const QString &reportText)
{
    switch (report) {
    case LinkReport::RingOrMessage: return ringOrMessage(reportText);
    case LinkReport::ImmediateMessage:
        return newMessage(QT_TRANSLATE_NOOP("Notices", "An immediate message has arrived"));
    case LinkReport::CallWaiting:
        return ReportNotice{callKey, text(QT_TRANSLATE_NOOP("Notices", "Incoming call")),
                            text(QT_TRANSLATE_NOOP("Notices", "Another call is waiting."))};
    default: return {};
    }
}

QString noticeEndedBy(LinkReport report, const QString &reportText)
{
    const bool callEnded = report == LinkReport::RingStopped || report == LinkReport::CallFailed ||
                           (report == LinkReport::RingOrMessage && reportText.isEmpty());
    return callEnded ? callKey : QString();
}

} // namespace corva
