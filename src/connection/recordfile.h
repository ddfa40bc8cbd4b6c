// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/profilerecords.h"

#include <QString>

namespace corva
{

/// A record file on disk. A file that cannot be read is kept beside, under a name with the time, before it is
/// replaced.
class RecordFile
{
public:
    explicit RecordFile(const QString &path) : m_path(path) {}

    void load();
    /// Writes `records` unless the file has just that already. False with a sentence in `error`; `records()`
    /// is then what it was.
    bool save(const ProfileRecords &records, QString *error);

    const ProfileRecords &records() const { return m_records; }
    const QString &path() const { return m_path; }
    /// Why the file could not be read; empty when it could, or is not there.
    const QString &problem() const { return m_problem; }

private:
    QString m_path;
    ProfileRecords m_records;
    QString m_problem;
};

} // namespace corva
