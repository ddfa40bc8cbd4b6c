// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <optional>

namespace corva
{

struct SystemFiles;

/// What the system knows about a link's network interface.
struct LinkFacts {
    QString interfaceName;
    bool isUp = false;       ///< the interface is there and runs
    QString localAddress;    ///< dotted quad; empty while it has none
    QString peerAddress;     ///< the default route's gateway
    QStringList nameServers; ///< those that the system uses now
    bool hasDefaultRoute = false;
    bool operator==(const LinkFacts &) const = default;
};

/// A default route of the kernel's table.
struct DefaultRoute {
    QString interfaceName;
    QString gateway; ///< dotted quad; empty when the interface itself is the way
    int metric = 0;
    bool operator==(const DefaultRoute &) const = default;
};

/// The default route that is taken: the one with the lowest metric. Source: "/proc/net/route".
std::optional<DefaultRoute> defaultRouteIn(const QByteArray &routeTable);
/// The servers of "nameserver" lines. Source: resolv.conf(5).
QStringList nameServersIn(const QByteArray &resolvConf);

/// Asks the system. An empty name knows no interface.
LinkFacts linkFacts(const QString &interfaceName, const QString &resolverFile);

/// Whether one of the files holds the process number of a pppd that lives: files outlive their writers.
bool hasLinkFile(const QStringList &files);
/// Whether one of the files holds no process number and is newer than `since`: a script's mark, made by
/// root, for a link that is up.
bool hasLinkMark(const QStringList &files, const QDateTime &since);

} // namespace corva
