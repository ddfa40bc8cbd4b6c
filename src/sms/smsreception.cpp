// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/smsreception.h"

#include "link/cardworker.h"
#include "shell/commoncfg.h"
#include "shell/whendone.h"
#include "sms/cardplaces.h"
#include "sms/messagestore.h"
#include "sms/smsfiling.h"
#include "sms/smspdu.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// "newsmsLocation": new messages go to the computer.
bool goToComputer()
{
    constexpr int computer = 2;
    return cmcfg.getNumber(u"sms"_s, u"newsmsLocation"_s) == computer;
}

/// The store that a report names; the SIM's for one that is not known by its name.
MessagePlace placeOf(const QString &store)
{
    return store == "ME"_L1 || store == "MT"_L1 ? MessagePlace::Card : MessagePlace::Sim;
}

QString timeText(const QDateTime &time)
{
    return time.isValid() ? QLocale().toString(time, QLocale::ShortFormat) : QString();
}

} // namespace

SmsReception::SmsReception(CardWorker &worker, MessageStore *store, CardPlaces *places, QObject *parent)
    : QObject(parent), m_worker(worker), m_store(store), m_places(places)
{
}

// --- Messages
// ----------------------------------------------------------------------------------------------------

void SmsReception::takeMessages(const QByteArray &text)
{
    fileDelivered(parseReportedPdus(text, "+CMT:"));
    for (const StoredReport &report : parseStoredReports(text, "+CMTI:")) {
        if (goToComputer())
            fetch(placeOf(report.store), report.index);
        else
            m_places->refresh(placeOf(report.store)); // which does not mark it as read before it is known
    }
}

void SmsReception::fileDelivered(const std::vector<ReportedPdu> &reports)
{
    QDateTime now = QDateTime::currentDateTime();
    for (const ReportedPdu &report : reports) {
        constexpr int unread = 0;
        now = now.addMSecs(1); // one came behind the other
        const FiledSms filed = fileSms({-1, unread, report.length, report.pdu}, MessagePlace::Computer, now);
        if (const auto *message = std::get_if<Message>(&filed))
            announce(keep(*message));
        else
            fileReport(std::get<StatusReport>(filed), -1);
    }
}

void SmsReception::fetch(MessagePlace place, int index)
{
    const auto job =
        m_worker.submit([place, index](SerialThread &link) { return smsjobs::fetch(link, place, index); });
    whenDone(job, this, [this, place](const std::optional<smsjobs::Fetched> &fetched) {
        if (fetched)
            took(place, *fetched);
    });
}

void SmsReception::took(MessagePlace place, const smsjobs::Fetched &fetched)
{
    m_places->takeFill(place, fetched.fill);
    if (fetched.report)
        fileReport(*fetched.report, -1);
    if (!fetched.fault.isEmpty())
        Q_EMIT sigNotice(tr("A new message could not be read from the card: %1").arg(fetched.fault));
    if (!fetched.message) {
        m_places->refresh(place); // it may be there all the same
        return;
    }
    Message message = *fetched.message;
    message.isRead = false; // reading it from the card marked it there, and nobody saw it
    announce(keep(message));
}

QStringList SmsReception::keep(const Message &message)
{
    Message copy = message;
    copy.place = MessagePlace::Computer;
    const MessageStore::Added added = m_store->insert({copy});
    if (message.parts.front().storageIndex < 0)
        return added.made;
    whenDone(added.stored, this, [this, message, ids = added.ids](std::optional<bool> isStored) {
        if (isStored.value_or(false))
            m_places->takeFromCard(ids, message);
        else
            Q_EMIT sigNotice(tr("A new message could not be written to disk and stays on the card."));
    });
    return added.made;
}

void SmsReception::takeListed(const QStringList &ids)
{
    if (goToComputer())
        announce(takenOver(ids));
    else
        announce(ids);
}

void SmsReception::takeOver(const QStringList &ids)
{
    if (goToComputer())
        takenOver(ids);
}

