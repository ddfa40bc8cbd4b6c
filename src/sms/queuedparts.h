// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"
#include "sms/smscardjobs.h"
#include "sms/splittext.h"

namespace corva
{

// What waits to be sent, as values: cut into parts, tried, failed, queued again.

/// How the settings want texts coded.
TextCoding configuredCoding();

/// One part for each piece of the text.
std::vector<MessagePart> partsFor(int recipient, const SplitText &split, bool asksReport);

int countOf(const Message &message, DeliveryState state);

/// The part as the card gets it.
smsjobs::OutgoingPart outgoing(const Message &message, int part, const QString &serviceCentre);

/// Whether the text still splits as it did when it was queued: the national tables may have changed since.
bool isSplitAsQueued(const Message &message, int recipient, const SplitText &split);

/// What waits fails.
void failQueued(Message &message);

/// What can be sent again: it is in the outbox, or it went out and its report says that it did not arrive.
bool maySendAgain(const Message &message);

/// What failed or may have gone out waits again, cut as the settings ask for it now where nothing of it is
/// out.
void queueAgain(Message &message);

/// What became of the part, and of the message with it.
void takeOutcome(Message &message, int part, const smsjobs::SentPart &sent);

} // namespace corva
