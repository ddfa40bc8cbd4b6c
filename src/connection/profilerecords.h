// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionprofile.h"

#include <QByteArray>
#include <QList>

namespace corva
{

/// A record file: "[ the record of <NAME> ]", then one line per field of label, value and "-|-". Every byte
/// is kept: a record that is not edited, lines of other kinds and text between the records come out as they
/// went in. Pure.
///
/// Lines may be missing, doubled (the first counts) or without their end mark. The field of the name goes
/// before the header's name; without the field the header's counts. Values are UTF-8.
class ProfileRecords
{
public:
    ProfileRecords() = default;
    explicit ProfileRecords(const QByteArray &content);

    /// False for a text that is not empty and has no record.
    bool isReadable() const { return !m_records.isEmpty() || m_before.trimmed().isEmpty(); }

    qsizetype size() const { return m_records.size(); }
    ConnectionProfile at(qsizetype index) const;
    QList<ConnectionProfile> all() const;

    /// Only the lines of fields that differ change; a missing line is made for a field that is no longer
    /// empty.
    void change(qsizetype index, const ConnectionProfile &profile);
    void append(const ConnectionProfile &profile);
    /// Text between the removed record and the next one stays.
    void remove(qsizetype index);
    /// The record alone, as a file of its own.
    ProfileRecords only(qsizetype index) const;

    QByteArray toBytes() const;

private:
    /// Its header line and those that follow, each with its line end.
    using Record = QList<QByteArray>;

    QByteArray lineEnd() const;

    QByteArray m_before; ///< what stands before the first record
    QList<Record> m_records;
};

} // namespace corva
