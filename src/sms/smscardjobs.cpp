// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/smscardjobs.h"

#include "link/serialthread.h"
#include "shell/commoncfg.h"
#include "shell/logging.h"
#include "sms/smsfiling.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace corva::smsjobs
{

namespace
{

constexpr int simStorage = 0;
constexpr int cardStorage = 1;
constexpr int reportStorage = 2;
constexpr int everyStatus = 4;
constexpr std::size_t pduTextSize = 1024; ///< the longest PDU has 360 characters

int storageOf(MessagePlace place)
{
    return place == MessagePlace::Card ? cardStorage : simStorage;
}

QByteArray nameOf(MessagePlace place)
{
    return place == MessagePlace::Card ? "ME" : "SM";
}

QString readServiceCentre(SerialThread &link)
{
    QByteArray text(SerialThread::replyBufferSize, '\0');
    link.get_sms_number(text.data());
    const QString number = parseServiceCentre(text.constData());
    qCDebug(lcSms).noquote() << u"SMS centre num = %1"_s.arg(number);
    return number;
}

/// Has new messages announced or delivered as configured, or as near to it as the card can.
int routeMessages(SerialThread &link)
{
    const int result = link.setNewMsgNoticeMode();
    if (result == 1)
        return result;
    // Stored and announced is what every card with these commands knows, and loses nothing.
    const bool wantsBroadcast = cmcfg.getNumber(u"function"_s, u"cell_board_enabled"_s) == 1;
    return link.setNewMsgNoticeMode(
        nearestNoticeModes(wantsBroadcast ? "2,1,2,2,0" : "2,1,0,2,0", link.getNewMsgNoticeModes()));
}

/// The fill that the card told when the store was selected, or tells when it is asked.
std::optional<StoreFill> fillOf(SerialThread &link, MessagePlace place, const QByteArray &selected)
{
    if (cmcfg.getNumber(u"network_dialer_setting"_s, u"send_cpmscommand_enabled"_s) == 1)
        return place == MessagePlace::Card ? link.getModemSmsMem2() : link.getSimSmsMem2();
    return parseFill(selected, nameOf(place));
}

void sortIn(Listing &listing, FiledSms &&filed)
{
    if (auto *message = std::get_if<Message>(&filed))
        listing.messages.push_back(std::move(*message));
    else
        listing.reports.push_back(std::get<StatusReport>(std::move(filed)));
}

bool isSamePdu(const ListedSms &listed, const QByteArray &pdu)
{
    return listed.pdu.compare(pdu, Qt::CaseInsensitive) == 0;
}

/// What "AT+CMGR" said of a place: that nothing is there, or nothing about it.
bool isEmptyPlace(const QByteArray &reply)
{
    constexpr int invalidIndex = 321;
    const auto error = cmsErrorIn(reply);
    return error ? error->code == invalidIndex : reply.contains("OK\r\n");
}

/// Whether the message at `index` of the selected store is the one with that PDU: NotThere when it is not,
/// Failed when the card does not say; nothing when it is.
std::optional<Removal> whyNotToRemove(SerialThread &link, int index, const QByteArray &pdu)
{
    const QByteArray reply = link.getIndexSms(QByteArray::number(index).constData());
    const auto read = parseReadSms(reply);
    if (!read)
        return isEmptyPlace(reply) ? Removal::NotThere : Removal::Failed;
    return isSamePdu(*read, pdu) ? std::nullopt : std::optional(Removal::NotThere);
}

/// Whether a refused selection means that the card has no such store, and not that it is busy.
bool meansMissing(const std::optional<CmsError> &error)
{
    constexpr std::array<int, 3> codes = {-1, 302, 303}; // "ERROR" alone, not allowed, not supported
    return error && error->detail.isEmpty() && std::ranges::find(codes, error->code) != codes.end();
}

Removal outcomeOf(int result)
{
    return result == 1 ? Removal::Removed : Removal::Failed;
}

} // namespace

QString whyFailed(const SerialThread &link)
{
    if (const auto error = cmsErrorIn(link.lastReply()))
        return cmsErrorText(*error);
    return QCoreApplication::translate("SmsJobs", "The card did not answer.");
}

Preparation prepare(SerialThread &link)
{
    Preparation made;
    made.isReady = link.getMsgFormat() == 0 || link.setPduMode() == 1;
    if (!made.isReady) {
        made.fault = QCoreApplication::translate("SmsJobs", "The card does not exchange messages as PDUs: %1")
                         .arg(whyFailed(link));
        return made;
    }
    link.setNewSmsStorageLocation(); // a card without the maker's command has one place for them anyway
    if (routeMessages(link) != 1)
        made.fault = QCoreApplication::translate("SmsJobs", "New messages will not be announced: %1")
                         .arg(whyFailed(link));
    made.serviceCentre = readServiceCentre(link);
    return made;
}

Listing list(SerialThread &link, MessagePlace place)
{
    Listing listing;
    if (link.setShortMsgStorageMode(storageOf(place)) != 1) {
        listing.isMissing = place == MessagePlace::Card && meansMissing(cmsErrorIn(link.lastReply()));
        listing.fault = whyFailed(link);
        return listing;
    }
    listing.fill = fillOf(link, place, link.lastReply());
    const QByteArray reply = link.getSmsContent(everyStatus, storageOf(place));
    if (!reply.contains("OK\r\n")) {
        listing.fault = whyFailed(link);
        return listing;
    }
    listing.isRead = true;
    QDateTime now = QDateTime::currentDateTime();
    for (const ListedSms &each : parseSmsList(reply).messages) {
        now = now.addMSecs(1); // of one moment they keep the card's order
        sortIn(listing, fileSms(each, place, now));
    }
    return listing;
}

Fetched fetch(SerialThread &link, MessagePlace place, int index)
{
    Fetched fetched;
    if (link.setShortMsgStorageMode(storageOf(place)) != 1) {
        fetched.fault = whyFailed(link);
        return fetched;
    }
    fetched.fill = fillOf(link, place, link.lastReply());
    const QByteArray reply = link.getIndexSms(QByteArray::number(index).constData());
    auto listed = parseReadSms(reply);
    if (!listed) {
        if (!isEmptyPlace(reply))
            fetched.fault = whyFailed(link);
        return fetched;
    }
    listed->index = index;
    FiledSms filed = fileSms(*listed, place, QDateTime::currentDateTime());
    if (auto *message = std::get_if<Message>(&filed))
        fetched.message = std::move(*message);
    else
        fetched.report = std::get<StatusReport>(std::move(filed));
    return fetched;
}

Fetched fetchReport(SerialThread &link, int index)
{
    Fetched fetched;
    if (link.setShortMsgStorageMode(reportStorage) != 1) {
        fetched.fault = whyFailed(link);
        return fetched;
    }
    const auto listed = parseReadSms(link.getIndexSms(QByteArray::number(index).constData()));
    if (!listed)
        return fetched;
    const QDateTime now = QDateTime::currentDateTime();
    fetched.report = fileReport(listed->pdu, now);
    if (!fetched.report)
        fetched.message = fileBrokenReport(listed->pdu, now);
    return fetched;
}

std::vector<KeptReport> listReports(SerialThread &link)
{
    std::vector<KeptReport> reports;
    for (const ListedSms &each : parseSmsList(link.getSmsContent(everyStatus, reportStorage)).messages)
        reports.push_back({each.index, each.pdu});
    return reports;
}

Removal remove(SerialThread &link, MessagePlace place, int index, const QString &pdu)
{
    if (link.setShortMsgStorageMode(storageOf(place)) != 1)
        return Removal::Failed;
    if (const auto why = whyNotToRemove(link, index, pdu.toLatin1()))
        return *why;
    return outcomeOf(place == MessagePlace::Card ? link.deleteMeSMS(index) : link.deleteSimSMS(index));
}

Removal removeReport(SerialThread &link, int index, const QByteArray &pdu)
{
    if (link.setShortMsgStorageMode(reportStorage) != 1)
        return Removal::Failed;
    if (const auto why = whyNotToRemove(link, index, pdu))
        return *why;
    return outcomeOf(link.deleteSmsStatusReport(index));
}

std::optional<QString> write(SerialThread &link, MessagePlace place, const std::vector<CardEntry> &entries)
{
    const auto isNoPdu = [](const CardEntry &entry) { return tpduLength(entry.pdu) < 0; };
    if (entries.empty() || std::ranges::any_of(entries, isNoPdu))
        return QCoreApplication::translate("SmsJobs", "The message has no content that the card could keep.");
    if (link.setShortMsgStorageMode(storageOf(place)) != 1)
        return whyFailed(link);
    for (const auto &[pdu, status] : entries) {
        const int length = tpduLength(pdu);
        if (!link.moveMsgCMGWCmd(length, status, pdu.toLatin1().constData()))
            return whyFailed(link);
    }
    return {};
}

SentPart send(SerialThread &link, const OutgoingPart &part)
{
    QString centre = part.serviceCentre;
    if (centre.isEmpty())
        centre = readServiceCentre(link);
    SM_PARAM record = smParamFor(part.split, part.index, part.recipient, centre.remove(u'+'),
                                 part.concatReference, part.asksReport);
    gUnicodeFlag = part.split.alphabet == Alphabet::Ucs2;
    SentPart sent;
    sent.isSent =
        link.gsmSendMessage(&record, part.split.parts[std::size_t(part.index)], nullptr, &sent.pdu) == 1;
    sent.pdu.remove(QChar(u'\x1a'));
    if (sent.isSent) {
        sent.reference = parseMessageReference(link.lastReply());
    } else {
        sent.error = cmsErrorIn(link.lastReply()).value_or(CmsError());
        sent.fault = whyFailed(link);
    }
    return sent;
}

QString encode(SerialThread &link, const OutgoingPart &part)
{
    SM_PARAM record =
        smParamFor(part.split, part.index, part.recipient, QString(part.serviceCentre).remove(u'+'),
                   part.concatReference, part.asksReport);
    gUnicodeFlag = part.split.alphabet == Alphabet::Ucs2;
    std::array<char, pduTextSize> whole{};
    std::array<char, pduTextSize> ucs2{};
    link.gsmEncodePdu(&record, whole.data(), part.split.parts[std::size_t(part.index)], ucs2.data());
    return QString::fromLatin1(whole.data());
}

} // namespace corva::smsjobs
