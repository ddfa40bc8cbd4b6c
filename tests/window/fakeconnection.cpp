// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakeconnection.h"

#include <utility>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

/// What a test sees and moves of the service that lives now.
struct Strings {
    std::function<void(const ConnectionStatus &)> put;
    std::function<void()> askAboutRoaming;
    QStringList calls;
    ConnectObstacle obstacle = ConnectObstacle::None;
};

Strings &strings()
{
    static Strings living;
    return living;
}

} // namespace

namespace corva
{

class ConnectionService::Private
{
public:
    ProfileStore *profiles = nullptr;
};

ConnectionService::ConnectionService(CardMonitor *, ProfileStore *profiles, QObject *parent)
    : QObject(parent), d(new Private{profiles})
{
    strings() = {};
    strings().put = [this](const ConnectionStatus &status) {
        m_status = status;
        Q_EMIT sigStatusChanged(m_status);
    };
    strings().askAboutRoaming = [this] { Q_EMIT sigRoamingAsked(); };
}

ConnectionService::~ConnectionService() = default;

void ConnectionService::shutDown()
{
    strings().calls += u"shutDown"_s;
}

ProfileStore &ConnectionService::profiles()
{
    return *d->profiles;
}

void ConnectionService::recoverLeftovers()
{
    strings().calls += u"recover"_s;
}

ConnectObstacle ConnectionService::obstacle() const
{
    return strings().obstacle;
}

bool ConnectionService::connectNow(const std::optional<DialCredentials> &credentials)
{
    strings().calls +=
        credentials ? u"connect %1/%2"_s.arg(credentials->userName, credentials->password) : u"connect"_s;
    return true;
}

void ConnectionService::disconnectNow(ConnectionEnd why)
{
    strings().calls += why == ConnectionEnd::ByPerson ? u"disconnect"_s : u"disconnect %1"_s.arg(int(why));
}

void ConnectionService::setByteCounter(std::function<std::optional<quint64>()>) {}

void ConnectionService::setCallUp(bool) {}

} // namespace corva

namespace fakeconnection
{

QStringList takeCalls()
{
    return std::exchange(strings().calls, {});
}

void put(const ConnectionStatus &status)
{
    strings().put(status);
}

void setObstacle(ConnectObstacle obstacle)
{
    strings().obstacle = obstacle;
}

void askAboutRoaming()
{
    strings().askAboutRoaming();
}

ConnectionStatus connected()
{
    ConnectionStatus status;
    status.state = ConnectionState::Connected;
    status.profileName = u"Testnetz Prepaid"_s;
    status.apn = u"internet"_s;
    status.since = QDateTime::currentDateTime().addSecs(-3723);
    status.interfaceName = u"ppp0"_s;
    status.localAddress = u"10.64.64.64"_s;
    status.peerAddress = u"10.64.64.1"_s;
    status.nameServers = {u"192.0.2.53"_s, u"198.51.100.53"_s};
    status.hasDefaultRoute = true;
    return status;
}

ConnectionStatus ended(ConnectionEnd end, const QString &sentence)
{
    ConnectionStatus status;
    status.profileName = u"Testnetz Prepaid"_s;
    status.end = end;
    status.endSentence = sentence;
    return status;
}

ConnectionStatus namedStatus(const QString &name)
{
    ConnectionStatus status = connected();
    if (name == "connected"_L1)
        return status;
    if (name == "disconnecting"_L1) {
        status.state = ConnectionState::Disconnecting;
        return status;
    }
    if (name == "refused"_L1)
        return ended(ConnectionEnd::Refused, u"The network refused the user name and the password."_s);
    status = ended(ConnectionEnd::LinkLost, u"The connection broke off."_s);
    if (name == "connecting"_L1)
        status.state = ConnectionState::Connecting;
    else if (name == "redial"_L1)
        status.redial = 2, status.redials = 5;
    else
        status = {};
    return status;
}

} // namespace fakeconnection
