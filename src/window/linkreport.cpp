// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/linkreport.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

const QString callKey = u"call"_s;

QString text(const char *source)
{
    return QCoreApplication::translate("Notices", source);
}

ReportNotice incomingCall()
{
    return {callKey, text(QT_TRANSLATE_NOOP("Notices", "Incoming call")),
            text(QT_TRANSLATE_NOOP("Notices", "The card is ringing."))};
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
    case LinkReport::RingOrMessage:
        return reportText.contains("RING"_L1) ? std::optional(incomingCall()) : std::nullopt;
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
