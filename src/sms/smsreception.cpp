// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/smsreception.h"

#include "link/cardworker.h"
#include "shell/commoncfg.h"
#include "shell/whendone.h"
#include "sms/cardplaces.h"
#include "sms/messagestore.h"
#include "sms/smsfiling.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTimer>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

/// The parts of an immediate message come one behind the other.
constexpr auto patienceForParts = 30s;

/// "newsmsLocation": new messages go to the computer.
bool goToComputer()
{
    constexpr int computer = 2;
    return cmcfg.getNumber(u"sms"_s, u"newsmsLocation"_s) == computer;
}

/// The store that a report names; the SIM's for one that is not known by its name.
MessagePlace placeOf(const QString &store)
{
    const bool isCard = smsjobs::storageNamed(store, smsjobs::Storage::Sim) == smsjobs::Storage::Card;
    return isCard ? MessagePlace::Card : MessagePlace::Sim;
}

QString timeText(const QDateTime &time)
{
    return time.isValid() ? QLocale().toString(time.toLocalTime(), QLocale::ShortFormat) : QString();
}

} // namespace

SmsReception::SmsReception(CardWorker &worker, MessageStore *store, CardPlaces *places, QObject *parent)
    : QObject(parent), m_worker(worker), m_store(store), m_places(places), m_immediate(patienceForParts)
{
    connect(&m_immediate, &ImmediateParts::sigReady, this, &SmsReception::displayClass0Sms);
}

// --- Messages
// ----------------------------------------------------------------------------------------------------

/// A text that holds reports of several kinds is handed on once for each kind.
bool SmsReception::isRepeated(const QByteArray &text)
{
    if (m_lastText.isEmpty())
        QTimer::singleShot(0, this, [this] { m_lastText.clear(); });
    return std::exchange(m_lastText, text) == text;
}

void SmsReception::takeMessages(const QByteArray &text)
{
    if (isRepeated(text))
        return;
    fileDelivered(parseReportedPdus(text, "+CMT:"));
    for (const StoredReport &report : parseStoredReports(text, "+CMTI:")) {
        const MessagePlace place = placeOf(report.store);
        m_places->expect(place, report.index);
        if (goToComputer() && report.index >= 0)
            fetch(place, report.index);
        else
            m_places->refresh(place); // which does not mark it as read before it is known
    }
}

void SmsReception::fileDelivered(const std::vector<ReportedPdu> &reports)
{
    QDateTime now = QDateTime::currentDateTime();
    for (const ReportedPdu &report : reports) {
        constexpr int unread = 0;
        now = now.addMSecs(1); // one came behind the other
        const FiledSms filed = fileSms({-1, unread, report.length, report.pdu}, MessagePlace::Computer, now,
                                       SmsDirection::FromNetwork);
        if (const auto *message = std::get_if<Message>(&filed))
            announce(keep(*message));
        else
            fileReport(std::get<StatusReport>(filed));
    }
}

void SmsReception::fetch(MessagePlace place, int index)
{
    if (!m_fetched.insert({place, index}).second)
        return;
    const auto job =
        m_worker.submit([place, index](SerialThread &link) { return smsjobs::fetch(link, place, index); });
    whenDone(job, this, [this, place, index](const std::optional<smsjobs::Fetched> &fetched) {
        m_fetched.erase({place, index});
        if (!fetched)
            return;
        took(place, *fetched);
        if (fetched->message || fetched->report)
            return;
        m_places->expect(place, index); // it may be there all the same, marked as read by now
        m_places->refresh(place);
    });
}

void SmsReception::took(MessagePlace place, const smsjobs::Fetched &fetched)
{
    m_places->takeFill(place, fetched.fill);
    if (fetched.report)
        deliveryReportSaveToSmsXml(*fetched.report);
    if (!fetched.fault.isEmpty())
        Q_EMIT sigNotice(tr("A new message could not be read from the card: %1").arg(fetched.fault));
    if (fetched.message)
        announce(keep(*fetched.message));
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
    for (const QString &id : ids) {
        if (const auto message = m_store->find(id); message && !message->isRead)
            Q_EMIT sigNewMessage(id);
    }
}

