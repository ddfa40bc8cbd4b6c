// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/csv.h"
#include "sms/messageexport.h"
#include "sms/messagefields.h"

#include <QHash>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

const QString numberColumn = u"number"_s;
const QString textColumn = u"text"_s;

/// The numbers in lines; those that are empty are left out.
QString joinedNumbers(const QStringList &numbers)
{
    QStringList lines;
    for (const QString &number : numbers) {
        if (!number.isEmpty())
            lines += escapedText(number).replace(u'\n', u"\\u000a"_s);
    }
    return lines.join(u'\n');
}

QStringList splitNumbers(const QString &field)
{
    QStringList numbers;
    for (const QString &line : field.split(u'\n'))
        numbers += unescapedText(line.endsWith(u'\r') ? line.chopped(1) : line);
    numbers.removeAll(QString());
    return numbers;
}

/// What people look for stands in front.
QStringList columns()
{
    QStringList names{numberColumn, textColumn};
    for (const MessageField &field : messageFields())
        names += field.name;
    for (const PartField &field : partFields())
        names += field.name;
    return names;
}

/// What has its default is left out, but for what tells the message at a glance.
template <typename Record> QString fieldText(const Record &record, const RecordField<Record> &field)
{
    return field.isDefault(record) ? QString() : escapedText(field.text(record));
}

QStringList rowOf(const Message &message, const MessagePart *part)
{
    QStringList row{joinedNumbers(message.recipients), part ? escapedText(part->text) : QString()};
    for (const MessageField &field : messageFields())
        row += fieldText(message, field);
    for (const PartField &field : partFields()) {
        // A part is told from none by its number.
        if (!part)
            row += QString();
        else
            row += field.name == "sequence"_L1 ? field.text(*part) : fieldText(*part, field);
    }
    return row;
}

/// One row by the names of its columns.
class Row
{
public:
    Row(const QStringList &names, const QStringList &fields) : m_names(names), m_fields(fields) {}

    QString value(QStringView column) const
    {
        const qsizetype at = m_names.indexOf(column);
        return at < 0 ? QString() : m_fields.value(at);
    }

    /// False when a field makes no sense.
    template <typename Record> bool take(Record &record, std::span<const RecordField<Record>> fields) const
    {
        return std::ranges::all_of(fields, [&](const RecordField<Record> &field) {
            const QString text = value(QString(field.name));
            return text.isEmpty() || field.setText(record, unescapedText(text));
        });
    }

    bool hasPart() const
    {
        return !value(textColumn).isEmpty() || std::ranges::any_of(partFields(), [&](const PartField &field) {
            return !value(QString(field.name)).isEmpty();
        });
    }

private:
    const QStringList &m_names;
    const QStringList &m_fields;
};

/// Puts messages together from rows.
class CsvMessages
{
public:
    void take(const Row &row)
    {
        Message message;
        MessagePart part;
        const bool makesSense = row.take(message, messageFields()) && row.take(part, partFields());
        message.recipients = splitNumbers(row.value(numberColumn));
        part.text = unescapedText(row.value(textColumn));
        if (!makesSense || (!row.hasPart() && message.recipients.isEmpty())) {
            ++exported.unreadable;
            return;
        }
        Message &target = messageFor(std::move(message));
        if (row.hasPart())
            target.parts.push_back(std::move(part));
    }

    ExportedMessages exported;

private:
    Message &messageFor(Message &&message)
    {
        const auto known = m_places.constFind(message.id);
        if (!message.id.isEmpty() && known != m_places.constEnd())
            return exported.messages[*known];
        m_places.insert(message.id, exported.messages.size());
        return exported.messages.emplace_back(std::move(message));
    }

    QHash<QString, size_t> m_places;
};

} // namespace

QByteArray messagesCsv(const std::vector<Message> &messages)
{
    CsvTable table(columns());
    for (const Message &message : messages) {
        for (const MessagePart &part : message.parts)
            table.addRow(rowOf(message, &part));
        if (message.parts.empty())
            table.addRow(rowOf(message, nullptr));
    }
    return table.bytes();
}

ExportedMessages parseMessagesCsv(const QByteArray &bytes)
{
    const QList<QStringList> rows = parseCsv(bytes);
    CsvMessages messages;
    const QStringList names = rows.value(0);
    messages.exported.isKnown = names.contains(numberColumn) || names.contains(textColumn);
    if (!messages.exported.isKnown)
        return messages.exported;
    for (const QStringList &fields : rows.sliced(1))
        messages.take(Row(names, fields));
    return std::move(messages.exported);
}

} // namespace corva
