// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/types.h>

/// The file of `already_running`.
inline constexpr auto instanceLockPath = "/var/run/corvaDaemon.pid";

/// Takes the lock of "/var/run/corvaDaemon.pid" for the life of the process and writes the process id there.
/// 0: this process holds it now; 1: another one does. Every other outcome is logged with syslog, and ends the
/// process with status 1.
///
/// The lock is one of the process: closing any other descriptor of the same file drops it, so nothing else
/// may open the file.
int already_running();

namespace corva
{

/// The same for a file of another name.
int takeInstanceLock(const char *path);

/// The process that holds the lock of this file; 0 when none does, or when that cannot be told. Not for the
/// holder itself.
pid_t instanceLockHolder(const char *path);

} // namespace corva
