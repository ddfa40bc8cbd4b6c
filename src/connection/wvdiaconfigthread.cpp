// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/wvdiaconfigthread.h"

#include "shell/logging.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// Closes a descriptor at the end of a scope, or earlier.
class Descriptor
{
public:
    explicit Descriptor(int fd = -1) : m_fd(fd) {}
    ~Descriptor() { close(); }
    Q_DISABLE_COPY_MOVE(Descriptor)
    int get() const { return m_fd; }
    void take(int fd)
    {
        close();
        m_fd = fd;
    }
    void close()
    {
        if (m_fd >= 0)
            ::close(m_fd);
        m_fd = -1;
    }

private:
    int m_fd;
};

/// Two connected sockets: unlike a pipe, their far end may be gone without a signal to the writer.
bool makePair(Descriptor &here, Descriptor &there)
{
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        return false;
    here.take(ends[0]);
    there.take(ends[1]);
    return true;
}

bool makePipe(Descriptor &readEnd, Descriptor &writeEnd)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return false;
    readEnd.take(ends[0]);
    writeEnd.take(ends[1]);
    return true;
}

constexpr int goAheadInChild = STDERR_FILENO + 1;

/// Nothing runs before the line on the descriptor of the go-ahead; at its end, nothing at all: the program
/// died before it had noted this child. The helper's mask would make the resolver file unreadable for others.
QByteArray guarded(const QByteArray &command)
{
    const QByteArray descriptor = QByteArray::number(goAheadInChild);
    return "read -r go <&" + descriptor + " || exit 1; exec " + descriptor + "<&-; umask 022; " + command;
}

/// A shell in a session of its own; -1 when there is none. No plain fork: that marks the whole program's
/// memory for copying, and its window stands still meanwhile.
pid_t startShell(const QByteArray &command, int goAhead, int output)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output, STDERR_FILENO);
    posix_spawn_file_actions_adddup2(&actions, goAhead, goAheadInChild);
    // The card's ports and locks are not the dialler's.
    posix_spawn_file_actions_addclosefrom_np(&actions, goAheadInChild + 1);

    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes,
                             POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    sigset_t signalSet;
    sigemptyset(&signalSet);
    posix_spawnattr_setsigmask(&attributes, &signalSet);
    sigfillset(&signalSet);
    posix_spawnattr_setsigdefault(&attributes, &signalSet);

    // A person's own ~/.wvdialrc must not change what the system's file says. And wvdial's small stacks do
    // not hold the registers of newer processors, which the loader keeps there when it binds a function late.
    std::array environment = {const_cast<char *>("PATH=/usr/sbin:/usr/bin:/sbin:/bin"),
                              const_cast<char *>("HOME=/nonexistent"), const_cast<char *>("LC_ALL=C"),
                              const_cast<char *>("LD_BIND_NOW=1"), static_cast<char *>(nullptr)};
    QByteArray text = guarded(command);
    std::array arguments = {const_cast<char *>("sh"), const_cast<char *>("-c"), text.data(),
                            static_cast<char *>(nullptr)};
    pid_t pid = -1;
    const bool isStarted =
        posix_spawn(&pid, "/bin/sh", &actions, &attributes, arguments.data(), environment.data()) == 0;
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return isStarted ? pid : -1;
}

} // namespace

WvdiaConfigThread::WvdiaConfigThread(QByteArray command, std::function<bool(pid_t)> onFork)
    : m_command(std::move(command)), m_onFork(std::move(onFork)), m_stopEvent(eventfd(0, EFD_CLOEXEC))
{
}

WvdiaConfigThread::~WvdiaConfigThread()
{
    eventfd_write(m_stopEvent, 1);
    wait();
    ::close(m_stopEvent);
}

void WvdiaConfigThread::run()
{
    Descriptor output;
    Descriptor childOutput;
    Descriptor childGoAhead;
    Descriptor goAhead;
    const bool hasPipes = makePipe(output, childOutput) && makePair(goAhead, childGoAhead);
    const pid_t pid = hasPipes ? startShell(m_command, childGoAhead.get(), childOutput.get()) : -1;
    if (pid < 0) {
        qCWarning(lcConnection).noquote() << logTime() + u"Error : the fork call didn't worked\n"_s;
        Q_EMIT sigStarted(-1);
        return;
    }
    qCDebug(lcConnection).noquote() << logTime() + u"child pid is: %1\n"_s.arg(pid);
    childOutput.close();
    childGoAhead.close();
    if (!m_onFork(pid)) {
        goAhead.close();
        waitpid(pid, nullptr, 0);
        Q_EMIT sigStarted(-1);
        return;
    }
    send(goAhead.get(), "\n", 1, MSG_NOSIGNAL); // a child that died meanwhile is seen by its output's end
    Q_EMIT sigStarted(pid);
    passOutputOn(output.get());
}

void WvdiaConfigThread::passOutputOn(int output)
{
    std::array<char, 4096> chunk;
    std::array<pollfd, 2> waited = {{{output, POLLIN, 0}, {m_stopEvent, POLLIN, 0}}};
    while (true) {
        if (poll(waited.data(), waited.size(), -1) < 0 && errno != EINTR)
            break;
        if (waited[1].revents != 0)
            return;
        if (waited[0].revents == 0)
            continue;
        const ssize_t count = read(output, chunk.data(), chunk.size());
        if (count > 0)
            Q_EMIT sigOutput(QByteArray(chunk.data(), count));
        else if (count == 0 || errno != EINTR)
            break;
    }
    Q_EMIT sigOutputEnded();
}

} // namespace corva