void SmsReception::takeImmediate(const QByteArray &text)
{
    const QDateTime now = QDateTime::currentDateTime();
    for (const ReportedPdu &report : parseReportedPdus(text, "+JCLAS:")) {
        constexpr int read = 1;
        FiledSms filed = fileSms({-1, read, report.length, report.pdu}, MessagePlace::Computer, now,
                                 SmsDirection::FromNetwork);
        if (auto *message = std::get_if<Message>(&filed))
            m_immediate.take(std::move(*message));
        else
            fileReport(std::get<StatusReport>(filed));
    }
}

void SmsReception::displayClass0Sms(const Message &message)
{
    const QString sender = message.recipients.value(
        0, QCoreApplication::translate("Messages", "Unknown sender")); // its PDU cannot be read
    Q_EMIT sigClass0(sender, message.error.isEmpty() ? message.text() : message.error,
                     message.parts.front().pdu, message);
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
    using smsjobs::Storage;
    for (const StoredReport &report : parseStoredReports(text, "+CDSI:")) {
        if (report.index >= 0)
            readAndDisplaySmsStatusReport(smsjobs::storageNamed(report.store, Storage::Reports),
                                          report.index);
        else
            readKeptReports();
    }
}

void SmsReception::readAndDisplaySmsStatusReport(smsjobs::Storage storage, int index)
{
    const auto job = m_worker.submit(
        [storage, index](SerialThread &link) { return smsjobs::fetchReport(link, storage, index); });
    whenDone(job, this, [this, storage](const std::optional<smsjobs::Fetched> &fetched) {
        if (fetched && fetched->message)
            took(storage == smsjobs::Storage::Card ? MessagePlace::Card : MessagePlace::Sim, *fetched);
        else if (fetched && fetched->report)
            deliveryReportSaveToSmsXml(*fetched->report);
        else if (fetched && !fetched->fault.isEmpty())
            Q_EMIT sigNotice(tr("A delivery report could not be read from the card: %1").arg(fetched->fault));
    });
}

void SmsReception::readKeptReports()
{
    const auto job = m_worker.submit([](SerialThread &link) { return smsjobs::listReports(link); });
    whenDone(job, this, [this](const std::optional<std::vector<smsjobs::KeptReport>> &reports) {
        for (const smsjobs::KeptReport &report : reports.value_or(std::vector<smsjobs::KeptReport>()))
            deliveryReportSaveToSmsXml(report);
    });
}

void SmsReception::deliveryReportSaveToSmsXml(const smsjobs::KeptReport &report)
{
    const auto *status = std::get_if<StatusReport>(&report.content);
    const QFuture<bool> stored =
        status ? fileReport(*status) : m_store->add({std::get<Message>(report.content)});
    if (report.kept.index < 0)
        return;
    whenDone(stored, this, [this, kept = report.kept](std::optional<bool> isStored) {
        if (isStored.value_or(false))
            m_worker.submit([kept](SerialThread &link) { smsjobs::remove(link, kept); });
    });
}

QFuture<bool> SmsReception::fileReport(const StatusReport &report)
{
    const MessageStore::Reported reported = m_store->applyReport(report);
    // That it arrived is told where it is wanted; that it did not is told in any case.
    const bool isTold = cmcfg.getNumber(u"sms"_s, u"deliveryReportMsgDlgShow"_s) == 1 ||
                        deliveryStateOf(report.status) == DeliveryState::Failed;
    if (reported.isNew && isTold)
        Q_EMIT sigDelivered(sentenceFor(report));
    return reported.stored;
}

QString SmsReception::sentenceFor(const StatusReport &report) const
{
    const QString name = m_nameFor(report.recipient);
    constexpr int replaced = 0x02; // by the service centre, with a newer message
    if (deliveryStateOf(report.status) == DeliveryState::Delivered && report.status != replaced)
        return tr("Message was successfully sent to %1, in %2,at %3")
            .arg(name, timeText(report.sent), timeText(report.discharge));
    return tr("The message to %1: %2").arg(name, deliveryStatusText(report.status));
}

} // namespace corva
