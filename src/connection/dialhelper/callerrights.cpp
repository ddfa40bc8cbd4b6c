// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/dialhelper/callerrights.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// A serial port, a modem's port, a Bluetooth one, or the pseudo-terminal of an emulated card. A console
/// ("tty1") is none.
bool isPortName(const QString &path)
{
    static const QRegularExpression form(
        u"\\A/dev/(tty[A-Za-z]+[0-9]{1,4}|rfcomm[0-9]{1,4}|pts/[0-9]{1,7})\\z"_s);
    return form.match(path).hasMatch();
}

struct Identity {
    uid_t user = 0;
    gid_t group = 0;
    std::vector<gid_t> groups;
};

std::optional<Identity> identityOf(uid_t user)
{
    const passwd *entry = getpwuid(user);
    if (!entry)
        return std::nullopt;
    Identity identity{user, entry->pw_gid, {}};
    int count = 0;
    getgrouplist(entry->pw_name, entry->pw_gid, nullptr, &count);
    identity.groups.resize(std::size_t(std::max(count, 0)));
    if (getgrouplist(entry->pw_name, entry->pw_gid, identity.groups.data(), &count) < 0)
        return std::nullopt;
    return identity;
}

/// The open port; -1 when it is no terminal.
int openTerminal(const char *path)
{
    const int fd = open(path, O_RDWR | O_NOCTTY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
    struct stat status = {};
    if (fd >= 0 && fstat(fd, &status) == 0 && S_ISCHR(status.st_mode) && isatty(fd))
        return fd;
    if (fd >= 0)
        close(fd);
    return -1;
}

/// A message of one byte with room for a descriptor beside it. Source: unix(7), SCM_RIGHTS.
struct Parcel {
    char byte = 0;
    iovec content = {&byte, 1};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> room = {};
    msghdr message = {};

    Parcel()
    {
        message.msg_iov = &content;
        message.msg_iovlen = 1;
        message.msg_control = room.data();
        message.msg_controllen = room.size();
    }
    Q_DISABLE_COPY_MOVE(Parcel)
};

bool sendDescriptor(int socket, int fd)
{
    Parcel parcel;
    cmsghdr *header = CMSG_FIRSTHDR(&parcel.message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof fd);
    std::memcpy(CMSG_DATA(header), &fd, sizeof fd);
    return sendmsg(socket, &parcel.message, MSG_NOSIGNAL) == 1;
}

/// -1 when the sender is gone.
int receiveDescriptor(int socket)
{
    Parcel parcel;
    ssize_t count = 0;
    do
        count = recvmsg(socket, &parcel.message, MSG_CMSG_CLOEXEC);
    while (count < 0 && errno == EINTR);
    const cmsghdr *header = count == 1 ? CMSG_FIRSTHDR(&parcel.message) : nullptr;
    int fd = -1;
    if (header && header->cmsg_level == SOL_SOCKET && header->cmsg_type == SCM_RIGHTS &&
        header->cmsg_len == CMSG_LEN(sizeof fd))
        std::memcpy(&fd, CMSG_DATA(header), sizeof fd);
    return fd;
}

/// Opens the port with the caller's rights and no others: lists of rights and all that the kernel knows about
/// them count, which no look at mode and owner does. -1 when he may not.
int openAs(const QByteArray &path, const Identity &identity)
{
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        return -1;
    const pid_t pid = fork();
    if (pid == 0) {
        close(ends[0]);
        const bool isCaller = setgroups(identity.groups.size(), identity.groups.data()) == 0 &&
                              setgid(identity.group) == 0 && setuid(identity.user) == 0;
        const int port = isCaller ? openTerminal(path.constData()) : -1;
        _exit(port >= 0 && sendDescriptor(ends[1], port) ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    close(ends[1]);
    const int port = pid > 0 ? receiveDescriptor(ends[0]) : -1;
    close(ends[0]);
    while (pid > 0 && waitpid(pid, nullptr, 0) < 0 && errno == EINTR) {
    }
    return port;
}

int openPort(const QByteArray &path, uid_t caller)
{
    if (caller == 0)
        return openTerminal(path.constData());
    const auto identity = identityOf(caller);
    return identity ? openAs(path, *identity) : -1;
}

} // namespace

std::optional<uid_t> callerOf(const char *pkexecUid)
{
    if (!pkexecUid)
        return getuid();
    bool isNumber = false;
    const uint id = QByteArray(pkexecUid).toUInt(&isNumber);
    return isNumber ? std::optional<uid_t>(id) : std::nullopt;
}

bool HeldPort::take(const QString &port, uid_t caller)
{
    release();
    const QString path = port.contains(QChar::Null) ? QString() : QFileInfo(port).canonicalFilePath();
    if (isPortName(path))
        m_descriptor = openPort(QFile::encodeName(path), caller);
    if (m_descriptor >= 0)
        m_path = path;
    return m_descriptor >= 0;
}

void HeldPort::release()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
    m_descriptor = -1;
    m_path.clear();
}

bool HeldPort::isSame() const
{
    struct stat held = {};
    struct stat now = {};
    return m_descriptor >= 0 && fstat(m_descriptor, &held) == 0 &&
           lstat(QFile::encodeName(m_path).constData(), &now) == 0 && S_ISCHR(now.st_mode) &&
           now.st_rdev == held.st_rdev;
}

} // namespace corva
