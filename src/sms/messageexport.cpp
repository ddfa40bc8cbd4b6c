// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/messageexport.h"

#include <algorithm>

namespace corva
{

namespace
{

/// Far more than a number, an alphanumeric sender or a name of the phonebook takes.
constexpr qsizetype longestRecipient = 1000;

/// A quote that is never closed makes a "number" of all that follows.
bool hasSenselessRecipient(const Message &message)
{
    return std::ranges::any_of(message.recipients,
                               [](const QString &each) { return each.size() > longestRecipient; });
}

} // namespace

ExportedMessages parseExport(const QByteArray &bytes)
{
    ExportedMessages exported = parseMessagesJson(bytes);
    if (!exported.isKnown)
        exported = parseMessagesCsv(bytes);
    exported.unreadable += int(std::erase_if(exported.messages, hasSenselessRecipient));
    return exported;
}

} // namespace corva
