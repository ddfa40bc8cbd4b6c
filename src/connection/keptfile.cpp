// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/keptfile.h"

#include "shell/safefile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace corva
{
namespace
{

/// Files of settings have some kilobytes.
constexpr qint64 largestFile = 16LL * 1024 * 1024;

struct Reading {
    bool exists = false;
    std::optional<QByteArray> content; ///< none when it cannot be read
};

/// A pipe or a device is not opened: that could last for ever.
Reading read(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {};
    QFile file(path);
    if (!info.isFile() || info.size() > largestFile || !file.open(QIODevice::ReadOnly))
        return {true, {}};
    const QByteArray content = file.readAll();
    return {true, file.error() == QFile::NoError ? std::optional(content) : std::nullopt};
}

bool isSame(const FileRights &a, const FileRights &b)
{
    return a.mode == b.mode && a.owner == b.owner && a.group == b.group;
}

bool remove(const QString &path)
{
    return ::unlink(QFile::encodeName(path).constData()) == 0 || errno == ENOENT;
}

} // namespace

bool KeptFile::hasCopy() const
{
    return QFileInfo::exists(m_copy);
}

bool KeptFile::tidy() const
{
    removeUnfinishedFiles(m_path);
    removeUnfinishedFiles(m_copy);
    return remove(m_copy);
}

bool KeptFile::take(DiallerJournal::File *state, QString *detail) const
{
    const Reading now = read(m_path);
    const std::optional<FileRights> rights = fileRights(m_path);
    if (now.exists && (!now.content || !rights)) {
        *detail = m_path + u" cannot be read"_s;
        return false;
    }
    if (!now.exists || state->written.contains(DiallerJournal::hashOf(*now.content))) {
        state->existed = false;
        return tidy();
    }
    state->existed = true;
    state->original = DiallerJournal::hashOf(*now.content);
    return writeFileSafely(m_copy, *now.content, *rights, detail);
}

bool KeptFile::write(const QByteArray &content, QString *detail) const
{
    return writeFileSafely(m_path, content, detail);
}

bool KeptFile::replace(QString *detail) const
{
    const Reading copy = read(m_copy);
    const std::optional<FileRights> rights = fileRights(m_copy);
    if (!copy.content || !rights) {
        *detail = m_copy + u" cannot be read"_s;
        return false;
    }
    const Reading now = read(m_path);
    const std::optional<FileRights> present = fileRights(m_path);
    const bool isBack = now.content == copy.content && present && isSame(*present, *rights);
    return (isBack || writeFileSafely(m_path, *copy.content, *rights, detail)) && tidy();
}

/// Empties the file's place. The target of a link goes, the link stays.
bool KeptFile::removeOrKeep(bool isOurs, QString *detail) const
{
    const QFileInfo info(m_path);
    if (!info.exists())
        return true;
    const bool isGone = isOurs || info.size() == 0 ? remove(info.canonicalFilePath())
                                                   : !keepFileBeside(m_path, u"changed"_s).isEmpty();
    if (!isGone)
        *detail = m_path + u" cannot be removed"_s;
    return isGone;
}

KeptFile::Result KeptFile::putBack(const DiallerJournal::File &state, bool isResumed, QString *detail) const
{
    const Reading now = read(m_path);
    const QByteArray hash = now.content ? DiallerJournal::hashOf(*now.content) : QByteArray();
    const bool isOurs = state.written.contains(hash);
    const bool isOriginal = state.existed ? hash == state.original : !now.exists;
    if (m_putBack == PutBack::IfOurs && !isOurs)
        return tidy() ? Result::Done : Result::Failed;
    if (state.existed && !hasCopy()) {
        *detail = m_copy + u" is missing"_s;
        return isResumed && isOriginal ? Result::Done : Result::Lost;
    }
    if (!isOriginal && (!isOurs || !state.existed) && !removeOrKeep(isOurs, detail))
        return Result::Failed;
    const bool isBack = state.existed ? replace(detail) : tidy();
    return isBack ? Result::Done : Result::Failed;
}

KeptFile::Result KeptFile::putBackUnknown(QString *detail) const
{
    if (m_putBack == PutBack::IfOurs)
        return tidy() ? Result::Done : Result::Failed;
    if (!hasCopy()) {
        *detail = m_copy + u" is missing"_s;
        return Result::Lost;
    }
    return replace(detail) ? Result::Done : Result::Failed;
}

} // namespace corva
