// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/dialhelper/callerrights.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <cstdlib>
#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
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

bool isTerminal(const char *path)
{
    const int fd = open(path, O_RDWR | O_NOCTTY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0)
        return false;
    struct stat status = {};
    const bool isTty = fstat(fd, &status) == 0 && S_ISCHR(status.st_mode) && isatty(fd);
    close(fd);
    return isTty;
}

/// Opens the port with the caller's rights and no others: lists of rights and all that the kernel knows about
/// them count, which no look at mode and owner does.
bool mayOpen(const QByteArray &path, const Identity &identity)
{
    const pid_t pid = fork();
    if (pid == 0) {
        const bool isCaller = setgroups(identity.groups.size(), identity.groups.data()) == 0 &&
                              setgid(identity.group) == 0 && setuid(identity.user) == 0;
        _exit(isCaller && isTerminal(path.constData()) ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = 0;
    return pid > 0 && waitpid(pid, &status, 0) == pid && WIFEXITED(status) &&
           WEXITSTATUS(status) == EXIT_SUCCESS;
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

QString portOfCaller(const QString &port, uid_t caller)
{
    if (port.contains(QChar::Null))
        return {};
    const QString path = QFileInfo(port).canonicalFilePath();
    if (!isPortName(path))
        return {};
    const QByteArray file = QFile::encodeName(path);
    if (caller == 0)
        return isTerminal(file.constData()) ? path : QString();
    const auto identity = identityOf(caller);
    return identity && mayOpen(file, *identity) ? path : QString();
}

} // namespace corva
