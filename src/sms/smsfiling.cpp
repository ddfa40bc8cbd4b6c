// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/smsfiling.h"

#include "shell/logging.h"
#include "sms/smspdu.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

QString sentence(const char *text)
{
    return QCoreApplication::translate("SmsFiling", text);
}

/// Why a message that could be read has nothing to show.
QString whyNoText(const DecodedSms &sms)
{
    if (sms.hasCompressed)
        return sentence(QT_TRANSLATE_NOOP("SmsFiling", "The text is compressed and cannot be shown."));
    if (sms.alphabet == Alphabet::EightBit && sms.text.isEmpty())
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
    part.text = sms.text;
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

FiledSms fileSms(const ListedSms &listed, MessagePlace place, const QDateTime &arrived)
{
    Message message;
    message.box = boxOfStatus(listed.status);
    message.place = place;
    message.time = message.arrived = arrived;
    message.isRead = listed.status > 0; // a line that cannot be read is to be seen
    MessagePart &part = message.parts.emplace_back();
    part.pdu = QString::fromLatin1(listed.pdu);
    part.storageIndex = listed.index;
    const SmsResult result = decodeSms(listed.pdu, SmsDirection::OnCard);
    if (const auto *error = std::get_if<PduError>(&result)) {
        message.box = MessageBox::Inbox;
        message.error =
            listed.pdu.isEmpty()
                ? sentence(QT_TRANSLATE_NOOP("SmsFiling", "The card lists the message without its content."))
                : error->text();
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
    constexpr qsizetype longest = 2 * 256;
    const auto isDigit = [](QChar c) { return c.unicode() < 0x80 && isxdigit(c.unicode()) != 0; };
    if (pdu.size() < 2 || pdu.size() > longest || pdu.size() % 2 != 0 || !std::ranges::all_of(pdu, isDigit))
        return -1;
    const int length = int(pdu.size() / 2) - (pdu.first(2).toInt(nullptr, 16) + 1);
    return length > 0 ? length : -1;
}

} // namespace corva
