// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/messageexport.h"
#include "sms/messagefields.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

const QString formatKey = u"format"_s;
const QString formatName = u"messages"_s;
const QString versionKey = u"version"_s;
const QString messagesKey = u"messages"_s;
const QString numbersKey = u"numbers"_s;
const QString partsKey = u"parts"_s;
const QString textKey = u"text"_s;
constexpr int formatVersion = 1;

template <typename Record>
QJsonObject fieldsOf(const Record &record, std::span<const RecordField<Record>> fields)
{
    QJsonObject object;
    for (const RecordField<Record> &field : fields) {
        if (!field.isDefault(record))
            object.insert(field.name, field.json(record));
    }
    return object;
}

/// False when a value makes no sense.
template <typename Record>
bool takeFields(Record &record, const QJsonObject &object, std::span<const RecordField<Record>> fields)
{
    return std::ranges::all_of(fields, [&](const RecordField<Record> &field) {
        const QJsonValue value = object.value(field.name);
        return value.isUndefined() || field.setJson(record, value);
    });
}

QJsonObject objectOf(const Message &message)
{
    QJsonArray parts;
    for (const MessagePart &part : message.parts) {
        QJsonObject object = fieldsOf(part, partFields());
        object.insert(textKey, part.text);
        parts += object;
    }
    QJsonObject object = fieldsOf(message, messageFields());
    object.insert(numbersKey, QJsonArray::fromStringList(message.recipients));
    object.insert(partsKey, parts);
    return object;
}

std::optional<Message> messageOf(const QJsonObject &object)
{
    Message message;
    if (!takeFields(message, object, messageFields()))
        return std::nullopt;
    for (const QJsonValue number : object.value(numbersKey).toArray())
        message.recipients += number.toString();
    for (const QJsonValue value : object.value(partsKey).toArray()) {
        MessagePart part;
        part.text = value[textKey].toString();
        if (!takeFields(part, value.toObject(), partFields()))
            return std::nullopt;
        message.parts.push_back(part);
    }
    return message.parts.empty() && message.recipients.isEmpty() ? std::nullopt : std::optional(message);
}

} // namespace

QByteArray messagesJson(const std::vector<Message> &messages)
{
    QJsonArray array;
    for (const Message &message : messages)
        array += objectOf(message);
    return QJsonDocument({{formatKey, formatName}, {versionKey, formatVersion}, {messagesKey, array}})
        .toJson();
}

ExportedMessages parseMessagesJson(const QByteArray &bytes)
{
    const QJsonObject root = QJsonDocument::fromJson(bytes).object();
    ExportedMessages exported;
    exported.isKnown = root.value(formatKey) == formatName && root.value(versionKey) == formatVersion;
    if (!exported.isKnown)
        return exported;
    for (const QJsonValue value : root.value(messagesKey).toArray()) {
        if (std::optional<Message> message = messageOf(value.toObject()))
            exported.messages.push_back(std::move(*message));
        else
            ++exported.unreadable;
    }
    return exported;
}

} // namespace corva
