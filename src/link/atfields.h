// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <optional>
#include <variant>

namespace corva
{

/// Why a reply gave no value.
struct ReplyError {
    enum Kind {
        Silent,   ///< nothing came, or the command was not written
        Refused,  ///< "ERROR" or "+CME ERROR: <detail>"
        NoLine,   ///< the expected line is not in the reply
        BadField, ///< the line is there and does not have its shape
    } kind;
    QByteArray detail; ///< Refused: the error's number or words; BadField: the field's name
    bool operator==(const ReplyError &) const = default;
};

/// A value or the reason why there is none.
template <typename T> class ReplyResult
{
public:
    ReplyResult(T value) : m_content(std::move(value)) {}
    ReplyResult(ReplyError error) : m_content(std::move(error)) {}
    explicit operator bool() const { return m_content.index() == 0; }
    const T &operator*() const { return std::get<0>(m_content); }
    const T *operator->() const { return &std::get<0>(m_content); }
    const ReplyError &error() const { return std::get<1>(m_content); }
    T valueOr(T other) const { return *this ? **this : std::move(other); }

private:
    std::variant<T, ReplyError> m_content;
};

/// The fields of one information line, `<prefix> a,"b,c",d`: quotes taken off, blanks around unquoted fields
/// too. 3GPP TS 27.007 4.
class AtFields
{
public:
    /// The first line of `reply` that begins with `prefix` ("+CSQ:"); the error says whether the card
    /// refused.
    static ReplyResult<AtFields> find(const QByteArray &reply, QByteArrayView prefix);
    /// Splits the text behind a prefix.
    explicit AtFields(QByteArrayView arguments);

    qsizetype count() const { return m_fields.size(); }
    bool has(qsizetype index) const { return index < m_fields.size() && !m_fields[index].isEmpty(); }
    QByteArray text(qsizetype index) const
    {
        return index < m_fields.size() ? m_fields[index] : QByteArray();
    }
    bool isQuoted(qsizetype index) const { return index < m_quoted.size() && m_quoted[index]; }
    /// The whole field as a number in `lowest`..`highest`; nullopt for anything else.
    std::optional<int> number(qsizetype index, int lowest, int highest, int base = 10) const;

private:
    QByteArrayList m_fields;
    QList<bool> m_quoted;
};

/// The lines of a reply without line ends, blank lines and control characters.
QByteArrayList replyLines(const QByteArray &reply);

/// "Refused" with its detail when the reply is an error; nullopt when it is not.
std::optional<ReplyError> refusal(const QByteArray &reply);

} // namespace corva
