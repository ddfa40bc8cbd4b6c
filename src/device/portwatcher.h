// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileSystemWatcher>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <sys/types.h>

namespace corva
{

/// Watches named ports that udev may know nothing of, by the folders they lie in. A folder that is not there
/// yet is waited for in the nearest one above it.
class PortWatcher : public QObject
{
    Q_OBJECT

public:
    explicit PortWatcher(QObject *parent = nullptr);

    /// Replaces the list of paths. What is there now is taken as known.
    void watch(const QStringList &paths);

Q_SIGNALS:
    void sigAppeared(const QString &path);
    void sigGone(const QString &path);

private Q_SLOTS:
    void slotLook();

private:
    /// What lies at a path. A link that is put back is another one, even when it looks the same.
    struct Node {
        bool exists = false;
        ino_t link = 0;
        qint64 linkTimeNs = 0;
        dev_t device = 0; ///< where the link leads
        bool operator==(const Node &) const = default;
    };

    static Node look(const QString &path);
    void watchFolders();

    QFileSystemWatcher m_watcher;
    QMap<QString, Node> m_nodes;
};

} // namespace corva
