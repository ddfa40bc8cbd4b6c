// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/smsfiling.h"

#include "shell/logging.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

QString sentence(const char *text)
{
    return QCoreApplication::translate("SmsFiling", text);
}

/// Why there is no PDU.
QString whyNothing(MessagePlace place)
{
    if (place == MessagePlace::Computer)
        return sentence(QT_TRANSLATE_NOOP("SmsFiling", "A message came in without its content."));
    return sentence(QT_TRANSLATE_NOOP("SmsFiling", "The card lists the message without its content."));
}

struct WaitingTexts {
    const char *active;
    const char *over;
};

/// In the order of `MessageWaiting::Kind`.
constexpr std::array waitingTexts = std::to_array<WaitingTexts>({
    {QT_TRANSLATE_NOOP("SmsFiling", "Voice messages are waiting for you."),
     QT_TRANSLATE_NOOP("SmsFiling", "No voice messages are waiting any more.")},
    {QT_TRANSLATE_NOOP("SmsFiling", "Faxes are waiting for you."),
     QT_TRANSLATE_NOOP("SmsFiling", "No faxes are waiting any more.")},
    {QT_TRANSLATE_NOOP("SmsFiling", "E-mails are waiting for you."),
     QT_TRANSLATE_NOOP("SmsFiling", "No e-mails are waiting any more.")},
    {QT_TRANSLATE_NOOP("SmsFiling", "Messages of another kind are waiting for you."),
     QT_TRANSLATE_NOOP("SmsFiling", "No messages of another kind are waiting any more.")},
});

/// A notice for the device, with no word for the person.
bool isBareNotice(const DecodedSms &sms)
{
    return sms.waiting && sms.text.trimmed().isEmpty() && !sms.hasCompressed;
}

/// One to be discarded which only takes an earlier notice back.
bool saysNothingNew(const DecodedSms &sms)
{
    return isBareNotice(sms) && !sms.waiting->isActive && !sms.waiting->isKept;
}

QString waitingText(const MessageWaiting &waiting)
{
    const WaitingTexts &texts = waitingTexts.at(std::size_t(waiting.kind));
    return sentence(waiting.isActive ? texts.active : texts.over);
}

bool isPrintable(char octet)
{
    const auto code = static_cast<unsigned char>(octet);
    return octet == '\r' || octet == '\n' || octet == '\t' || (code >= 0x20 && code < 0x7f) || code >= 0xa0;
}

/// Why a message that could be read has nothing to show.
QString whyNoText(const DecodedSms &sms)
{
    if (sms.hasCompressed)
        return sentence(QT_TRANSLATE_NOOP("SmsFiling", "The text is compressed and cannot be shown."));
    if (sms.alphabet == Alphabet::EightBit && shownText(sms).isEmpty())
        return sentence(QT_TRANSLATE_NOOP("SmsFiling", "The message holds data and no text."));
    return {};
}

StatusReport reportOf(const DecodedSms &sms, const QByteArray &pdu, const QDateTime &arrived)
{
    return {
        .recipient = sms.address,
        .reference = sms.reference,
        .status = sms.status,
        .sent = sms.time.value_or(QDateTime()),
        .discharge = sms.dischargeTime.value_or(QDateTime()),
        .arrived = arrived,
        .pdu = QString::fromLatin1(pdu),
        .serviceCentre = sms.serviceCentre,
    };
}

void takeContent(Message &message, const DecodedSms &sms)
{
    qCDebug(lcSms).noquote() << logTime() + (sms.hasHeader ? u"this is a cancatinate sms"_s
                                                           : u"this is a normal sms"_s);
    MessagePart &part = message.parts.front();
    message.serviceCentre = sms.serviceCentre;
    if (!sms.address.isEmpty())
        message.recipients = {sms.address};
    if (sms.time)
        message.time = *sms.time;
    part.sent = message.time;
    part.text = shownText(sms);
    part.asksReport = message.asksReport = sms.kind == DecodedSms::Submit && sms.asksReport;
    if (sms.kind == DecodedSms::Submit && message.box == MessageBox::Outbox)
        part.state = DeliveryState::Sent;
    if (sms.concatenation) {
        message.total = sms.concatenation->total;
        message.concatReference = sms.concatenation->reference;
        message.is16Bit = sms.concatenation->is16Bit;
        part.sequence = sms.concatenation->sequence;
    }
    message.error = whyNoText(sms);
    message.isRead = message.isRead || saysNothingNew(sms);
}

} // namespace

