// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

namespace corva
{

/// A table as RFC 4180 has it: commas, CR LF, quotes around what needs them; UTF-8 with the byte order mark
/// that spreadsheets expect. A field that a spreadsheet would take for a formula gets an apostrophe in front.
class CsvTable
{
public:
    explicit CsvTable(const QStringList &columns);
    void addRow(const QStringList &fields);
    const QByteArray &bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

} // namespace corva
