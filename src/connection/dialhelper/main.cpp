// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/cleanchild.h"
#include "connection/dialhelper/callerrights.h"
#include "connection/dialhelper/dialhelper.h"

#include <QCoreApplication>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/signalfd.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

constexpr int noRights = 3;

/// Nothing that the caller's session says reaches what runs with an administrator's rights.
void cleanEnvironment()
{
    clearenv();
    setenv("PATH", "/usr/sbin:/usr/bin:/sbin:/bin", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    for (int fd = STDIN_FILENO; fd <= STDERR_FILENO; ++fd)
        if (fcntl(fd, F_GETFD) < 0)
            (void)!open("/dev/null", O_RDWR); // takes the lowest free number: this one
    syscall(SYS_close_range, STDERR_FILENO + 1, ~0U, 0);
    umask(077);
    if (chdir("/") != 0)
        std::exit(noRights);
}

/// Neither what the caller limits nor what he ignores or blocks says anything here, nor does his terminal.
/// What cannot be raised stays as it is.
void cleanProcess()
{
    constexpr rlimit unlimited = {RLIM_INFINITY, RLIM_INFINITY};
    constexpr rlimit files = {1024, 4096};
    constexpr rlimit none = {0, 0}; // a core would hold passwords
    setrlimit(RLIMIT_FSIZE, &unlimited);
    setrlimit(RLIMIT_CPU, &unlimited);
    setrlimit(RLIMIT_AS, &unlimited);
    setrlimit(RLIMIT_DATA, &unlimited);
    setrlimit(RLIMIT_NOFILE, &files);
    setrlimit(RLIMIT_CORE, &none);
    setsid();
    corva::makeCleanChild();
    for (const int signal : {SIGPIPE, SIGTSTP, SIGTTIN, SIGTTOU})
        std::signal(signal, SIG_IGN);
}

/// Readable when the program is asked to end.
int stopDescriptor()
{
    sigset_t ends;
    sigemptyset(&ends);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGQUIT})
        sigaddset(&ends, signal);
    sigprocmask(SIG_BLOCK, &ends, nullptr);
    return signalfd(-1, &ends, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

int main(int argc, char **argv)
{
    const auto caller = corva::callerOf(getenv("PKEXEC_UID"));
    cleanProcess();
    cleanEnvironment();
    if (argc != 1 || !caller || geteuid() != 0) {
        std::fputs("corva-dialhelper is started by Corva, with an administrator's rights.\n", stderr);
        return noRights;
    }
    const int stop = stopDescriptor();
    const QCoreApplication app(argc, argv);
    corva::DialHelper helper(*caller, STDIN_FILENO, STDOUT_FILENO, stop);
    helper.start();
    return QCoreApplication::exec();
}
