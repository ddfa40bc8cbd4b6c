// SPDX-License-Identifier: GPL-3.0-or-later
#include "atfields.h"

namespace corva
{

AtFields::AtFields(QByteArrayView arguments)
{
    QByteArray field;
    bool inQuotes = false;
    bool wasQuoted = false;
    const auto finish = [&] {
        m_fields.append(wasQuoted ? field : field.trimmed());
        m_quoted.append(wasQuoted);
        field.clear();
        wasQuoted = false;
    };
    for (const char c : arguments) {
        if (c == '"') {
            inQuotes = !inQuotes;
            if (inQuotes && !wasQuoted)
                field.clear(); // the blank between comma and quote
            wasQuoted = true;
        } else if (c == ',' && !inQuotes) {
            finish();
        } else if (inQuotes || !wasQuoted) {
            field.append(c);
        }
    }
    finish();
}

std::optional<int> AtFields::number(qsizetype index, int lowest, int highest, int base) const
{
    bool isNumber = false;
    const int value = text(index).toInt(&isNumber, base);
    return isNumber && value >= lowest && value <= highest ? std::optional(value) : std::nullopt;
}

ReplyResult<AtFields> AtFields::find(const QByteArray &reply, QByteArrayView prefix)
{
    for (const QByteArray &line : replyLines(reply)) {
        if (line.startsWith(prefix))
            return AtFields(QByteArrayView(line).sliced(prefix.size()));
    }
    return refusal(reply).value_or(reply.isEmpty() ? ReplyError{ReplyError::Silent, {}}
                                                   : ReplyError{ReplyError::NoLine, prefix.toByteArray()});
}

QByteArrayList replyLines(const QByteArray &reply)
{
    QByteArrayList lines;
    QByteArray line;
    const auto finish = [&] {
        line = line.trimmed();
        if (!line.isEmpty())
            lines.append(line);
        line.clear();
    };
    for (const char c : reply) {
        if (c == '\r' || c == '\n')
            finish();
        else if (static_cast<unsigned char>(c) >= 32 && c != 127)
            line.append(c);
    }
    finish();
    return lines;
}

std::optional<ReplyError> refusal(const QByteArray &reply)
{
    for (const QByteArray &line : replyLines(reply)) {
        for (const QByteArrayView mark : {QByteArrayView("+CME ERROR:"), QByteArrayView("+CMS ERROR:")}) {
            if (line.startsWith(mark))
                return ReplyError{ReplyError::Refused, line.sliced(mark.size()).trimmed()};
        }
        if (line == "ERROR" || line == "COMMAND NOT SUPPORT")
            return ReplyError{ReplyError::Refused, {}};
    }
    return std::nullopt;
}

} // namespace corva
