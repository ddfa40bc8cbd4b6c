// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/smscardjobs.h"

#include "link/serialthread.h"
#include "shell/commoncfg.h"
#include "shell/logging.h"
#include "sms/pduidentity.h"
#include "sms/recipients.h"
#include "sms/smsdecoder.h"
#include "sms/smsfiling.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace corva::smsjobs
{

namespace
{

constexpr int everyStatus = 4;
constexpr std::size_t pduTextSize = 1024; ///< the longest PDU has 360 characters

bool select(SerialThread &link, Storage storage)
{
    return link.setShortMsgStorageMode(int(storage)) == 1;
}

QByteArray nameOf(MessagePlace place)
{
    return place == MessagePlace::Card ? "ME" : "SM";
}

QString readServiceCentre(SerialThread &link)
{
    QByteArray text(SerialThread::replyBufferSize, '\0');
    link.get_sms_number(text.data());
    QString number = parseServiceCentre(text.constData());
    qCDebug(lcSms).noquote() << logTime() + u"SMS centre num = %1"_s.arg(number);
    return number;
}

/// New messages stored and announced: what every card with these commands knows, and loses nothing.
QByteArray storedNotice(const QByteArray &mode)
{
    const bool wantsBroadcast = cmcfg.getNumber(u"function"_s, u"cell_board_enabled"_s) == 1;
    return mode + (wantsBroadcast ? ",1,2,2,0" : ",1,0,2,0");
}

/// The same in the form nearest to it that the card offers.
int storeAsOffered(SerialThread &link)
{
    return link.setNewMsgNoticeMode(nearestNoticeModes(storedNotice("2"), link.getNewMsgNoticeModes()));
}

/// Has new messages announced or delivered as configured, or as near to it as the card can.
int routeMessages(SerialThread &link)
{
    const int result = link.setNewMsgNoticeMode();
    return result == 1 ? result : storeAsOffered(link);
}

/// The fill by a command of its own; some cards leave the stores' names out.
std::optional<StoreFill> askedFill(SerialThread &link, MessagePlace place)
{
    const bool isCard = place == MessagePlace::Card;
    const auto named = isCard ? link.getModemSmsMem() : link.getSmsMem();
    if (named)
        return named;
    return isCard ? link.getModemSmsMem2() : link.getSimSmsMem2();
}

/// The fill that the card told when the store was selected, or tells when it is asked. A command is spared
/// with the setting off, never the figures.
std::optional<StoreFill> fillOf(SerialThread &link, MessagePlace place, const QByteArray &selected)
{
    const bool isAsked = cmcfg.getNumber(u"network_dialer_setting"_s, u"send_cpmscommand_enabled"_s) == 1;
    auto fill = isAsked ? std::nullopt : parseFill(selected, nameOf(place));
    if (!fill)
        fill = askedFill(link, place);
    if (!fill)
        fill = parseFill(selected, nameOf(place));
    if (fill)
        qCDebug(lcSms).noquote() << u"%1 = %2, spare = %3"_s
                                        .arg(place == MessagePlace::Card ? "modem_capacity"_L1
                                                                         : "sim_capacity"_L1)
                                        .arg(fill->total)
                                        .arg(fill->spare());
    return fill;
}

KeptReport keptReport(Storage storage, const ListedSms &listed, const QDateTime &now)
{
    KeptReport report{{storage, listed.index, QString::fromLatin1(listed.pdu)}, Message()};
    if (auto content = fileReport(listed.pdu, now))
        report.content = std::move(*content);
    else
        report.content = fileBrokenReport(listed.pdu, now);
    return report;
}

void sortIn(Listing &listing, MessagePlace place, const ListedSms &listed, const QDateTime &now)
{
    FiledSms filed = fileSms(listed, place, now);
    if (auto *message = std::get_if<Message>(&filed))
        listing.messages.push_back(std::move(*message));
    else
        listing.reports.push_back(keptReport(storageOf(place), listed, now));
}

bool isComplete(const QByteArray &list)
{
    return list.contains("OK\r\n");
}

/// The list of the place; one without its end, which is no refusal, is noted as such.
QByteArray askForList(SerialThread &link, MessagePlace place, Listing &listing)
{
    QByteArray reply = link.getSmsContent(everyStatus, int(storageOf(place)));
    const bool hasBegun = reply.contains("+CMGL:") || !cmsErrorIn(link.lastReply());
    if (isComplete(reply) || !hasBegun)
        return reply;
    listing.wasCut = true;
    for (const ListedSms &each : parseSmsList(reply)) {
        if (each.status == 0)
            listing.cutUnread += QString::fromLatin1(each.pdu);
    }
    return reply;
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
std::optional<Removal> whyNotToRemove(SerialThread &link, int index, const QString &pdu)
{
    const QByteArray reply = link.getIndexSms(QByteArray::number(index).constData());
    const auto read = parseReadSms(reply);
    if (!read)
        return isEmptyPlace(reply) ? Removal::NotThere : Removal::Failed;
    if (read->pdu.isEmpty()) // which message it is cannot be told
        return Removal::Failed;
    // A card may put its service centre ahead of what it was given.
    return pduIdentity(QString::fromLatin1(read->pdu)) == pduIdentity(pdu) ? std::nullopt
                                                                           : std::optional(Removal::NotThere);
}

/// Whether a refused selection means that the card has no such store, and not that it is busy.
bool meansMissing(const std::optional<CmsError> &error)
{
    constexpr std::array<int, 3> codes = {-1, 302, 303}; // "ERROR" alone, not allowed, not supported
    return error && error->detail.isEmpty() && std::ranges::find(codes, error->code) != codes.end();
}

int deleteFrom(SerialThread &link, Storage storage, int index)
{
    switch (storage) {
    case Storage::Card: return link.deleteMeSMS(index);
    case Storage::Reports: return link.deleteSmsStatusReport(index);
    default: return link.deleteSimSMS(index);
    }
}

/// Half a message helps nobody.
void takeBack(SerialThread &link, const std::vector<KeptPdu> &written)
{
    for (const KeptPdu &each : written)
        remove(link, each);
}

bool isCardGone(const SerialThread &link)
{
    return link.isPortLost() || link.descriptor() < 0;
}

/// What was chosen when the part was written holds, whatever the settings say by now.
ReportWish wishOf(const OutgoingPart &part)
{
    return part.asksReport ? ReportWish::Yes : ReportWish::No;
}

QString withoutContent()
{
    return QCoreApplication::translate("SmsJobs", "The card names the message without its content.");
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

void storeNewMessages(SerialThread &link)
{
    if (link.deliversDirectly() && link.setNewMsgNoticeMode(storedNotice("3")) != 1)
        storeAsOffered(link);
}

Storage storageOf(MessagePlace place)
{
    return place == MessagePlace::Card ? Storage::Card : Storage::Sim;
}

Storage storageNamed(const QString &name, Storage otherwise)
{
    if (name == "ME"_L1 || name == "MT"_L1)
        return Storage::Card;
    if (name == "SM"_L1)
        return Storage::Sim;
    return name == "SR"_L1 ? Storage::Reports : otherwise;
}

Listing list(SerialThread &link, MessagePlace place)
{
    Listing listing;
    if (!select(link, storageOf(place))) {
        listing.isMissing = place == MessagePlace::Card && meansMissing(cmsErrorIn(link.lastReply()));
        listing.fault = whyFailed(link);
        return listing;
    }
    listing.fill = fillOf(link, place, link.lastReply());
    QByteArray reply = askForList(link, place, listing);
    if (listing.wasCut)
        reply = askForList(link, place, listing);
    if (!isComplete(reply)) {
        listing.fault = whyFailed(link);
        return listing;
    }
    listing.isRead = true;
    const QDateTime now = QDateTime::currentDateTime();
    for (const ListedSms &each : parseSmsList(reply))
        sortIn(listing, place, each, now);
    return listing;
}

Fetched fetch(SerialThread &link, MessagePlace place, int index)
{
    Fetched fetched;
    if (!select(link, storageOf(place))) {
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
    if (listed->pdu.isEmpty()) {
        fetched.fault = withoutContent();
        return fetched;
    }
    listed->index = index;
    if (boxOfStatus(listed->status) == MessageBox::Inbox)
        listed->status = 0; // reading it marked it as read, and nobody saw it
    const QDateTime now = QDateTime::currentDateTime();
    FiledSms filed = fileSms(*listed, place, now);
    if (auto *message = std::get_if<Message>(&filed))
        fetched.message = std::move(*message);
    else
        fetched.report = keptReport(storageOf(place), *listed, now);
    return fetched;
}

Fetched fetchReport(SerialThread &link, Storage storage, int index)
{
    if (storage != Storage::Reports) // where messages lie as well
        return fetch(link, storage == Storage::Card ? MessagePlace::Card : MessagePlace::Sim, index);
    Fetched fetched;
    if (!select(link, storage)) {
        fetched.fault = whyFailed(link);
        return fetched;
    }
    const QByteArray reply = link.getIndexSms(QByteArray::number(index).constData());
    auto listed = parseReadSms(reply);
    if (!listed) {
        if (!isEmptyPlace(reply))
            fetched.fault = whyFailed(link);
        return fetched;
    }
    if (listed->pdu.isEmpty()) {
        fetched.fault = withoutContent();
        return fetched;
    }
    listed->index = index;
    fetched.report = keptReport(storage, *listed, QDateTime::currentDateTime());
    return fetched;
}

std::vector<KeptReport> listReports(SerialThread &link)
{
    std::vector<KeptReport> reports;
    const QDateTime now = QDateTime::currentDateTime();
    for (const ListedSms &each : parseSmsList(link.getSmsContent(everyStatus, int(Storage::Reports)))) {
        if (!each.pdu.isEmpty()) // or else it would be filed at each start: it cannot be taken away
            reports.push_back(keptReport(Storage::Reports, each, now));
    }
    return reports;
}

Removal remove(SerialThread &link, const KeptPdu &kept)
{
    if (kept.index < 0 || !select(link, kept.storage))
        return Removal::Failed;
    if (const auto why = whyNotToRemove(link, kept.index, kept.pdu))
        return *why;
    return deleteFrom(link, kept.storage, kept.index) == 1 ? Removal::Removed : Removal::Failed;
}

std::optional<QString> write(SerialThread &link, MessagePlace place, const std::vector<CardEntry> &entries)
{
    const auto isNoPdu = [](const CardEntry &entry) { return tpduLength(entry.pdu) < 0; };
    if (entries.empty() || std::ranges::any_of(entries, isNoPdu))
        return QCoreApplication::translate("SmsJobs", "The message has no content that the card could keep.");
    const Storage storage = storageOf(place);
    if (!select(link, storage))
        return whyFailed(link);
    std::vector<KeptPdu> written;
    for (const auto &[pdu, status] : entries) {
        if (!link.moveMsgCMGWCmd(tpduLength(pdu), status, pdu.toLatin1().constData())) {
            QString why = whyFailed(link);
            takeBack(link, written);
            return why;
        }
        written.push_back({storage, parseWrittenIndex(link.lastReply()), pdu});
    }
    return {};
}

QString whyNoCentre(const QString &number)
{
    if (SmsDecoder::checkLengthofPhoneNumber(QString(number).remove(u'+')))
        return {};
    return QCoreApplication::translate("SmsJobs", "The service centre's number, %1, is too long.")
        .arg(number);
}

SentPart send(SerialThread &link, const OutgoingPart &part)
{
    QString centre = part.serviceCentre;
    if (centre.isEmpty())
        centre = readServiceCentre(link);
    const Recipients whom = readRecipients(part.recipient);
    SentPart sent;
    sent.fault = whom.error.isEmpty() ? whyNoCentre(centre) : whom.error;
    if (!sent.fault.isEmpty()) // the encoder would cut them
        return sent;
    SM_PARAM record = smParamFor(part.split, part.index, whom.numbers.value(0), centre.remove(u'+'),
                                 part.concatReference, part.asksReport);
    record.report = wishOf(part);
    gUnicodeFlag = part.split.alphabet == Alphabet::Ucs2;
    const int result =
        link.gsmSendMessage(&record, part.split.parts[std::size_t(part.index)], nullptr, &sent.pdu);
    sent.pdu.remove(QChar(u'\x1a'));
    if (result == 1) {
        sent.outcome = SentPart::Sent;
        sent.reference = parseMessageReference(link.lastReply());
        return sent;
    }
    if (link.mayHaveSent())
        sent.outcome = SentPart::Unsure;
    else if (isCardGone(link))
        sent.outcome = SentPart::CardGone;
    sent.error = cmsErrorIn(link.lastReply()).value_or(CmsError());
    sent.fault = whyFailed(link);
    return sent;
}

QString encode(SerialThread &link, const OutgoingPart &part)
{
    SM_PARAM record =
        smParamFor(part.split, part.index, part.recipient, QString(part.serviceCentre).remove(u'+'),
                   part.concatReference, part.asksReport);
    record.report = wishOf(part);
    gUnicodeFlag = part.split.alphabet == Alphabet::Ucs2;
    std::array<char, pduTextSize> whole{};
    std::array<char, pduTextSize> ucs2{};
    link.gsmEncodePdu(&record, whole.data(), part.split.parts[std::size_t(part.index)], ucs2.data());
    return QString::fromLatin1(whole.data());
}

} // namespace corva::smsjobs
