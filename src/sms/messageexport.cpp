// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/messageexport.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// Far more than a number, an alphanumeric sender or a name of the phonebook takes.
constexpr qsizetype longestRecipient = 1000;

/// A quote that is never closed makes a "number" of all that follows.
bool isSenselessRecipient(const QString &recipient)
{
    return recipient.size() > longestRecipient;
}

/// What has no person, no text and no PDU is no message.
bool isSenseless(const Message &message)
{
    const auto saysSomething = [](const MessagePart &part) {
        return !part.text.isEmpty() || !part.pdu.isEmpty();
    };
    return std::ranges::any_of(message.recipients, isSenselessRecipient) ||
           (message.recipients.join(QString()).isEmpty() &&
            std::ranges::none_of(message.parts, saysSomething));
}

bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control;
}

/// Whoever wrote the file: control characters are neither dialled nor shown.
void clean(Message &message)
{
    for (QString &recipient : message.recipients)
        recipient.removeIf(isControl);
    for (MessagePart &part : message.parts)
        part.text.removeIf([](QChar c) { return isControl(c) && !u"\n\r\t"_s.contains(c); });
}

} // namespace

ExportedMessages parseExport(const QByteArray &bytes)
{
    ExportedMessages exported = parseMessagesJson(bytes);
    if (!exported.isKnown)
        exported = parseMessagesCsv(bytes);
    std::ranges::for_each(exported.messages, clean);
    exported.unreadable += int(std::erase_if(exported.messages, isSenseless));
    return exported;
}

} // namespace corva
