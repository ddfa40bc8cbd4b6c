// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/configxml.h"

#include <QXmlStreamReader>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{
namespace
{

constexpr int keyDepth = 3;      ///< the root is 1, a section 2
constexpr int deepestLevel = 32; ///< the document is freed recursively

/// Turns the reader's tokens into nodes, with the place in the tree as its state.
class TreeBuilder
{
public:
    explicit TreeBuilder(const QByteArray &bytes) : m_reader(bytes)
    {
        m_reader.setNamespaceProcessing(false);
        m_place = m_document;
    }

    QString run(QDomDocument &document)
    {
        while (!m_reader.atEnd())
            take(m_reader.readNext());
        if (m_reader.hasError())
            return m_reader.errorString();
        document = m_document;
        return {};
    }

private:
    void take(QXmlStreamReader::TokenType token)
    {
        switch (token) {
        case QXmlStreamReader::StartElement: return enter();
        case QXmlStreamReader::EndElement: return leave();
        case QXmlStreamReader::Characters: return addText();
        case QXmlStreamReader::Comment:
            m_place.appendChild(m_document.createComment(xmlText(m_reader.text().toString())));
            return;
        case QXmlStreamReader::ProcessingInstruction: return addInstruction();
        default: return;
        }
    }

    void enter()
    {
        if (++m_depth > deepestLevel)
            return m_reader.raiseError(u"elements are nested too deeply"_s);
        QDomElement element = m_document.createElement(m_reader.qualifiedName().toString());
        for (const QXmlStreamAttribute &attribute : m_reader.attributes())
            element.setAttribute(attribute.qualifiedName().toString(), xmlText(attribute.value().toString()));
        m_place = m_place.appendChild(element);
    }

    void leave()
    {
        --m_depth;
        m_place = m_place.parentNode();
    }

    /// The reader lets names pass that it refuses when they are written out again.
    void addInstruction()
    {
        const QString name = m_reader.processingInstructionTarget().toString();
        const QString data = m_reader.processingInstructionData().toString();
        if (!isXmlName(name))
            return m_reader.raiseError(u"an instruction has no proper name"_s);
        m_place.appendChild(m_document.createProcessingInstruction(name, xmlText(data)));
    }

    void addText()
    {
        // Text that strays between sections and keys must not grow with each indenting. The reader's
        // isWhitespace() denies blanks that were written as references, hence the look at what is left.
        const QString text =
            xmlText((m_depth < keyDepth ? m_reader.text().trimmed() : m_reader.text()).toString());
        if (m_depth == 0 || text.isEmpty())
            return;
        m_place.appendChild(m_reader.isCDATA() ? m_document.createCDATASection(text)
                                               : m_document.createTextNode(text));
    }

    QXmlStreamReader m_reader;
    QDomDocument m_document{QString()}; ///< named, since one without is null and takes no children
    QDomNode m_place;
    int m_depth = 0;
};

QString escaped(const QString &text)
{
    // A bare carriage return would come back as a line feed.
    return text.toHtmlEscaped().replace(u'\r', "&#13;"_L1);
}

QString escapedAttribute(const QString &text)
{
    return escaped(text).replace(u'\n', "&#10;"_L1).replace(u'\t', "&#9;"_L1);
}

QString openingTag(const QDomElement &element)
{
    QString tag = u'<' + element.tagName();
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        tag += u' ' + attribute.name() + "=\""_L1 + escapedAttribute(attribute.value()) + u'"';
    }
    return tag;
}

QString formatNode(const QDomNode &node, int depth);

QString formatElement(const QDomElement &element, int depth)
{
    QString content;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling())
        content += formatNode(child, depth + 1);
    const QString opening = openingTag(element);
    if (content.isEmpty())
        return opening + "/>"_L1;
    if (depth < keyDepth)
        content = u'\n' + content + QString(depth - 1, u' ');
    return opening + u'>' + content + "</"_L1 + element.tagName() + u'>';
}

QString bareNode(const QDomNode &node, int depth)
{
    if (node.isElement())
        return formatElement(node.toElement(), depth);
    if (node.isComment())
        return "<!--"_L1 + node.nodeValue() + "-->"_L1;
    if (node.isProcessingInstruction())
        return "<?"_L1 + node.nodeName() + u' ' + node.nodeValue() + "?>"_L1;
    return escaped(node.nodeValue());
}

QString formatNode(const QDomNode &node, int depth)
{
    if (depth > keyDepth)
        return bareNode(node, depth);
    return QString(depth - 1, u' ') + bareNode(node, depth) + u'\n';
}

bool isAsciiNameStart(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_';
}

bool isAsciiNameChar(QChar c)
{
    return isAsciiNameStart(c) || (c >= u'0' && c <= u'9') || c == u'-' || c == u'.';
}

bool isXmlCharacter(QChar c)
{
    return c.unicode() >= 0x20 ? c.unicode() < 0xFFFE : (c == u'\t' || c == u'\n' || c == u'\r');
}

} // namespace

QString parseConfigXml(const QByteArray &bytes, QDomDocument &document)
{
    return TreeBuilder(bytes).run(document);
}

QByteArray formatConfigXml(const QDomDocument &document)
{
    QString text = u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"_s;
    for (QDomNode node = document.firstChild(); !node.isNull(); node = node.nextSibling())
        text += formatNode(node, 1);
    return text.toUtf8();
}

QString xmlText(QString text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
        else if (text.at(i).isSurrogate() || !isXmlCharacter(text.at(i)))
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

bool isXmlName(const QString &name)
{
    return !name.isEmpty() && isAsciiNameStart(name.front()) &&
           std::all_of(name.begin(), name.end(), isAsciiNameChar);
}

} // namespace corva
