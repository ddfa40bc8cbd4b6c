// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/immediateparts.h"
#include "sms/message.h"
#include "sms/smscardjobs.h"

#include <QFuture>
#include <QObject>
#include <functional>
#include <set>

namespace corva
{

class CardPlaces;
class CardWorker;
class MessageStore;

/// Files what the card reports: messages, announced or delivered, delivery reports, immediate messages, cell
/// broadcasts. A text from the card may come more than once; what it brings is filed once.
class SmsReception final : public QObject
{
    Q_OBJECT

public:
    using NameLookup = std::function<QString(const QString &number)>;

    SmsReception(CardWorker &worker, MessageStore *store, CardPlaces *places, QObject *parent);
    void setNameLookup(NameLookup lookup) { m_nameFor = std::move(lookup); }

    /// "+CMTI:" and "+CMT:".
    void takeMessages(const QByteArray &text);
    /// "+CDSI:".
    void takeDeliveryReports(const QByteArray &text);
    /// "+JCLAS:".
    void takeImmediate(const QByteArray &text);
    /// "+CBM:".
    void takeBroadcasts(const QByteArray &text);

    /// What came into the report store while nobody looked.
    void readKeptReports();
    /// Unread messages of the SIM or the card: takes them over to the computer where they belong there.
    void takeOver(const QStringList &ids);
    /// The same for new ones, which are announced, wherever they are then.
    void takeListed(const QStringList &ids);
    /// Files the report and tells of it as configured, then takes it from the card.
    void deliveryReportSaveToSmsXml(const smsjobs::KeptReport &report);

Q_SIGNALS:
    void sigNewMessage(const QString &id);
    void sigClass0(const QString &sender, const QString &text, const QString &pdu,
                   const corva::Message &message);
    void sigDelivered(const QString &sentence);
    void sigBroadcast(const QString &id);
    void sigNotice(const QString &sentence);

private:
    bool isRepeated(const QByteArray &text);
    void displayClass0Sms(const Message &message);
    void fileDelivered(const std::vector<ReportedPdu> &reports);
    void fetch(MessagePlace place, int index);
    void took(MessagePlace place, const smsjobs::Fetched &fetched);
    /// Files the message on the computer; then takes it from where it was. The id if it is new.
    QStringList keep(const Message &message);
    QStringList takenOver(const QStringList &ids);
    void announce(const QStringList &ids);
    QFuture<bool> fileReport(const StatusReport &report);
    QString sentenceFor(const StatusReport &report) const;
    void readAndDisplaySmsStatusReport(smsjobs::Storage storage, int index);

    CardWorker &m_worker;
    MessageStore *m_store;
    CardPlaces *m_places;
    NameLookup m_nameFor;
    ImmediateParts m_immediate;
    QByteArray m_lastText;                            ///< taken in this round of the event loop
    std::set<std::pair<MessagePlace, int>> m_fetched; ///< what is being fetched
};

} // namespace corva
