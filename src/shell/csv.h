// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

namespace corva
{

/// A table as RFC 4180 has it: commas, CR LF, quotes around what needs them; UTF-8 with the byte order mark
/// that spreadsheets expect. A field that a spreadsheet would take for a formula gets an apostrophe in front,
/// and so does one that begins with an apostrophe, so that readers can tell.
class CsvTable
{
public:
    explicit CsvTable(const QStringList &columns);
    void addRow(const QStringList &fields);
    const QByteArray &bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

/// The rows of such a table, the columns' names the first of them, the apostrophes taken off again. Takes
/// what spreadsheets make of one, too: semicolons or tabs in place of the commas, other line ends, UTF-16
/// with a byte order mark. Empty lines are left out; rows may have different lengths.
QList<QStringList> parseCsv(const QByteArray &bytes);

} // namespace corva
