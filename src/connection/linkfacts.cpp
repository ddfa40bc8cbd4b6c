// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/linkfacts.h"

#include "connection/processsession.h"
#include "shell/safefile.h"

#include <QFileInfo>
#include <QNetworkInterface>
#include <algorithm>
#include <arpa/inet.h>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr qint64 longestFile = 65536;

/// The kernel prints addresses as one hexadecimal number in the machine's byte order.
QString dottedQuad(const QByteArray &hex)
{
    const in_addr address{hex.toUInt(nullptr, 16)};
    char text[INET_ADDRSTRLEN] = {};
    inet_ntop(AF_INET, &address, text, sizeof text);
    return address.s_addr == 0 ? QString() : QString::fromLatin1(text);
}

/// std::nullopt for a file that holds none, or that is not there.
std::optional<int> processNumberIn(const QString &linkFile)
{
    bool isNumber = false;
    const int pid = readAtMost(linkFile, longestFile).simplified().split(' ').at(0).toInt(&isNumber);
    return isNumber ? std::optional(pid) : std::nullopt;
}

bool isAlive(const QString &linkFile)
{
    const auto pid = processNumberIn(linkFile);
    const auto process = pid ? processStat(*pid) : std::nullopt;
    return process && process->name == "pppd" && !process->isZombie();
}

} // namespace

std::optional<DefaultRoute> defaultRouteIn(const QByteArray &routeTable)
{
    // Iface Destination Gateway Flags RefCnt Use Metric Mask MTU Window IRTT
    enum Field { Interface, Destination, Gateway, Metric = 6, Mask, Count };
    std::optional<DefaultRoute> best;
    for (const QByteArray &line : routeTable.split('\n')) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.size() < Count || fields.at(Destination) != "00000000" || fields.at(Mask) != "00000000")
            continue;
        const DefaultRoute route{QString::fromUtf8(fields.at(Interface)), dottedQuad(fields.at(Gateway)),
                                 fields.at(Metric).toInt()};
        if (!best || route.metric < best->metric)
            best = route;
    }
    return best;
}

QStringList nameServersIn(const QByteArray &resolvConf)
{
    QStringList servers;
    for (const QByteArray &line : resolvConf.split('\n')) {
        const QList<QByteArray> words = line.simplified().split(' ');
        if (words.size() >= 2 && words.at(0) == "nameserver")
            servers += QString::fromUtf8(words.at(1));
    }
    return servers;
}

LinkFacts linkFacts(const QString &interfaceName, const QString &resolverFile)
{
    LinkFacts facts;
    facts.interfaceName = interfaceName;
    const QNetworkInterface interface =
        interfaceName.isEmpty() ? QNetworkInterface() : QNetworkInterface::interfaceFromName(interfaceName);
    if (!interface.isValid())
        return facts;
    const auto needed = QNetworkInterface::IsUp | QNetworkInterface::IsRunning;
    facts.isUp = (interface.flags() & needed) == needed;
    for (const QNetworkAddressEntry &entry : interface.addressEntries())
        if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol && facts.localAddress.isEmpty())
            facts.localAddress = entry.ip().toString();
    if (const auto route = defaultRouteIn(readAtMost(u"/proc/net/route"_s, longestFile));
        route && route->interfaceName == interfaceName) {
        facts.hasDefaultRoute = true;
        facts.peerAddress = route->gateway;
    }
    facts.nameServers = nameServersIn(readAtMost(resolverFile, longestFile));
    return facts;
}

bool hasLinkFile(const QStringList &files)
{
    return std::ranges::any_of(files, isAlive);
}

bool hasLinkMark(const QStringList &files, const QDateTime &since)
{
    return std::ranges::any_of(files, [&](const QString &path) {
        const QFileInfo file(path);
        // /tmp is everybody's.
        return file.isFile() && !file.isSymLink() && file.ownerId() == 0 && file.lastModified() >= since &&
               !processNumberIn(path);
    });
}

} // namespace corva
