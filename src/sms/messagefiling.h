// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/messagetable.h"

namespace corva
{

/// What is sorted out before a message is filed: a time there is always, and a part whose number makes no
/// sense (0, or beyond the total) is a message of its own. 3GPP TS 23.040 9.2.3.24.1.
Message tidied(Message message);

/// The received message that has these parts already, so that the given one brings nothing new; null
/// otherwise. Parts that are there already are taken out of `message`.
RecordPtr takeKnownParts(const MessageTable &table, Message &message);

/// The incomplete long message that `message`, a part or more of one, belongs to: the nearest in time of
/// those in which the places are free. Null when it begins one of its own.
RecordPtr longMessageFor(const MessageTable &table, const Message &message);

/// Both as one, with the id of the first. Out of `Deleted` it comes back, since nobody has seen the new part.
Message joined(Message message, const Message &parts);

/// Whether this message is in the table already, however it came there: with its id, by the PDUs of all its
/// parts, or as the same text with the same person at the same moment, if it has one.
bool isKnown(const MessageTable &table, const Message &message);

/// What a listing of a place gave, put together. What `old` has of that place already keeps its id, whether
/// it was read, and when it arrived; with a new part that is unread the whole is unread again.
std::vector<Message> mirrored(const MessageTable &old, MessagePlace place, std::vector<Message> listed,
                              int matchingLength);

} // namespace corva
