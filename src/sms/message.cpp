// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/message.h"

#include <algorithm>
#include <ranges>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

const QString gapMark = u"[…]"_s;

std::vector<const MessagePart *> partsFor(const Message &message, int recipient)
{
    std::vector<const MessagePart *> parts;
    for (const MessagePart &part : message.parts) {
        if (part.recipient == recipient)
            parts.push_back(&part);
    }
    std::ranges::stable_sort(parts, {}, &MessagePart::sequence);
    return parts;
}

int missingBetween(int before, int after)
{
    return std::max(0, after - before - 1);
}

/// Of several parts or recipients the one that matters most.
DeliveryState gravest(const std::vector<DeliveryState> &states)
{
    using enum DeliveryState;
    for (const DeliveryState state : {Sending, Queued, Unsure, Failed, StillTrying, Sent, Delivered}) {
        if (std::ranges::find(states, state) != states.end())
            return state;
    }
    return None;
}

/// The parts whose reports tell of the whole: those that asked for one, or else the last.
bool isTelling(const MessagePart &part, const std::vector<const MessagePart *> &all)
{
    const bool isAnyMarked = std::ranges::any_of(all, &MessagePart::asksReport);
    return isAnyMarked ? part.asksReport : &part == all.back();
}

DeliveryState stateOfParts(const std::vector<const MessagePart *> &parts)
{
    std::vector<DeliveryState> states;
    for (const MessagePart *part : parts) {
        // The others never get a report: that they were sent is all there is to know.
        if (part->state == DeliveryState::Sent && !isTelling(*part, parts))
            continue;
        states.push_back(part->state);
    }
    return gravest(states);
}

} // namespace

DeliveryState deliveryStateOf(int statusOctet)
{
    constexpr int firstTrying = 0x20;
    constexpr int firstPermanent = 0x40;
    if (statusOctet < 0 || statusOctet >= firstPermanent)
        return DeliveryState::Failed;
    return statusOctet < firstTrying ? DeliveryState::Delivered : DeliveryState::StillTrying;
}

MessageBox Message::home() const
{
    return box == MessageBox::Deleted ? deletedFrom : box;
}

QString Message::text() const
{
    QString text;
    int last = 0;
    for (const MessagePart *part : partsFor(*this, 0)) {
        if (missingBetween(last, part->sequence) > 0)
            text += gapMark;
        text += part->text;
        last = part->sequence;
    }
    if (last > 0 && missingBetween(last, total + 1) > 0)
        text += gapMark;
    return text;
}

int Message::missingParts() const
{
    return std::max(0, total - int(partsFor(*this, 0).size()));
}

DeliveryState Message::state() const
{
    std::vector<DeliveryState> states;
    for (int i = 0; i < int(std::max(qsizetype(1), recipients.size())); ++i)
        states.push_back(state(i));
    return gravest(states);
}

DeliveryState Message::state(int recipient) const
{
    return stateOfParts(partsFor(*this, recipient));
}

} // namespace corva
