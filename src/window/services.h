// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionstate.h"
#include "connection/ui/linkmeter.h"

#include <QObject>
#include <functional>
#include <memory>

namespace corva
{

class CardMonitor;
class ConnectionService;
class MessageService;
class MessageStore;
class ProfileStore;
class TrafficService;

/// The services of the program, and what they have to tell each other: none of them knows the others.
class Services final : public QObject
{
    Q_OBJECT

public:
    using MakeConnection =
        std::function<std::unique_ptr<ConnectionService>(CardMonitor *monitor, ProfileStore *profiles)>;

    Services(CardMonitor *monitor, QObject *parent);
    /// The same over a connection of another make.
    Services(CardMonitor *monitor, const MakeConnection &makeConnection, QObject *parent);
    /// Hangs up, puts the system's files back, writes the traffic down.
    ~Services() override;

    ProfileStore *profiles() { return m_profiles.get(); }
    ConnectionService *connection() { return m_connection.get(); }
    TrafficService *traffic() { return m_traffic.get(); }
    LinkMeter *meter() { return &m_meter; }
    MessageService *messages() { return m_messageService.get(); }

Q_SIGNALS:
    /// A sentence for the person about the month's volume.
    void sigVolume(const QString &sentence);

private:
    void connectParts();
    void takeStatus(const ConnectionStatus &status);

    std::unique_ptr<ProfileStore> m_profiles;
    std::unique_ptr<TrafficService> m_traffic;
    std::unique_ptr<ConnectionService> m_connection;
    std::unique_ptr<MessageStore> m_messageStore;
    std::unique_ptr<MessageService> m_messageService;
    LinkMeter m_meter;
    bool m_isCounting = false; ///< a session was begun and not ended
};

} // namespace corva
