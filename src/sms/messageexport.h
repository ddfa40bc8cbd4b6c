// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

#include <QByteArray>

namespace corva
{

/// What a file of messages held.
struct ExportedMessages {
    std::vector<Message> messages;
    int unreadable = 0;   ///< rows or entries that make no sense, and were left out
    bool isKnown = false; ///< whether it is such a file at all
};

/// A row for each part, with the columns of its message first in it; of parts with one id the first row tells
/// of the message. Several recipients stand in lines of one field. Columns are named the same in every
/// language and may stand in any order; of a table by other hands "number", "time" and "text" are enough.
/// Control characters are written as `escapedText` does.
QByteArray messagesCsv(const std::vector<Message> &messages);
ExportedMessages parseMessagesCsv(const QByteArray &bytes);

/// {"format": "messages", "version": 1, "messages": [{..., "numbers": [...], "parts": [{..., "text":
/// "..."}]}]}
QByteArray messagesJson(const std::vector<Message> &messages);
ExportedMessages parseMessagesJson(const QByteArray &bytes);

/// Of either form, as an import takes it: without control characters in numbers and texts, and without what
/// has neither of them.
ExportedMessages parseExport(const QByteArray &bytes);

} // namespace corva
