// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/instance.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <syslog.h>
#include <unistd.h>

namespace
{

/// Into the system's log, and for whoever started the program in a terminal.
[[noreturn]] void fail(const char *format, const char *path)
{
    const char *reason = std::strerror(errno);
    char line[512];
    std::snprintf(line, sizeof line, format, path, reason);
    syslog(LOG_ERR, "%s", line);
    std::fprintf(stderr, "corva: %s\n", line);
    std::exit(1);
}

} // namespace

int corva::takeInstanceLock(const char *path)
{
    // Not O_TRUNC: a second start must not empty the first one's number.
    const int descriptor = ::open(path, O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH);
    if (descriptor < 0)
        fail("can't open %s: %s", path);

    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    if (::fcntl(descriptor, F_SETLK, &lock) != 0) {
        if (errno != EACCES && errno != EAGAIN)
            fail("can't lock %s: %s", path);
        ::close(descriptor);
        return 1;
    }

    char number[32];
    const int length = std::snprintf(number, sizeof number, "%ld", long(::getpid()));
    if (::ftruncate(descriptor, 0) != 0 || ::write(descriptor, number, length) != length)
        fail("can't write %s: %s", path);
    return 0; // the descriptor stays open, and with it the lock
}

pid_t corva::instanceLockHolder(const char *path)
{
    const int descriptor = ::open(path, O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return 0;
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    const bool isHeld = ::fcntl(descriptor, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
    ::close(descriptor);
    return isHeld ? lock.l_pid : 0;
}
