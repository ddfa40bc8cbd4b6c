// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/safefile.h"

#include "shell/logging.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace corva
{
namespace
{

/// Why a step failed: the step's sentence and the system's word for the error.
struct Failure {
    const char *sentence; ///< with %1 for the file
    QString file;
    int code;

    QString text() const
    {
        return QCoreApplication::translate("SafeFile", sentence).arg(QDir::toNativeSeparators(file)) +
               u": "_s + QString::fromLocal8Bit(std::strerror(code));
    }
};

using Step = std::optional<Failure>;

/// The descriptor of the new file and its name; removes the file again unless it became the real one.
struct NewFile {
    QString path;
    int descriptor = -1;

    NewFile() = default;
    Q_DISABLE_COPY_MOVE(NewFile)
    ~NewFile()
    {
        if (descriptor >= 0)
            ::close(descriptor);
        if (!path.isEmpty())
            ::unlink(QFile::encodeName(path).constData());
    }
};

/// Follows links to the file that is really meant, which need not exist. Empty for a ring of links.
QString followLinks(const QString &path)
{
    constexpr int mostLinks = 40;
    QString current = QFileInfo(path).absoluteFilePath();
    for (int i = 0; i < mostLinks; ++i) {
        const QFileInfo info(current);
        if (!info.isSymLink())
            return current;
        current = info.symLinkTarget();
    }
    return {};
}

Step makeFolders(const QString &folder)
{
    if (QFileInfo::exists(folder))
        return {};
    const QString parent = QFileInfo(folder).absolutePath();
    if (parent != folder) {
        if (Step failure = makeFolders(parent))
            return failure;
    }
    if (::mkdir(QFile::encodeName(folder).constData(), S_IRWXU) != 0 && errno != EEXIST)
        return Failure{QT_TRANSLATE_NOOP("SafeFile", "The folder %1 cannot be made"), folder, errno};
    return {};
}

Step checkTarget(const QString &path, struct stat *status, bool *exists)
{
    const QByteArray name = QFile::encodeName(path);
    *exists = ::stat(name.constData(), status) == 0;
    if (!*exists)
        return {};
    if (!S_ISREG(status->st_mode))
        return Failure{QT_TRANSLATE_NOOP("SafeFile", "%1 is not a plain file"), path, EINVAL};
    if (::access(name.constData(), W_OK) != 0)
        return Failure{QT_TRANSLATE_NOOP("SafeFile", "%1 may not be written"), path, errno};
    return {};
}

/// How a file that is not finished yet is called: hidden, with the number of the process that writes it.
QString newFilePrefix(const QFileInfo &target)
{
    return u"."_s + target.fileName() + u".new-"_s;
}

/// Removes what writers left that no longer live. A number taken over by another process only delays this.
void removeLeftovers(const QFileInfo &target)
{
    const QString prefix = newFilePrefix(target);
    const QDir folder = target.dir();
    const auto filter = QDir::Files | QDir::Hidden | QDir::System;
    for (const QString &name : folder.entryList(filter)) {
        if (!name.startsWith(prefix))
            continue;
        bool isNumber = false;
        const int pid = name.sliced(prefix.size()).section(u'-', 0, 0).toInt(&isNumber);
        if (isNumber && pid > 0 && ::kill(pid, 0) != 0 && errno == ESRCH)
            QFile::remove(folder.filePath(name));
    }
}

Step createBeside(const QFileInfo &target, NewFile &file)
{
    static std::atomic<unsigned> counter = 0;
    constexpr int mostTries = 1000;
    const QString start = target.absolutePath() + u'/' + newFilePrefix(target) + QString::number(::getpid());
    for (int i = 0; i < mostTries; ++i) {
        const QString path = start + u'-' + QString::number(counter++);
        file.descriptor = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                                 S_IRUSR | S_IWUSR);
        if (file.descriptor >= 0) {
            file.path = path;
            return {};
        }
        if (errno != EEXIST)
            break;
    }
    return Failure{QT_TRANSLATE_NOOP("SafeFile", "No file can be made beside %1"), target.filePath(), errno};
}

bool writeAll(int descriptor, const QByteArray &content)
{
    qsizetype done = 0;
    while (done < content.size()) {
        const ssize_t written = ::write(descriptor, content.constData() + done, content.size() - done);
        if (written < 0 && errno != EINTR)
            return false;
        if (written > 0)
            done += written;
    }
    return true;
}

Step fill(const NewFile &file, const QByteArray &content, const QString &target)
{
    if (!writeAll(file.descriptor, content))
        return Failure{QT_TRANSLATE_NOOP("SafeFile", "%1 cannot be written"), target, errno};
    return {};
}

Step flush(NewFile &file, const QString &target)
{
    const bool flushed = ::fsync(file.descriptor) == 0;
    const int code = errno;
    const bool closed = ::close(file.descriptor) == 0;
    file.descriptor = -1;
    if (!flushed || !closed)
        return Failure{QT_TRANSLATE_NOOP("SafeFile", "%1 cannot be written"), target, flushed ? errno : code};
    return {};
}

Step renameOver(NewFile &file, const QString &target)
{
    if (::rename(QFile::encodeName(file.path).constData(), QFile::encodeName(target).constData()) != 0)
        return Failure{QT_TRANSLATE_NOOP("SafeFile", "%1 cannot be replaced"), target, errno};
    file.path.clear();
    return {};
}

/// Not every file system can do it, and the new file is in its place already: a failure is only noted.
void flushFolder(const QString &folder)
{
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0 || ::fsync(descriptor) != 0)
        qCDebug(lcShell).noquote() << logTime() + u"cannot flush the folder"_s << folder;
    if (descriptor >= 0)
        ::close(descriptor);
}

