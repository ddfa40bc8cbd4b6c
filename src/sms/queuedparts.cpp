// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/queuedparts.h"

#include "shell/commoncfg.h"
#include "sms/concatreference.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// The whole text, as it was split.
QString wholeText(const Message &message, int recipient)
{
    QString text;
    for (const MessagePart &part : message.parts) {
        if (part.recipient == recipient)
            text += part.text;
    }
    return text;
}

/// What was not sent of a recipient's message stays unsent when one of its parts failed: half a message helps
/// nobody.
void failRest(Message &message, int recipient)
{
    for (MessagePart &part : message.parts) {
        if (part.recipient == recipient && part.state == DeliveryState::Queued)
            part.state = DeliveryState::Failed;
    }
}

/// Whether all that goes to that recipient is there.
bool isWhole(const Message &message, int recipient)
{
    int next = 1;
    for (const MessagePart &part : message.parts) {
        if (part.recipient == recipient && part.sequence != next++)
            return false;
    }
    return next > 1;
}

/// Whether nothing of it can have reached that recipient.
bool isUntried(const Message &message, int recipient)
{
    return std::ranges::all_of(message.parts, [=](const MessagePart &part) {
        const bool isUnsent = part.state == DeliveryState::Failed || part.state == DeliveryState::Queued;
        return part.recipient != recipient || (isUnsent && part.reference < 0);
    });
}

/// Cuts the text to that recipient as the alphabet's settings ask for it now.
void splitAnew(Message &message, int recipient)
{
    const SplitText split = splitText(wholeText(message, recipient), configuredCoding());
    if (!split.isSendable() || isSplitAsQueued(message, recipient, split))
        return;
    const auto isMine = [=](const MessagePart &part) { return part.recipient == recipient; };
    const bool asksReport = std::ranges::any_of(
        message.parts, [&](const MessagePart &part) { return isMine(part) && part.asksReport; });
    const auto place = std::ranges::find_if(message.parts, isMine) - message.parts.begin();
    std::erase_if(message.parts, isMine);
    const std::vector<MessagePart> parts = partsFor(recipient, split, asksReport);
    message.parts.insert(message.parts.begin() + place, parts.begin(), parts.end());
    if (recipient == 0)
        message.total = int(parts.size());
    if (parts.size() > 1 && message.concatReference < 0)
        message.concatReference = nextConcatReference();
}

/// A part that is on its way is known by its number: nothing moves then.
void splitAnew(Message &message)
{
    if (countOf(message, DeliveryState::Sending) > 0)
        return;
    for (int recipient = 0; recipient < int(message.recipients.size()); ++recipient) {
        if (isWhole(message, recipient) && isUntried(message, recipient))
            splitAnew(message, recipient);
    }
}

DeliveryState stateBehind(smsjobs::SentPart::Outcome outcome)
{
    using enum smsjobs::SentPart::Outcome;
    if (outcome == Sent)
        return DeliveryState::Sent;
    return outcome == Unsure ? DeliveryState::Unsure : DeliveryState::Failed;
}

} // namespace

TextCoding configuredCoding()
{
    return TextCoding::fromSpecialCode(cmcfg.getValue(u"sms"_s, u"specialcode"_s));
}

std::vector<MessagePart> partsFor(int recipient, const SplitText &split, bool asksReport)
{
    std::vector<MessagePart> parts;
    for (int i = 0; i < int(split.parts.size()); ++i) {
        MessagePart part;
        part.sequence = i + 1;
        part.recipient = recipient;
        part.text = split.parts[std::size_t(i)];
        part.asksReport = asksReport && i + 1 == int(split.parts.size());
        part.state = DeliveryState::Queued;
        parts.push_back(part);
    }
    return parts;
}

int countOf(const Message &message, DeliveryState state)
{
    return int(std::ranges::count(message.parts, state, &MessagePart::state));
}

smsjobs::OutgoingPart outgoing(const Message &message, int part, const QString &serviceCentre)
{
    const MessagePart &chosen = message.parts[std::size_t(part)];
    return {
        .split = splitText(wholeText(message, chosen.recipient), configuredCoding()),
        .index = chosen.sequence - 1,
        .recipient = message.recipients.value(chosen.recipient),
        .serviceCentre = serviceCentre,
        .concatReference = std::max(message.concatReference, 0),
        .asksReport = chosen.asksReport,
    };
}

bool isSplitAsQueued(const Message &message, int recipient, const SplitText &split)
{
    const auto isSame = [&](const MessagePart &part) {
        return part.recipient != recipient ||
               (part.sequence >= 1 && part.sequence <= int(split.parts.size()) &&
                split.parts[std::size_t(part.sequence - 1)] == part.text);
    };
    const auto count = std::ranges::count(message.parts, recipient, &MessagePart::recipient);
    return std::size_t(count) == split.parts.size() && std::ranges::all_of(message.parts, isSame);
}

void failQueued(Message &message)
{
    for (MessagePart &part : message.parts) {
        if (part.state == DeliveryState::Queued)
            part.state = DeliveryState::Failed;
    }
}

bool maySendAgain(const Message &message)
{
    return message.place == MessagePlace::Computer &&
           (message.box == MessageBox::Outbox || message.box == MessageBox::Sent);
}

void queueAgain(Message &message)
{
    splitAnew(message);
    for (MessagePart &part : message.parts) {
        if (part.state != DeliveryState::Failed && part.state != DeliveryState::Unsure)
            continue;
        part.state = DeliveryState::Queued;
        part.errorCode = part.statusOctet = -1;
        part.fault.clear();
        part.reference = -1; // a late report on the first try is not about the next one
        part.reported = {};
        message.box = MessageBox::Outbox;
    }
}

void takeOutcome(Message &message, int part, const smsjobs::SentPart &sent)
{
    MessagePart &chosen = message.parts[std::size_t(part)];
    chosen.pdu = sent.pdu;
    chosen.state = stateBehind(sent.outcome);
    chosen.reference = sent.reference;
    chosen.errorCode = sent.error.code;
    chosen.fault = chosen.state == DeliveryState::Failed && chosen.errorCode < 0 ? sent.fault : QString();
    if (chosen.state == DeliveryState::Sent)
        chosen.sent = message.time = QDateTime::currentDateTime();
    else if (chosen.state == DeliveryState::Failed)
        failRest(message, chosen.recipient);
    const auto isOut = [](const MessagePart &each) {
        return each.state == DeliveryState::Sent || each.state == DeliveryState::Delivered ||
               each.state == DeliveryState::StillTrying;
    };
    if (!std::ranges::all_of(message.parts, isOut))
        return;
    (message.box == MessageBox::Deleted ? message.deletedFrom : message.box) = MessageBox::Sent;
    message.subscriber.clear();
}

} // namespace corva
