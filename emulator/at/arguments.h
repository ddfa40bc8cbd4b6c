// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

namespace cardemu
{

/// The values behind a command's "=". ITU-T V.250 5.4.2: numbers, texts in quotes, or nothing, between
/// commas.
class Arguments
{
public:
    Arguments() = default;
    /// "1,\"a,b\",,2"; nullopt when a quote stays open or stands inside a value.
    static std::optional<Arguments> parse(const QByteArray &text);
    static Arguments ofNumber(int number);
    static Arguments ofText(const QByteArray &text);

    qsizetype count() const { return static_cast<qsizetype>(m_values.size()); }
    bool has(qsizetype index) const { return index < count() && !value(index).text.isEmpty(); }
    /// An unquoted decimal number; nullopt when absent or of another shape.
    std::optional<int> number(qsizetype index) const;
    /// As number(), with a default for an absent value only, and limits.
    std::optional<int> number(qsizetype index, int absent, int low, int high) const;
    /// The value without its quotes; empty when absent.
    QByteArray text(qsizetype index) const;
    bool isQuoted(qsizetype index) const { return index < count() && value(index).quoted; }

private:
    struct Value {
        QByteArray text;
        bool quoted = false;
    };

    const Value &value(qsizetype index) const { return m_values[static_cast<size_t>(index)]; }

    std::vector<Value> m_values;
};

} // namespace cardemu
