// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/portwatcher.h"

#include <QFile>
#include <QFileInfo>
#include <sys/stat.h>

namespace corva
{

namespace
{

QString nearestFolder(const QString &path)
{
    QString folder = QFileInfo(path).absolutePath();
    while (!QFileInfo(folder).isDir() && folder != QLatin1StringView("/"))
        folder = QFileInfo(folder).absolutePath();
    return folder;
}

} // namespace

PortWatcher::PortWatcher(QObject *parent) : QObject(parent)
{
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &PortWatcher::slotLook);
}

void PortWatcher::watch(const QStringList &paths)
{
    m_nodes.clear();
    for (const QString &path : paths)
        m_nodes.insert(path, {});
    watchFolders();
    for (auto node = m_nodes.begin(); node != m_nodes.end(); ++node)
        *node = look(node.key());
}

void PortWatcher::slotLook()
{
    // First the folders: what changes after this is reported, what changed before is seen below.
    watchFolders();
    for (const QString &path : m_nodes.keys()) {
        if (!m_nodes.contains(path))
            continue; // a receiver asked for another list meanwhile
        const Node now = look(path);
        const Node before = std::exchange(m_nodes[path], now);
        if (now == before)
            continue;
        if (before.exists)
            Q_EMIT sigGone(path);
        if (now.exists)
            Q_EMIT sigAppeared(path);
    }
}

PortWatcher::Node PortWatcher::look(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat link = {};
    struct stat target = {};
    // A link that leads nowhere is no port.
    if (lstat(name.constData(), &link) != 0 || stat(name.constData(), &target) != 0)
        return {};
    return {true, link.st_ino, link.st_ctim.tv_sec * 1'000'000'000LL + link.st_ctim.tv_nsec, target.st_rdev};
}

void PortWatcher::watchFolders()
{
    QStringList wanted;
    for (auto node = m_nodes.cbegin(); node != m_nodes.cend(); ++node)
        wanted.append(nearestFolder(node.key()));
    wanted.removeDuplicates();
    for (const QString &folder : m_watcher.directories())
        if (!wanted.removeOne(folder))
            m_watcher.removePath(folder);
    if (!wanted.isEmpty())
        m_watcher.addPaths(wanted);
}

} // namespace corva
