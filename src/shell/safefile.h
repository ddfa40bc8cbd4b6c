// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <ctime>
#include <optional>
#include <sys/types.h>

namespace corva
{

/// Replaces `path` by `content` so that a reader, or a crash at any moment, meets the old file or the new
/// one, never a part: written beside with mode 0600, flushed to disk, renamed over, and the folder flushed.
/// Missing folders are made with 0700. A link is followed, so that the file it names is replaced and the link
/// stays. The owner of the old file stays its owner where the rights allow it. What is no plain file, or is
/// not writable by this user, is refused. Leftovers of writers that died before the rename are removed.
/// Returns false with a sentence in `error` when any step up to the rename fails; the old file is then
/// untouched.
bool writeFileSafely(const QString &path, const QByteArray &content, QString *error = nullptr);

/// The first `most` bytes of a plain file at most; null when there is none that can be read, and not null for
/// an empty one. Never waits for a pipe. Ask for one byte more than is allowed to tell a file that is too
/// large.
QByteArray readAtMost(const QString &path, qint64 most);

/// What a file has besides its content.
struct FileRights {
    mode_t mode = 0600; ///< the twelve lower bits
    uid_t owner = 0;
    gid_t group = 0;
    timespec modified = {};
};

/// Of the file that `path` names, links followed. None when there is no such file.
std::optional<FileRights> fileRights(const QString &path);

/// The same as above for a file that is to have `rights`: they are set before the new file takes its place,
/// and what cannot be set is a failure.
bool writeFileSafely(const QString &path, const QByteArray &content, const FileRights &rights,
                     QString *error = nullptr);

/// Removes what a writer of `path` left that died before the new file took its place.
void removeUnfinishedFiles(const QString &path);

/// Renames a file to "<name>.<word>-yyyyMMdd-hhmmss" beside itself, with a number behind when that name is
/// taken, so that the first write does not destroy it: "broken" for one that cannot be read. A link is
/// followed as above. Returns the new path; empty when there was nothing to keep (no file, or an empty one)
/// or the renaming failed.
QString keepFileBeside(const QString &path, const QString &word);
QString keepBrokenFile(const QString &path);

} // namespace corva
