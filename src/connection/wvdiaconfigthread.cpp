// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/wvdiaconfigthread.h"

#include "connection/cleanchild.h"
#include "shell/logging.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/syscall.h>
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

/// The child's part behind the fork. The other threads of the program do not exist here, whatever locks they
/// held: plain system calls alone.
[[noreturn]] void runShell(const char *command, int goAhead, int output)
{
    setsid();
    char go = 0;
    if (read(goAhead, &go, 1) != 1)
        _exit(EXIT_FAILURE); // the program died before it had noted this child

    makeCleanChild();
    dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    dup2(output, STDERR_FILENO);
    syscall(SYS_close_range, STDERR_FILENO + 1, ~0U, 0); // the card's ports and locks are not the dialler's

    // A person's own ~/.wvdialrc must not change what the system's file says. And wvdial's small stacks do
    // not hold the registers of newer processors, which the loader keeps there when it binds a function late.
    std::array environment = {const_cast<char *>("PATH=/usr/sbin:/usr/bin:/sbin:/bin"),
                              const_cast<char *>("HOME=/nonexistent"), const_cast<char *>("LC_ALL=C"),
                              const_cast<char *>("LD_BIND_NOW=1"), static_cast<char *>(nullptr)};
    std::array arguments = {const_cast<char *>("sh"), const_cast<char *>("-c"), const_cast<char *>(command),
                            static_cast<char *>(nullptr)};
    execve("/bin/sh", arguments.data(), environment.data());
    _exit(EXIT_FAILURE);
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
    const int goAheadEnd = goAhead.get();
    const pid_t pid = hasPipes ? fork() : -1;
    if (pid == 0) {
        close(goAheadEnd); // or the child would wait for itself
        runShell(m_command.constData(), childGoAhead.get(), childOutput.get());
    }
    if (pid < 0) {
        qCWarning(lcConnection).noquote() << logTime() + u"Error : the fork call didn't worked\n"_s;
        Q_EMIT sigStarted(-1);
        return;
    }
    qCDebug(lcConnection).noquote() << logTime() + u"child pid is: %1\n"_s.arg(pid);
    childOutput.close();
    if (!m_onFork(pid)) {
        goAhead.close();
        waitpid(pid, nullptr, 0);
        Q_EMIT sigStarted(-1);
        return;
    }
    send(goAhead.get(), "", 1, MSG_NOSIGNAL); // a child that died meanwhile is seen by its output's end
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
