// SPDX-License-Identifier: GPL-3.0-or-later
#include "at/arguments.h"

#include <utility>

namespace cardemu
{

std::optional<Arguments> Arguments::parse(const QByteArray &text)
{
    Arguments arguments;
    Value value;
    bool inQuotes = false;
    for (const char c : text) {
        if (c == '"') {
            const bool opens = !inQuotes;
            if (opens && (value.quoted || !value.text.isEmpty()))
                return std::nullopt;
            inQuotes = opens;
            value.quoted = true;
        } else if (c == ',' && !inQuotes) {
            arguments.m_values.push_back(std::exchange(value, {}));
        } else if (!inQuotes && value.quoted) {
            return std::nullopt;
        } else {
            value.text += c;
        }
    }
    if (inQuotes)
        return std::nullopt;
    if (!arguments.m_values.empty() || value.quoted || !value.text.isEmpty())
        arguments.m_values.push_back(value);
    return arguments;
}

Arguments Arguments::ofNumber(int number)
{
    Arguments arguments;
    arguments.m_values.push_back({QByteArray::number(number), false});
    return arguments;
}

Arguments Arguments::ofText(const QByteArray &text)
{
    Arguments arguments;
    arguments.m_values.push_back({text, true});
    return arguments;
}

std::optional<int> Arguments::number(qsizetype index) const
{
    if (!has(index) || value(index).quoted)
        return std::nullopt;
    bool valid = false;
    const int number = value(index).text.toInt(&valid);
    return valid ? std::optional(number) : std::nullopt;
}

std::optional<int> Arguments::number(qsizetype index, int absent, int low, int high) const
{
    const auto given = has(index) ? number(index) : std::optional(absent);
    return given && *given >= low && *given <= high ? given : std::nullopt;
}

QByteArray Arguments::text(qsizetype index) const
{
    return index < count() ? value(index).text : QByteArray();
}

} // namespace cardemu
