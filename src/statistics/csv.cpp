// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/csv.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

QString field(QString text)
{
    // A NUL ends the text for many readers, and with it the row.
    text.remove(QChar(u'\0'));
    // Blanks in front do not keep spreadsheets from calculating, nor do the wide forms of the signs.
    static const QString formula = u"=+-@\t\r\n\uFF1D\uFF0B\uFF0D\uFF20"_s;
    const QString bare = text.trimmed();
    if ((!text.isEmpty() && formula.contains(text.front())) ||
        (!bare.isEmpty() && formula.contains(bare.front())))
        text.prepend(u'\'');
    const auto needsQuotes = [](QChar c) { return c == u',' || c == u'"' || c == u'\r' || c == u'\n'; };
    const bool hasEdge = !text.isEmpty() && (text.front().isSpace() || text.back().isSpace());
    if (!hasEdge && std::none_of(text.begin(), text.end(), needsQuotes))
        return text;
    return u'"' + text.replace(u'"', "\"\""_L1) + u'"';
}

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

} // namespace corva
