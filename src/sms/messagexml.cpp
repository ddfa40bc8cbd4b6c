// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/messagexml.h"

#include "shell/configxml.h"
#include "sms/messagefields.h"

#include <QXmlStreamReader>

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

template <typename Record>
void writeFields(QXmlStreamWriter &writer, const Record &record, std::span<const RecordField<Record>> fields)
{
    for (const RecordField<Record> &field : fields) {
        if (!field.isDefault(record))
            writer.writeAttribute(field.name, escapedText(field.text(record)));
    }
}

/// Reads the elements of a store; goes on as long as the file is well formed, and notes what it did not know.
class StoreReader
{
public:
    template <typename Source> explicit StoreReader(const Source &source) : m_reader(source)
    {
        m_reader.setNamespaceProcessing(false);
    }

    ParsedMessages readStore()
    {
        if (!m_reader.readNextStartElement() || m_reader.name() != rootName)
            note(u"this is another kind of file"_s);
        else if (m_reader.attributes().value(versionName) != formatVersion)
            note(u"the file is of another version"_s);
        while (m_reader.readNextStartElement()) {
            if (m_reader.name() == messageName)
                m_parsed.messages.push_back(readMessage());
            else
                skip();
        }
        while (!m_reader.atEnd())
            m_reader.readNext();
        if (m_reader.hasError())
            note(m_reader.errorString());
        return std::move(m_parsed);
    }

    /// Of a text that begins with a message, and may end anywhere.
    Message readOne()
    {
        m_reader.readNextStartElement();
        return readMessage();
    }

    bool isDamaged() const { return m_reader.hasError(); }

private:
    void note(const QString &what)
    {
        if (m_parsed.problem.isEmpty())
            m_parsed.problem = u"line %1: %2"_s.arg(m_reader.lineNumber()).arg(what);
    }

    void skip()
    {
        note(u"<%1> is not known"_s.arg(m_reader.name()));
        m_reader.skipCurrentElement();
    }

    template <typename Record> void readFields(Record &record, std::span<const RecordField<Record>> fields)
    {
        for (const QXmlStreamAttribute &attribute : m_reader.attributes()) {
            const RecordField<Record> *field = fieldNamed(fields, attribute.name());
            if (!field || !field->setText(record, unescapedText(attribute.value().toString())))
                note(u"\"%1\" makes no sense"_s.arg(attribute.name()));
        }
    }

    QString readText()
    {
        return unescapedText(m_reader.readElementText(QXmlStreamReader::SkipChildElements));
    }

    Message readMessage()
    {
        Message message;
        readFields(message, messageFields());
        while (m_reader.readNextStartElement()) {
            if (m_reader.name() == partName)
                readPart(message);
            else if (m_reader.name() == numberName)
                readNumber(message);
            else
                skip();
        }
        return message;
    }

    /// Of a part that is cut off the PDU may be whole.
    void readPart(Message &message)
    {
        MessagePart part;
        readFields(part, partFields());
        part.text = readText();
        if (!m_reader.hasError() || !part.pdu.isEmpty())
            message.parts.push_back(part);
    }

    void readNumber(Message &message)
    {
        const QString number = readText();
        if (!m_reader.hasError())
            message.recipients += number;
    }

    QXmlStreamReader m_reader;
    ParsedMessages m_parsed;
};

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

std::vector<Message> salvage(const QByteArray &bytes)
{
    std::vector<Message> messages;
    for (qsizetype at = nextMessage(bytes, 0); at >= 0;) {
        const qsizetype next = nextMessage(bytes, at + 1);
        const QByteArrayView piece = QByteArrayView(bytes).sliced(at, (next < 0 ? bytes.size() : next) - at);
        Message message = StoreReader(xmlText(QString::fromUtf8(piece))).readOne();
        if (!message.parts.empty() || !message.recipients.isEmpty())
            messages.push_back(std::move(message));
        at = next;
    }
    return messages;
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

QByteArray storeXmlHead()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<messages version=\"1\">\n";
}

QByteArray storeXmlTail()
{
    return "</messages>\n";
}

ParsedMessages parseStoreXml(const QByteArray &bytes)
{
    StoreReader reader(bytes);
    ParsedMessages parsed = reader.readStore();
    if (reader.isDamaged())
        parsed.messages = salvage(bytes);
    return parsed;
}

} // namespace corva
