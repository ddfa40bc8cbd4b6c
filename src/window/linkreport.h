// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QObject>
#include <QString>
#include <optional>

namespace corva
{

/// What the card told by itself, one value for each receiver of `LinkOwner`.
enum class LinkReport {
    StkMainMenu,
    StkSessionEnded,
    StkSubMenu,
    StkInputWanted,
    StkText,
    StkSmsState,
    DeliveryReport,
    ImmediateMessage,
    CellBroadcast,
    Ussd,
    PeerRings,
    PeerRingsLocally,
    PeerAnswered,
    RingOrMessage, ///< the report's text, or an empty text at the end of a call
    RingStopped,
    CallFailed,
    CallWaiting
};

/// Takes the card's reports from the thread that read them to the GUI thread, in order. Pages listen here.
class ReportHub final : public QObject
{
    Q_OBJECT

public:
    explicit ReportHub(QObject *parent = nullptr);

    /// To be called on any thread; the signal follows on this object's thread.
    void post(LinkReport report, const QString &text = {});

Q_SIGNALS:
    void sigReport(corva::LinkReport report, const QString &text);
    /// The same still on the thread that posted it; not to be listened to.
    void sigPosted(corva::LinkReport report, const QString &text);
};

/// A notification for the desktop. A newer one with the same `key` replaces the older.
struct ReportNotice {
    QString key;
    QString title;
    QString body;
    bool operator==(const ReportNotice &) const = default;
};

/// What the person is told about a report right away; nothing for reports that mean something only to a page.
std::optional<ReportNotice> noticeFor(LinkReport report, const QString &text);
/// The key of a notification that the report ends; empty when it ends none.
QString noticeEndedBy(LinkReport report, const QString &text);

} // namespace corva

Q_DECLARE_METATYPE(corva::LinkReport)
