// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/keptfile.h"

#include "connection/secretslines.h"
#include "shell/safefile.h"

#include <QDateTime>
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

Reading read(const QString &path)
{
    if (!QFileInfo::exists(path))
        return {};
    const QByteArray content = readAtMost(path, largestFile + 1);
    const bool isRead = !content.isNull() && content.size() <= largestFile;
    return {true, isRead ? std::optional(content) : std::nullopt};
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
    const bool isWhole = m_putBack != PutBack::Secrets;
    if (!now.exists || (isWhole && state->written.contains(DiallerJournal::hashOf(*now.content)))) {
        state->existed = false;
        return tidy();
    }
    state->existed = true;
    state->original = DiallerJournal::hashOf(*now.content);
    FileRights kept = *rights;
    if (m_putBack == PutBack::Secrets)
        kept.mode = S_IRUSR | S_IWUSR;
    return writeFileSafely(m_copy, *now.content, kept, detail);
}

bool KeptFile::write(const QByteArray &content, QString *detail) const
{
    return writeFileSafely(m_path, content, detail);
}

/// It may be anything, a folder too, and would be in the way for ever.
bool KeptFile::setUnreadableCopyAside(QString *detail) const
{
    const Reading copy = read(m_copy);
    if (!copy.exists || copy.content)
        return false;
    *detail = m_copy + u".unreadable-"_s + QDateTime::currentDateTime().toString(u"yyyyMMdd-hhmmss"_s);
    return ::rename(QFile::encodeName(m_copy).constData(), QFile::encodeName(*detail).constData()) == 0;
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

/// The file has stayed in its place, with its owner and mode. What wvdial cut off, or somebody shortened, is
/// kept beside.
KeptFile::Result KeptFile::takeLinesOut(const DiallerJournal::File &state, bool isResumed,
                                        QString *detail) const
{
    const Reading now = read(m_path);
    const Reading copy = read(m_copy);
    if (now.exists && !now.content) {
        *detail = m_path + u" cannot be read"_s;
        return Result::Failed;
    }
    if (!now.exists)
        return (copy.content ? replace(detail) : tidy()) ? Result::Done : Result::Failed;

    const bool isOriginal = state.existed && DiallerJournal::hashOf(*now.content) == state.original;
    const bool isLost = state.existed && !copy.content && !isOriginal;
    const bool isShort = copy.content && isCutOff(*now.content, *copy.content, state.written);
    // Without the copy, nobody knows what else the dial replaced: only its own lines go.
    const auto before = isLost ? std::optional(QByteArray()) : copy.content;
    const auto after = isOriginal ? now.content
                       : isShort  ? copy.content
                                  : withoutDialled(*now.content, before, state.written);
    FileRights rights = fileRights(m_path).value_or(FileRights());
    if (const auto saved = fileRights(m_copy); saved && after == copy.content)
        rights.modified = saved->modified;
    else
        rights.modified = {0, UTIME_NOW};
    if (isShort)
        keepFileBeside(m_path, u"changed"_s);
    const bool isSame = after == now.content;
    const bool isBack = isSame || (after ? writeFileSafely(m_path, *after, rights, detail)
                                         : remove(QFileInfo(m_path).canonicalFilePath()));
    if (!isBack || !tidy())
        return Result::Failed;
    if (isLost)
        *detail = m_copy + u" is missing"_s;
    return isLost && !(isResumed && isSame) ? Result::Lost : Result::Done;
}

KeptFile::Result KeptFile::putBack(const DiallerJournal::File &state, bool isResumed, QString *detail) const
{
    if (setUnreadableCopyAside(detail))
        return Result::SetAside;
    if (m_putBack == PutBack::Secrets)
        return takeLinesOut(state, isResumed, detail);
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

KeptFile::Result KeptFile::putBackUnknown(const QSet<QByteArray> &written, QString *detail) const
{
    if (setUnreadableCopyAside(detail))
        return Result::SetAside;
    if (m_putBack == PutBack::IfOurs)
        return tidy() ? Result::Done : Result::Failed;
    if (!hasCopy()) {
        *detail = m_copy + u" is missing"_s;
        return Result::Lost;
    }
    const Reading now = read(m_path);
    const bool isOurs = now.content && written.contains(DiallerJournal::hashOf(*now.content));
    if (!isOurs && now.content != read(m_copy).content)
        keepFileBeside(m_path, u"changed"_s); // others may have written there since
    return replace(detail) ? Result::Done : Result::Failed;
}

} // namespace corva
