// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/recordfile.h"

#include "shell/safefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace corva
{
namespace
{

/// Thousands of profiles; what is larger is no record file.
constexpr qint64 largestFile = 4LL * 1024 * 1024;

QString say(const char *sentence, const QString &path)
{
    return QCoreApplication::translate("ProfileStore", sentence).arg(QDir::toNativeSeparators(path));
}

} // namespace

void RecordFile::load()
{
    m_records = {};
    m_problem.clear();
    if (!QFileInfo::exists(m_path))
        return;
    const QByteArray content = readAtMost(m_path, largestFile + 1);
    const bool isRead = !content.isNull() && content.size() <= largestFile;
    if (isRead)
        m_records = ProfileRecords(content);
    if (isRead && m_records.isReadable())
        return;
    m_records = {};
    m_problem = say(QT_TRANSLATE_NOOP("ProfileStore", "The profiles in %1 cannot be read."), m_path);
}

bool RecordFile::save(const ProfileRecords &records, QString *error)
{
    const QByteArray content = records.toBytes();
    if (m_problem.isEmpty() && content == m_records.toBytes())
        return true;
    if (!m_problem.isEmpty() && QFileInfo::exists(m_path) && keepBrokenFile(m_path).isEmpty()) {
        *error =
            say(QT_TRANSLATE_NOOP("ProfileStore", "%1 cannot be read, and cannot be kept beside."), m_path);
        return false;
    }
    if (!writeFileSafely(m_path, content, error))
        return false;
    m_records = records;
    m_problem.clear();
    return true;
}

} // namespace corva
