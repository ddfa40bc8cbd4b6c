// SPDX-License-Identifier: GPL-3.0-or-later
#include "ownsystem.h"

#include <QDirIterator>
#include <QFile>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

void write(const char *path, const QByteArray &text)
{
    QFile file(QString::fromLatin1(path));
    if (file.open(QIODevice::WriteOnly))
        file.write(text);
}

/// Root in a user namespace, for whoever is not root.
bool becomeRoot()
{
    const QByteArray user = QByteArray::number(geteuid());
    const QByteArray group = QByteArray::number(getegid());
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    write("/proc/self/setgroups", "deny");
    write("/proc/self/uid_map", "0 " + user + " 1");
    write("/proc/self/gid_map", "0 " + group + " 1");
    return true;
}

/// A copy, since others may change the system's own meanwhile; without what a dial of theirs left for now.
void copyEtc()
{
    (void)!std::system(
        "cp -a /etc /run/etc 2>/dev/null; cd /run/etc && "
        "rm -f tmpwvdial.conf tmpresolv.conf ppp/tmpoptions ppp/peers/tmpwvdial ppp/corva-saved.json");
}

bool mountAll()
{
    if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("own", "/run", "tmpfs", 0, nullptr) != 0 || mkdir("/run/lock", 0777) != 0)
        return false;
    copyEtc();
    return mount("/run/etc", "/etc", nullptr, MS_BIND, nullptr) == 0 &&
           mount("own", "/tmp", "tmpfs", 0, nullptr) == 0;
}

} // namespace

QString enterOwnSystem()
{
    const bool isAlone = geteuid() == 0 ? unshare(CLONE_NEWNS) == 0 : becomeRoot();
    if (isAlone && mountAll())
        return {};
    return u"this system gives no test a mount namespace of its own: %1"_s.arg(
        QString::fromLocal8Bit(std::strerror(errno)));
}

QString etcAsText()
{
    QStringList lines;
    for (const QString &place : {u"/etc"_s, u"/etc/ppp"_s, u"/etc/ppp/peers"_s}) {
        QDirIterator files(place, QDir::Files | QDir::System | QDir::Hidden);
        while (files.hasNext()) {
            const QFileInfo info(files.next());
            QFile file(info.filePath());
            const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
            lines += u"%1 %2:%3 %4 %5 %6"_s.arg(info.filePath())
                         .arg(info.ownerId())
                         .arg(info.groupId())
                         .arg(int(info.permissions()), 0, 16)
                         .arg(info.symLinkTarget(), QString::fromLatin1(content.toBase64()));
        }
    }
    lines.sort();
    return lines.join(u'\n');
}
