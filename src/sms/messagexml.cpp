// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/messagexml.h"

#include "shell/configxml.h"
#include "sms/messagefields.h"

#include <QXmlStreamWriter>
#include <pugixml.hpp>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr QLatin1StringView rootName = "messages"_L1;
constexpr QLatin1StringView messageName = "message"_L1;
constexpr QLatin1StringView numberName = "number"_L1;
constexpr QLatin1StringView partName = "part"_L1;
constexpr QLatin1StringView versionName = "version"_L1;
constexpr QLatin1StringView formatVersion = "1"_L1;
constexpr QLatin1StringView simName = "sim"_L1;
constexpr QLatin1StringView cardName = "card"_L1;

template <typename Record>
void writeFields(QXmlStreamWriter &writer, const Record &record, std::span<const RecordField<Record>> fields)
{
    for (const RecordField<Record> &field : fields) {
        if (!field.isDefault(record))
            writer.writeAttribute(field.name, escapedText(field.text(record)));
    }
}

/// How text comes back as it was written: blanks alone are a text, too.
constexpr unsigned parseOptions = pugi::parse_default | pugi::parse_ws_pcdata_single;

bool isNamed(const pugi::xml_node &node, QLatin1StringView name)
{
    return QLatin1StringView(node.name()) == name;
}

QString textOf(const char *bytes)
{
    return unescapedText(QString::fromUtf8(bytes));
}

QString textIn(const pugi::xml_node &node)
{
    QString text;
    for (const pugi::xml_node child : node.children()) {
        if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata)
            text += QString::fromUtf8(child.value());
    }
    return unescapedText(text);
}

/// Takes messages from elements, and notes what it did not know.
class StoreReader
{
public:
    void readStore(const pugi::xml_document &document)
    {
        const pugi::xml_node root = document.document_element();
        if (!isNamed(root, rootName))
            note(u"this is another kind of file"_s);
        else if (QLatin1StringView(root.attribute(versionName.data()).value()) != formatVersion)
            note(u"the file is of another version"_s);
        parsed.owners = {textOf(root.attribute(simName.data()).value()),
                         textOf(root.attribute(cardName.data()).value())};
        for (const pugi::xml_node node : root.children()) {
            if (isNamed(node, messageName))
                parsed.messages.push_back(readMessage(node));
            else
                noteUnknown(node);
        }
    }

    Message readMessage(const pugi::xml_node &element)
    {
        Message message;
        readFields(message, element, messageFields());
        for (const pugi::xml_node node : element.children()) {
            if (isNamed(node, partName))
                message.parts.push_back(readPart(node));
            else if (isNamed(node, numberName))
                message.recipients += textIn(node);
            else
                noteUnknown(node);
        }
        return message;
    }

    void note(const QString &what)
    {
        if (parsed.problem.isEmpty())
            parsed.problem = what;
    }

    ParsedMessages parsed;

private:
    void noteUnknown(const pugi::xml_node &node)
    {
        const bool isText = node.type() == pugi::node_pcdata;
        if (!isText || !QString::fromUtf8(node.value()).trimmed().isEmpty())
            note(u"<%1> has no place here"_s.arg(QString::fromUtf8(node.name())));
    }

    MessagePart readPart(const pugi::xml_node &element)
    {
        MessagePart part;
        readFields(part, element, partFields());
        part.text = textIn(element);
        if (element.find_child([](const pugi::xml_node &node) { return node.type() == pugi::node_element; }))
            note(u"text has no elements"_s);
        return part;
    }

    template <typename Record>
    void readFields(Record &record, const pugi::xml_node &element,
                    std::span<const RecordField<Record>> fields)
    {
        for (const pugi::xml_attribute attribute : element.attributes()) {
            const RecordField<Record> *field = fieldNamed(fields, QLatin1StringView(attribute.name()));
            if (!field || !field->setText(record, textOf(attribute.value())))
                note(u"\"%1\" makes no sense"_s.arg(QString::fromUtf8(attribute.name())));
        }
    }
};

/// Empty for an empty text.
QByteArray rootAttribute(QLatin1StringView name, const QString &text)
{
    if (text.isEmpty())
        return {};
    return ' ' + QByteArray(name.data(), name.size()) + "=\"" + escapedText(text).toHtmlEscaped().toUtf8() +
           '"';
}

/// Where the next message begins in a file of any kind; -1 behind the last.
qsizetype nextMessage(const QByteArray &bytes, qsizetype from)
{
    static const QByteArray opening = '<' + QByteArray(messageName.data(), messageName.size());
    for (qsizetype at = bytes.indexOf(opening, from); at >= 0; at = bytes.indexOf(opening, at + 1)) {
        const qsizetype behind = at + opening.size();
        if (behind < bytes.size() && QByteArrayView(" \t\r\n>/").contains(bytes.at(behind)))
            return at;
    }
    return -1;
}

/// Each message by itself; of a damaged one what comes before the damage.
std::vector<Message> salvage(const QByteArray &bytes)
{
    StoreReader reader;
    for (qsizetype at = nextMessage(bytes, 0); at >= 0;) {
        const qsizetype next = nextMessage(bytes, at + 1);
        const QByteArrayView piece = QByteArrayView(bytes).sliced(at, (next < 0 ? bytes.size() : next) - at);
        const QByteArray clean = xmlText(QString::fromUtf8(piece)).toUtf8();
        pugi::xml_document document;
        document.load_buffer(clean.constData(), size_t(clean.size()), parseOptions, pugi::encoding_utf8);
        Message message = reader.readMessage(document.document_element());
        if (!message.parts.empty() || !message.recipients.isEmpty())
            reader.parsed.messages.push_back(std::move(message));
        at = next;
    }
    return std::move(reader.parsed.messages);
}

} // namespace

QByteArray messageXml(const Message &message)
{
    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    writer.writeCharacters(u" "_s);
    writer.writeStartElement(messageName);
    writeFields(writer, message, messageFields());
    for (const QString &number : message.recipients) {
        writer.writeCharacters(u"\n  "_s);
        writer.writeTextElement(numberName, escapedText(number));
    }
    for (const MessagePart &part : message.parts) {
        writer.writeCharacters(u"\n  "_s);
        writer.writeStartElement(partName);
        writeFields(writer, part, partFields());
        writer.writeCharacters(escapedText(part.text));
        writer.writeEndElement();
    }
    writer.writeCharacters(u"\n "_s);
    writer.writeEndElement();
    writer.writeCharacters(u"\n"_s);
    return bytes;
}

QByteArray storeXmlHead(const PlaceOwners &owners)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<messages version=\"1\"" +
           rootAttribute(simName, owners.sim) + rootAttribute(cardName, owners.card) + ">\n";
}

QByteArray storeXmlTail()
{
    return "</messages>\n";
}

ParsedMessages parseStoreXml(const QByteArray &bytes)
{
    StoreReader reader;
    if (!QUtf8StringView(bytes).isValidUtf8())
        return {salvage(bytes), {}, u"bytes that are no text"_s};
    QByteArray scratch = bytes;
    pugi::xml_document document;
    const pugi::xml_parse_result result = document.load_buffer_inplace(scratch.data(), size_t(scratch.size()),
                                                                       parseOptions, pugi::encoding_utf8);
    if (!result)
        return {salvage(bytes),
                {},
                u"at byte %1: %2"_s.arg(result.offset).arg(QLatin1StringView(result.description()))};
    reader.readStore(document);
    return std::move(reader.parsed);
}

} // namespace corva
