// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/wait.h>
#include <unistd.h>

/// Runs `work` in a child process, whose exit status is its result. Returns the wait status.
template <typename Work> int inChild(Work work)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(work());
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
}

inline bool endedBy(int status, int signal)
{
    return WIFSIGNALED(status) && WTERMSIG(status) == signal;
}