QStringList SmsReception::takenOver(const QStringList &ids)
{
    QStringList made;
    for (const Message &message : m_store->messages(ids)) {
        for (const MessagePart &part : message.parts) {
            if (part.pdu.isEmpty())
                continue;
            Message single = message;
            single.id.clear();
            single.parts = {part};
            made += keep(single);
        }
    }
    return made;
}

void SmsReception::announce(const QStringList &ids)
{
    for (const QString &id : ids)
        Q_EMIT sigNewMessage(id);
}

void SmsReception::takeImmediate(const QByteArray &text)
{
    for (const ReportedPdu &report : parseReportedPdus(text, "+JCLAS:")) {
        const SmsResult result = decodeSms(report.pdu, SmsDirection::FromNetwork);
        const QString pdu = QString::fromLatin1(report.pdu);
        if (const auto *sms = std::get_if<DecodedSms>(&result))
            Q_EMIT sigClass0(sms->address, sms->text, pdu);
        else
            Q_EMIT sigClass0({}, std::get<PduError>(result).text(), pdu);
    }
}

void SmsReception::takeBroadcasts(const QByteArray &text)
{
    const QDateTime now = QDateTime::currentDateTime();
    for (const ReportedPdu &report : parseReportedPdus(text, "+CBM:")) {
        for (const QString &id : m_store->insert({fileBroadcast(report.pdu, now)}).made)
            Q_EMIT sigBroadcast(id);
    }
}

// --- Delivery reports
// --------------------------------------------------------------------------------------------

void SmsReception::takeDeliveryReports(const QByteArray &text)
{
    for (const StoredReport &report : parseStoredReports(text, "+CDSI:"))
        fetchReport(report.index);
}

void SmsReception::fetchReport(int index)
{
    const auto job =
        m_worker.submit([index](SerialThread &link) { return smsjobs::fetchReport(link, index); });
    whenDone(job, this, [this, index](const std::optional<smsjobs::Fetched> &fetched) {
        if (fetched && fetched->report)
            fileReport(*fetched->report, index);
        else if (fetched && fetched->message)
            m_store->insert({*fetched->message});
        else if (fetched && !fetched->fault.isEmpty())
            Q_EMIT sigNotice(tr("A delivery report could not be read from the card: %1").arg(fetched->fault));
    });
}

void SmsReception::readKeptReports()
{
    const auto job = m_worker.submit([](SerialThread &link) { return smsjobs::listReports(link); });
    whenDone(job, this, [this](const std::optional<std::vector<smsjobs::KeptReport>> &kept) {
        if (!kept)
            return;
        for (const auto &[index, pdu] : *kept) {
            const QDateTime now = QDateTime::currentDateTime();
            if (const auto report = corva::fileReport(pdu, now))
                fileReport(*report, index);
            else
                m_store->insert({fileBrokenReport(pdu, now)});
        }
    });
}

void SmsReception::fileReport(const StatusReport &report, int index)
{
    const MessageStore::Reported reported = m_store->applyReport(report);
    if (reported.isNew && cmcfg.getNumber(u"sms"_s, u"deliveryReportMsgDlgShow"_s) == 1)
        Q_EMIT sigDelivered(sentenceFor(report));
    if (index < 0)
        return;
    whenDone(reported.stored, this, [this, index, pdu = report.pdu](std::optional<bool> isStored) {
        if (isStored.value_or(false))
            removeReport(index, pdu);
    });
}

void SmsReception::removeReport(int index, const QString &pdu)
{
    m_worker.submit([index, pdu](SerialThread &link) { smsjobs::removeReport(link, index, pdu.toLatin1()); });
}

QString SmsReception::sentenceFor(const StatusReport &report) const
{
    const QString name = m_nameFor(report.recipient);
    if (deliveryOutcome(report.status) == DeliveryOutcome::Delivered)
        return tr("Message was successfully sent to %1, in %2,at %3")
            .arg(name, timeText(report.sent), timeText(report.discharge));
    return tr("The message to %1: %2").arg(name, deliveryStatusText(report.status));
}

} // namespace corva
