// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/portclaim.h"

#include <cerrno>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace corva
{

namespace
{

/// The program's side of a pseudo-terminal. Source: the kernel's list of devices, character majors 136 to
/// 143.
bool isPseudoTerminal(int fd)
{
    struct stat status = {};
    return fstat(fd, &status) == 0 && major(status.st_rdev) >= 136 && major(status.st_rdev) <= 143;
}

} // namespace

int claimPort(int fd)
{
    if (flock(fd, LOCK_EX | LOCK_NB) != 0)
        return errno;
    // The terminal lives on while the far side is open, and with it the mode.
    if (!isPseudoTerminal(fd) && ioctl(fd, TIOCEXCL) != 0)
        return errno;
    return 0;
}

void releasePort(int fd)
{
    ioctl(fd, TIOCNXCL);
    flock(fd, LOCK_UN);
}

} // namespace corva
