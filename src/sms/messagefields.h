// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

#include <QJsonValue>
#include <span>
#include <variant>

namespace corva
{

/// How one member of a record is called in files, whatever their form, and what it may hold.
template <typename Record> struct RecordField {
    using Member = std::variant<QString Record::*, int Record::*, bool Record::*, QDateTime Record::*,
                                MessageBox Record::*, MessagePlace Record::*, DeliveryState Record::*>;

    QLatin1StringView name;
    Member member;
    int least = 0; ///< of numbers
    int most = 0;

    bool isDefault(const Record &record) const;
    /// "1" and "0" for flags, times in ISO 8601 with their offset, words for the rest; empty for no time.
    QString text(const Record &record) const;
    /// False for a text that makes no sense; the record then keeps what it has.
    bool setText(Record &record, const QString &text) const;
    /// Numbers and flags as such, all else as its text.
    QJsonValue json(const Record &record) const;
    bool setJson(Record &record, const QJsonValue &value) const;
};

using MessageField = RecordField<Message>;
using PartField = RecordField<MessagePart>;

/// All members of a message but its recipients and parts, and all of a part but its text.
std::span<const MessageField> messageFields();
std::span<const PartField> partFields();

/// Null when there is none of that name.
template <typename Record, typename Name>
const RecordField<Record> *fieldNamed(std::span<const RecordField<Record>> fields, const Name &name)
{
    for (const RecordField<Record> &field : fields) {
        if (field.name == name)
            return &field;
    }
    return nullptr;
}

/// Backslashes doubled and what neither XML nor a table can hold as "\u0007": control characters, carriage
/// returns, halves of surrogate pairs, noncharacters. Other texts stay as they are.
QString escapedText(const QString &text);
/// The reverse; what is no such escape stays as it is.
QString unescapedText(const QString &text);

} // namespace corva
