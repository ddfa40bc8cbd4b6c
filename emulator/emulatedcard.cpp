// SPDX-License-Identifier: GPL-3.0-or-later
#include "emulatedcard.h"

#include "at/atsession.h"
#include "card/card.h"
#include "control/controlserver.h"
#include "control/controltable.h"
#include "port/deviceport.h"
#include "port/ptyport.h"

#include <QDir>

namespace cardemu
{

using namespace Qt::StringLiterals;

struct EmulatedCard::Port {
    QString role;
    QString name; ///< of the link in the folder; of a device, its path
    std::unique_ptr<CardPort> line;
    std::unique_ptr<AtSession> session; ///< none on the voice port
};

EmulatedCard::EmulatedCard(const Profile &profile, const QMap<QString, QString> &devices, QObject *parent)
    : QObject(parent), m_log(m_scheduler), m_card(std::make_unique<Card>(profile, m_scheduler))
{
    for (const QString &role : {u"at"_s, u"modem"_s, u"voice"_s})
        addPort(role, devices.value(role));
    for (const QString &role : {u"at"_s, u"modem"_s})
        connectSession(*portOf(role));
    AtSession *reports = portOf(u"at"_s)->session.get();
    connect(m_card.get(), &Card::reported, reports, &AtSession::report);
    connect(m_card.get(), &Card::indicated, reports, &AtSession::indicate);
    connect(m_card.get(), &Card::rang, reports, &AtSession::ring);
}

EmulatedCard::~EmulatedCard()
{
    stop();
}

void EmulatedCard::addPort(const QString &role, const QString &device)
{
    m_ports.push_back(std::make_unique<Port>());
    Port &port = *m_ports.back();
    port.role = role;
    port.name = device.isEmpty() ? role : device;
    if (device.isEmpty())
        port.line = std::make_unique<PtyPort>();
    else
        port.line = std::make_unique<DevicePort>();
    // Without the computer's end a card has no power.
    connect(port.line.get(), &CardPort::pulled, m_card.get(), &Card::powerUp);
}

void EmulatedCard::connectSession(Port &port)
{
    CardPort *line = port.line.get();
    port.session = std::make_unique<AtSession>(port.role, *m_card, m_log, [&port](const QByteArray &bytes) {
        port.line->write(bytes);
        balance(port);
    });
    AtSession *session = port.session.get();
    connect(line, &CardPort::received, session, [&port](const QByteArray &bytes) {
        port.session->receive(bytes);
        balance(port);
    });
    connect(line, &CardPort::flushed, session, [&port] { balance(port); });
    connect(line, &CardPort::clientLeft, session, [&port] {
        port.session->clientLeft();
        balance(port);
    });
    connect(line, &CardPort::hungUp, session, &AtSession::dropCall);
    connect(session, &AtSession::callChanged, this, [&port] { balance(port); });
}

// Who does not take what he is sent is not listened to until he does, and neither is the network for him.
void EmulatedCard::balance(Port &port)
{
    constexpr qsizetype most = 1 << 20;
    const bool takesMore = port.line->unwritten() < most && !port.session->isCongested();
    port.line->setReading(takesMore && !port.session->isNetworkCongested());
    port.line->watchForHangUp(port.session->isInCall());
    port.session->setClientTakesMore(takesMore);
}

EmulatedCard::Port *EmulatedCard::portOf(const QString &role) const
{
    for (const auto &port : m_ports) {
        if (port->role == role)
            return port.get();
    }
    return nullptr;
}

QString EmulatedCard::start(const QString &folder)
{
    stop();
    if (!QDir().mkpath(folder))
        return u"cannot make the folder %1"_s.arg(folder);
    m_folder = QDir(folder).absolutePath();
    m_server = std::make_unique<ControlServer>(*this);
    Complaint complaint = m_server->listen(m_folder + u"/control"_s);
    if (complaint.isEmpty())
        complaint = openPorts();
    if (!complaint.isEmpty())
        stop();
    return complaint;
}

void EmulatedCard::stop()
{
    closePorts();
    m_server.reset();
}

Complaint EmulatedCard::openPorts()
{
    for (const auto &port : m_ports) {
        if (Complaint complaint = port->line->open(QDir(m_folder).absoluteFilePath(port->name));
            !complaint.isEmpty()) {
            closePorts();
            return complaint;
        }
    }
    return {};
}

void EmulatedCard::closePorts()
{
    for (const auto &port : m_ports)
        port->line->close();
}

bool EmulatedCard::isPlugged() const
{
    return m_ports.front()->line->isOpen();
}

void EmulatedCard::unplug()
{
    closePorts();
    for (const auto &port : m_ports) {
        if (port->session)
            port->session->clientLeft();
    }
    m_card->packetData().deactivateAll(false);
    m_card->mailbox().setReachable(false);
    m_card->hangUp();
}

Complaint EmulatedCard::plug(const PortNames &names)
{
    if (isPlugged())
        return u"the card is plugged in"_s;
    if (m_folder.isEmpty())
        return u"the card has no folder yet"_s;
    if (Complaint complaint = renamePorts({names.at, names.modem, names.voice}); !complaint.isEmpty())
        return complaint;
    m_card->powerUp();
    return openPorts();
}

// In the ports' own order; an empty name keeps the one that was, and so do ports on devices.
Complaint EmulatedCard::renamePorts(QStringList names)
{
    for (qsizetype i = 0; i < names.size(); ++i) {
        const QString &present = m_ports[size_t(i)]->name;
        if (names[i].isEmpty() || present.startsWith(u'/')) {
            names[i] = present;
            continue;
        }
        if (names[i].contains(u'/') || names[i].startsWith(u'.') || names[i] == u"control"_s)
            return u"\"%1\" cannot be a port's name"_s.arg(names[i]);
    }
    if (names.removeDuplicates() > 0)
        return u"two ports cannot have one name"_s;
    for (qsizetype i = 0; i < names.size(); ++i)
        m_ports[size_t(i)]->name = names[i];
    return {};
}

QJsonObject EmulatedCard::portsAsJson() const
{
    QJsonObject object;
    for (const auto &port : m_ports) {
        QJsonObject about{{u"link"_s, port->line->link()},
                          {u"device"_s, port->line->device()},
                          {u"open"_s, port->line->hasClient()}};
        if (port->session && port->session->peerProcess() != 0)
            about[u"peer"_s] = port->session->peerProcess();
        object[port->role] = about;
    }
    return object;
}

Complaint EmulatedCard::sendRaw(const QString &role, const QByteArray &bytes)
{
    const Port *port = portOf(role);
    if (port == nullptr || !port->session)
        return u"there is no AT port \"%1\""_s.arg(role);
    port->session->sendRaw(bytes);
    return {};
}

Complaint EmulatedCard::dropData()
{
    bool dropped = m_card->packetData().deactivateAll(true);
    for (const auto &port : m_ports) {
        if (!port->session || !port->session->isInCall())
            continue;
        port->session->dropCall();
        dropped = true;
    }
    return dropped ? Complaint() : u"there is no data call"_s;
}

QJsonObject EmulatedCard::control(const QJsonObject &request)
{
    return runControlCommand(*this, request);
}

} // namespace cardemu
