// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "at/trafficlog.h"
#include "card/profile.h"
#include "card/scheduler.h"

#include <QObject>
#include <memory>
#include <vector>

namespace cardemu
{

class AtSession;
class Card;
class ControlServer;
class CardPort;

/// A USB data card without the hardware: pseudo-terminals that answer AT commands, and a control socket.
///
/// It lives in the thread that made it, which must run an event loop; CardThread gives it one of its own.
/// Several cards may live in one process.
class EmulatedCard : public QObject
{
    Q_OBJECT

public:
    /// `devices` names terminal devices to serve instead of pseudo-terminals, by "at", "modem" and "voice".
    explicit EmulatedCard(const Profile &profile, const QMap<QString, QString> &devices = {},
                          QObject *parent = nullptr);
    ~EmulatedCard() override;

    /// Makes the folder where it is missing, and in it the links "at", "modem", "voice" and the socket
    /// "control". Returns what went wrong, in words; empty when the card is there. Two cards cannot share a
    /// folder.
    [[nodiscard]] Q_INVOKABLE QString start(const QString &folder);
    /// Takes the links and the socket away again. The destructor does the same.
    void stop();

    /// Carries out one control command, exactly as a line on the socket does: {"command": "signal", "rssi":
    /// 12}. The result has "ok", and "error" with a sentence where that is false.
    Q_INVOKABLE QJsonObject control(const QJsonObject &request);

    // What control commands work on.

    /// Names of the ports as they stand in the folder.
    struct PortNames {
        QString at;
        QString modem;
        QString voice;
    };

    void unplug();
    /// A card just pushed in, with new device files; an empty name keeps the one that was.
    Complaint plug(const PortNames &names);
    bool isPlugged() const;
    /// "at", "modem" and "voice" with their links and device files, whether a client has them open, and the
    /// process of the network's side in a data call.
    QJsonObject portsAsJson() const;
    /// Sends bytes on a port ("at" or "modem") as they stand.
    Complaint sendRaw(const QString &port, const QByteArray &bytes);
    /// The network ends every data call and takes every context down; a complaint where there is none.
    Complaint dropData();
    Card &card() { return *m_card; }
    TrafficLog &log() { return m_log; }
    Scheduler &scheduler() { return m_scheduler; }

private:
    struct Port;

    Port *portOf(const QString &role) const;
    void addPort(const QString &role, const QString &device);
    void connectSession(Port &port);
    Complaint renamePorts(QStringList names);
    Complaint openPorts();
    void closePorts();
    static void balance(Port &port);

    Scheduler m_scheduler;
    TrafficLog m_log;
    std::unique_ptr<Card> m_card;
    std::vector<std::unique_ptr<Port>> m_ports;
    std::unique_ptr<ControlServer> m_server;
    QString m_folder;
};

} // namespace cardemu
