// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/filelock.h"

#include "connection/processsession.h"
#include "shell/safefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace corva
{
namespace
{

int openLock(const QString &path, int flags)
{
    return ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
}

} // namespace

bool FileLock::acquire()
{
    if (isHeld())
        return true;
    QDir().mkpath(QFileInfo(m_path).path());
    const int descriptor = openLock(m_path, O_RDWR | O_CREAT);
    if (descriptor < 0)
        return false;
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        ::close(descriptor);
        return false;
    }
    m_descriptor = descriptor;
    const FileRights forAll{S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH, ::geteuid(), ::getegid(), {0, UTIME_NOW}};
    if (const auto self = processStat(::getpid()))
        writeFileSafely(holderFile(), processNote(*self), forAll);
    return true;
}

void FileLock::release()
{
    if (!isHeld())
        return;
    QFile::remove(holderFile());
    ::close(m_descriptor);
    m_descriptor = -1;
}

bool FileLock::isHeldElsewhere() const
{
    if (isHeld())
        return false;
    const int descriptor = openLock(m_path, O_RDONLY);
    if (descriptor < 0)
        return errno == EACCES && isNotedProcess(holderFile());
    const bool isHeld = ::flock(descriptor, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    ::close(descriptor);
    return isHeld;
}

} // namespace corva