MessageBox boxOfStatus(int status)
{
    switch (status) {
    case 2: return MessageBox::Drafts;
    case 3: return MessageBox::Outbox;
    default: return MessageBox::Inbox;
    }
}

int statusOfBox(MessageBox box, bool isRead)
{
    switch (box) {
    case MessageBox::Outbox:
    case MessageBox::Drafts: return 2;
    case MessageBox::Sent: return 3;
    default: return isRead ? 1 : 0;
    }
}

QString shownText(const DecodedSms &sms)
{
    if (isBareNotice(sms))
        return waitingText(*sms.waiting);
    if (sms.alphabet == Alphabet::EightBit && !sms.hasCompressed &&
        std::ranges::all_of(sms.data, isPrintable))
        return QString::fromLatin1(sms.data);
    return sms.text;
}

FiledSms fileSms(const ListedSms &listed, MessagePlace place, const QDateTime &arrived,
                 SmsDirection direction)
{
    Message message;
    message.box = boxOfStatus(listed.status);
    message.place = place;
    message.time = message.arrived = arrived;
    message.isRead = listed.status > 0; // a line that cannot be read is to be seen
    MessagePart &part = message.parts.emplace_back();
    part.pdu = QString::fromLatin1(listed.pdu);
    part.storageIndex = listed.index;
    const SmsResult result = decodeSms(listed.pdu, direction);
    if (const auto *error = std::get_if<PduError>(&result)) {
        message.box = MessageBox::Inbox;
        message.error = listed.pdu.isEmpty() ? whyNothing(place) : error->text();
        return message;
    }
    const auto &sms = std::get<DecodedSms>(result);
    if (sms.kind == DecodedSms::StatusReport)
        return reportOf(sms, listed.pdu, arrived);
    takeContent(message, sms);
    return message;
}

Message fileBroadcast(const QByteArray &pdu, const QDateTime &arrived)
{
    Message message;
    message.isBroadcast = true;
    message.time = message.arrived = arrived;
    MessagePart &part = message.parts.emplace_back();
    part.pdu = QString::fromLatin1(pdu);
    part.sent = arrived;
    const auto result = decodeBroadcast(pdu);
    if (const auto *error = std::get_if<PduError>(&result)) {
        message.error = error->text();
        return message;
    }
    const auto &page = std::get<BroadcastPage>(result);
    constexpr int updates = 16;
    message.channel = page.channel;
    message.total = page.pages;
    message.concatReference = page.pages > 1 ? page.code * updates + page.update : -1;
    message.is16Bit = true;
    part.sequence = page.page;
    part.text = page.text;
    return message;
}

Message fileBrokenReport(const QByteArray &pdu, const QDateTime &arrived)
{
    Message message;
    message.box = MessageBox::Reports;
    message.time = message.arrived = arrived;
    message.parts.emplace_back().pdu = QString::fromLatin1(pdu);
    const SmsResult result = decodeStatusReport(pdu);
    if (const auto *error = std::get_if<PduError>(&result))
        message.error = error->text();
    return message;
}

std::optional<StatusReport> fileReport(const QByteArray &pdu, const QDateTime &arrived)
{
    const SmsResult result = decodeStatusReport(pdu);
    const auto *sms = std::get_if<DecodedSms>(&result);
    return sms ? std::optional(reportOf(*sms, pdu, arrived)) : std::nullopt;
}

int tpduLength(const QString &pdu)
{
    constexpr qsizetype longest = 512; // 256 octets
    const auto isDigit = [](QChar c) { return c.unicode() < 0x80 && isxdigit(c.unicode()) != 0; };
    if (pdu.size() < 2 || pdu.size() > longest || pdu.size() % 2 != 0 || !std::ranges::all_of(pdu, isDigit))
        return -1;
    const int length = int(pdu.size() / 2) - (pdu.first(2).toInt(nullptr, 16) + 1);
    return length > 0 ? length : -1;
}

} // namespace corva
