// SPDX-License-Identifier: GPL-3.0-or-later
#include "emulatedcard.h"

#include "at/atsession.h"
#include "card/card.h"
#include "control/controlserver.h"
#include "control/controltable.h"
#include "port/ptyport.h"

#include <QDir>

namespace cardemu
{

using namespace Qt::StringLiterals;

struct EmulatedCard::Port {
    QString role;
    QString name; ///< of the link in the folder
    PtyPort pty;
    std::unique_ptr<AtSession> session; ///< none on the voice port
};

EmulatedCard::EmulatedCard(const Profile &profile, QObject *parent)
    : QObject(parent), m_log(m_scheduler), m_card(std::make_unique<Card>(profile, m_scheduler))
{
    addPort(u"at"_s, true);
    addPort(u"modem"_s, true);
    addPort(u"voice"_s, false);
    AtSession *reports = portOf(u"at"_s)->session.get();
    connect(m_card.get(), &Card::reported, reports, &AtSession::report);
    connect(m_card.get(), &Card::rang, reports, &AtSession::ring);
}

EmulatedCard::~EmulatedCard()
{
    stop();
}

void EmulatedCard::addPort(const QString &role, bool speaksAt)
{
    m_ports.push_back(std::make_unique<Port>());
    Port *port = m_ports.back().get();
    port->role = port->name = role;
    if (!speaksAt)
        return;
    port->session = std::make_unique<AtSession>(role, *m_card, m_log, [port](const QByteArray &bytes) {
        port->pty.write(bytes);
        balance(*port);
    });
    connect(&port->pty, &PtyPort::received, this, [port](const QByteArray &bytes) {
        port->session->receive(bytes);
        balance(*port);
    });
    connect(&port->pty, &PtyPort::flushed, this, [port] { balance(*port); });
    connect(&port->pty, &PtyPort::clientLeft, this, [port] {
        port->session->clientLeft();
        balance(*port);
    });
}

// Who sends commands and does not read the replies is not listened to until he does.
void EmulatedCard::balance(Port &port)
{
    constexpr qsizetype most = 1 << 20;
    port.pty.setReading(port.pty.unwritten() < most && !port.session->isCongested());
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
        if (Complaint complaint = port->pty.open(m_folder + u'/' + port->name); !complaint.isEmpty()) {
            closePorts();
            return complaint;
        }
    }
    return {};
}

void EmulatedCard::closePorts()
{
    for (const auto &port : m_ports)
        port->pty.close();
}

bool EmulatedCard::isPlugged() const
{
    return m_ports.front()->pty.isOpen();
}

void EmulatedCard::unplug()
{
    closePorts();
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

// In the ports' own order; an empty name keeps the one that was.
Complaint EmulatedCard::renamePorts(QStringList names)
{
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (names[i].isEmpty())
            names[i] = m_ports[size_t(i)]->name;
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
    for (const auto &port : m_ports)
        object[port->role] = QJsonObject{{u"link"_s, port->pty.link()},
                                         {u"device"_s, port->pty.device()},
                                         {u"open"_s, port->pty.hasClient()}};
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
    bool dropped = false;
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
