// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/csv.h"

#include <QStringDecoder>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// Blanks in front do not keep spreadsheets from calculating, nor do the wide forms of the signs.
bool isFormula(const QString &text)
{
    static const QString signs = u"=+-@\t\r\n\uFF1D\uFF0B\uFF0D\uFF20"_s;
    const QString bare = text.trimmed();
    return (!text.isEmpty() && signs.contains(text.front())) ||
           (!bare.isEmpty() && signs.contains(bare.front()));
}

QString field(QString text)
{
    // A NUL ends the text for many readers, and with it the row.
    text.remove(QChar(u'\0'));
    if (isFormula(text) || text.startsWith(u'\''))
        text.prepend(u'\'');
    const auto needsQuotes = [](QChar c) {
        return c == u',' || c == u'"' || c == u'\r' || c == u'\n' || c == u';' || c == u'\t';
    };
    const bool hasEdge = !text.isEmpty() && (text.front().isSpace() || text.back().isSpace());
    if (!hasEdge && std::none_of(text.begin(), text.end(), needsQuotes))
        return text;
    return u'"' + text.replace(u'"', "\"\""_L1) + u'"';
}

QString decoded(const QByteArray &bytes)
{
    const auto encoding = QStringConverter::encodingForData(bytes);
    return QStringDecoder(encoding.value_or(QStringConverter::Utf8)).decode(bytes);
}

/// What stands between the columns' names: the first of the signs in use that is met outside of quotes.
QChar separatorOf(const QString &text)
{
    bool isQuoted = false;
    for (const QChar c : text) {
        if (c == u'"')
            isQuoted = !isQuoted;
        else if (!isQuoted && (c == u',' || c == u';' || c == u'\t'))
            return c;
        else if (!isQuoted && (c == u'\n' || c == u'\r'))
            break;
    }
    return u',';
}

/// Takes fields from a text one after another.
class CsvReader
{
public:
    explicit CsvReader(const QString &text) : m_text(text), m_separator(separatorOf(text)) {}

    QList<QStringList> rows()
    {
        QList<QStringList> rows;
        while (m_at < m_text.size()) {
            const QStringList row = nextRow();
            if (row != QStringList{QString()})
                rows += row;
        }
        return rows;
    }

private:
    QStringList nextRow()
    {
        QStringList row{nextField()};
        while (m_at < m_text.size() && m_text.at(m_at) == m_separator) {
            ++m_at;
            row += nextField();
        }
        if (m_text.sliced(m_at).startsWith("\r\n"_L1))
            ++m_at;
        ++m_at;
        return row;
    }

    QString nextField()
    {
        QString field;
        if (m_at < m_text.size() && m_text.at(m_at) == u'"')
            field = quoted();
        const qsizetype begin = m_at;
        while (m_at < m_text.size() && !isEnd(m_text.at(m_at)))
            ++m_at;
        field += m_text.sliced(begin, m_at - begin);
        return field.startsWith(u'\'') ? field.sliced(1) : field;
    }

    /// Up to the closing quote, or the end.
    QString quoted()
    {
        QString field;
        for (++m_at; m_at < m_text.size(); ++m_at) {
            if (m_text.at(m_at) != u'"') {
                field += m_text.at(m_at);
                continue;
            }
            ++m_at;
            if (m_at >= m_text.size() || m_text.at(m_at) != u'"')
                break;
            field += u'"';
        }
        return field;
    }

    bool isEnd(QChar c) const { return c == m_separator || c == u'\r' || c == u'\n'; }

    const QStringView m_text;
    const QChar m_separator;
    qsizetype m_at = 0;
};

} // namespace

CsvTable::CsvTable(const QStringList &columns) : m_bytes("\xEF\xBB\xBF")
{
    addRow(columns);
}

void CsvTable::addRow(const QStringList &fields)
{
    QStringList written;
    for (const QString &text : fields)
        written += field(text);
    m_bytes += written.join(u',').toUtf8() + "\r\n";
}

QList<QStringList> parseCsv(const QByteArray &bytes)
{
    const QString text = decoded(bytes);
    return CsvReader(text).rows();
}

} // namespace corva