Step setRights(int descriptor, const FileRights &rights, const QString &target)
{
    const timespec times[] = {{0, UTIME_OMIT}, rights.modified};
    // The owner first: a change of it takes the set-user-id bit away.
    if (::fchown(descriptor, rights.owner, rights.group) != 0 || ::fchmod(descriptor, rights.mode) != 0 ||
        ::futimens(descriptor, times) != 0)
        return Failure{QT_TRANSLATE_NOOP("SafeFile", "The rights of %1 cannot be set"), target, errno};
    return {};
}

Step replace(const QString &path, const QByteArray &content, const FileRights *rights = nullptr)
{
    const QString targetPath = followLinks(path);
    if (targetPath.isEmpty())
        return Failure{QT_TRANSLATE_NOOP("SafeFile", "%1 is a ring of links"), path, ELOOP};
    const QFileInfo target(targetPath);
    struct stat status = {};
    bool exists = false;
    NewFile file;

    Step failure = makeFolders(target.absolutePath());
    if (!failure)
        failure = checkTarget(targetPath, &status, &exists);
    if (failure)
        return failure;
    removeLeftovers(target);
    failure = createBeside(target, file);
    if (!failure && !rights && exists && status.st_uid != ::geteuid() &&
        ::fchown(file.descriptor, status.st_uid, status.st_gid) != 0)
        qCDebug(lcShell).noquote() << logTime() + u"the owner changes:"_s << targetPath;
    if (!failure)
        failure = fill(file, content, targetPath);
    if (!failure && rights)
        failure = setRights(file.descriptor, *rights, targetPath);
    if (!failure)
        failure = flush(file, targetPath);
    if (!failure)
        failure = renameOver(file, targetPath);
    if (!failure)
        flushFolder(target.absolutePath());
    return failure;
}

bool isDone(const Step &failure, QString *error)
{
    if (failure && error)
        *error = failure->text();
    return !failure;
}

} // namespace

bool writeFileSafely(const QString &path, const QByteArray &content, QString *error)
{
    return isDone(replace(path, content), error);
}

bool writeFileSafely(const QString &path, const QByteArray &content, const FileRights &rights, QString *error)
{
    return isDone(replace(path, content, &rights), error);
}

QByteArray readAtMost(const QString &path, qint64 most)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    // No more is set aside than is there; a file of the kernel says 0 for its size.
    QByteArray bytes = file.read(file.size() > 0 ? std::min(file.size(), most) : most);
    if (file.error() != QFile::NoError)
        return {};
    return bytes.isNull() ? QByteArray("") : bytes;
}

std::optional<FileRights> fileRights(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return FileRights{status.st_mode & 07777, status.st_uid, status.st_gid, status.st_mtim};
}

void removeUnfinishedFiles(const QString &path)
{
    const QString target = followLinks(path);
    if (!target.isEmpty())
        removeLeftovers(QFileInfo(target));
}

QString keepBrokenFile(const QString &path)
{
    return keepFileBeside(path, u"broken"_s);
}

QString keepFileBeside(const QString &path, const QString &word)
{
    constexpr int mostTries = 1000;
    const QString target = followLinks(path);
    if (target.isEmpty() || QFileInfo(target).size() == 0 || !QFileInfo(target).isFile())
        return {};
    const QString kept =
        target + u'.' + word + u'-' + QDateTime::currentDateTime().toString(u"yyyyMMdd-hhmmss"_s);
    for (int i = 1; i <= mostTries; ++i) {
        const QString name = i == 1 ? kept : kept + u'-' + QString::number(i);
        if (QFileInfo::exists(name))
            continue;
        return QFile::rename(target, name) ? name : QString();
    }
    return {};
}

} // namespace corva
