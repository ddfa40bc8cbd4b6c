// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/cardfinder.h"

#include "device/modeswitchdata.h"
#include "device/portprobing.h"
#include "device/usbscan.h"
#include "shell/logging.h"

#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// Fills in who the card is; what the probing found stays.
FoundCard identified(FoundCard card, const UsbStick &stick, const std::optional<CardType> &type)
{
    card.usb = stick.usb;
    card.deviceName = type && !type->name.isEmpty() ? type->name : stick.product;
    if (type)
        card.family = type->family;
    return card;
}

QString portOn(const UsbStick &stick, const std::optional<int> &interfaceNumber)
{
    return interfaceNumber ? stick.portOn(*interfaceNumber) : QString();
}

/// What the types file says about a port's use goes over what the probing made of it.
void setNamedPorts(FoundCard &card, const UsbStick &stick, const CardType &type)
{
    const QString modem = portOn(stick, type.modemInterface);
    card.ports.modem = modem.isEmpty() ? card.ports.modem : modem;
    card.ports.voice = portOn(stick, type.voiceInterface);
}

FoundCard tryKnown(const UsbStick &stick, const CardType &type, const PortProbe &probe)
{
    QStringList candidates;
    for (const SerialPort &port : stick.ports)
        if (type.atInterface
                ? port.interfaceNumber == *type.atInterface
                : port.interfaceNumber != type.modemInterface && port.interfaceNumber != type.voiceInterface)
            candidates.append(port.devnode);
    FoundCard card = probePorts(candidates, probe);
    setNamedPorts(card, stick, type);
    return card;
}

FoundCard tryUnknown(const UsbStick &stick, const ProbeRule &rule, const PortProbe &probe)
{
    QStringList candidates;
    for (const SerialPort &port : stick.ports)
        if (rule.drivers.contains(port.driver))
            candidates.append(port.devnode);
    return probePorts(candidates, probe);
}

/// What the probing of an unknown card taught: its ports as interfaces, which outlive their device names.
CardType learnedType(const FoundCard &card, const UsbStick &stick)
{
    CardType type;
    type.id = stick.usb.id;
    for (const SerialPort &port : stick.ports) {
        if (port.devnode == card.ports.at)
            type.atInterface = port.interfaceNumber;
        if (port.devnode == card.ports.modem)
            type.modemInterface = port.interfaceNumber;
    }
    return type;
}

FoundCard storageStick(const QList<UsbStick> &sticks, const ModemTypes &types, const QStringList &folders)
{
    for (const UsbStick &stick : sticks) {
        if (!stick.isDiskOnly())
            continue;
        const CardType *type = types.cardForStorage(stick.usb.id);
        if (!type && modeSwitchConfig(stick.usb.id, stickTexts(stick.usb), folders).isEmpty())
            continue;
        FoundCard card = identified({}, stick, type ? std::optional(*type) : std::nullopt);
        card.presence = CardPresence::StorageMode;
        return card;
    }
    return {};
}

} // namespace

CardFinder::CardFinder(ModemTypes types, DeviceSettings settings)
    : m_types(std::move(types)), m_settings(std::move(settings))
{
}

FoundCard CardFinder::find(const PortProbe &probe)
{
    return remember(withReason(m_settings.atPort.isEmpty() ? findOnUsb(probe) : findConfigured(probe)));
}

FoundCard CardFinder::findByFixedNames(const PortProbe &probe)
{
    const QString &at = m_settings.fixedAtPort;
    const UsbStick stick = stickOfPort(at);
    FoundCard card = identified(probePort(at, probe), stick, typeOf(stick));
    const bool hasModem = QFileInfo::exists(m_settings.fixedModemPort);
    card.ports.modem = hasModem ? m_settings.fixedModemPort : card.ports.at;
    card.ports.voice = m_settings.voicePort;
    return remember(withReason(card));
}

FoundCard CardFinder::findConfigured(const PortProbe &probe)
{
    const UsbStick stick = stickOfPort(m_settings.atPort);
    int error = 0;
    const auto noted = [&](const QString &port) {
        const ProbeResult result = probe(port);
        error = result.error;
        return result;
    };
    FoundCard card = identified(probePort(m_settings.atPort, noted), stick, typeOf(stick));
    if (card.presence == CardPresence::Absent)
        card.fault = portFault(m_settings.atPort, error);
    card.ports.modem = m_settings.modemPort.isEmpty() ? card.ports.at : m_settings.modemPort;
    card.ports.voice = m_settings.voicePort;
    return card;
}

FoundCard CardFinder::findOnUsb(const PortProbe &probe)
{
    QList<UsbStick> sticks = scanUsb();
    const auto rank = [this](const UsbStick &stick) {
        return stick.usb.key() == m_preferred ? 0 : m_types.cardFor(stick.usb.id) ? 1 : 2;
    };
    std::ranges::stable_sort(sticks, {}, rank);
    FoundCard best;
    for (const UsbStick &stick : std::as_const(sticks)) {
        best = nearer(best, tryStick(stick, probe));
        if (best.presence == CardPresence::Ready)
            break;
    }
    if (best.presence != CardPresence::Ready)
        best = nearer(best, storageStick(sticks, m_types, m_settings.modeSwitchFolders));
    if (!m_settings.modemPort.isEmpty())
        best.ports.modem = m_settings.modemPort;
    if (!m_settings.voicePort.isEmpty())
        best.ports.voice = m_settings.voicePort;
    return best;
}

FoundCard CardFinder::tryStick(const UsbStick &stick, const PortProbe &probe)
{
    const auto type = typeOf(stick);
    FoundCard card;
    if (type)
        card = tryKnown(stick, *type, probe);
    // Half of the ports would teach the wrong roles: the rest is waited for, the next search is not far.
    const bool mayProbe = !m_types.cardFor(stick.usb.id) && stick.isSettled();
    const ProbeRule *rule = mayProbe ? m_types.ruleFor(stick.usb.id, stick.drivers()) : nullptr;
    if (rule && card.presence != CardPresence::Ready) {
        card = tryUnknown(stick, *rule, probe);
        if (card.presence == CardPresence::Ready)
            m_learned.insert(stick.usb.key(), learnedType(card, stick));
    }
    return identified(card, stick, type);
}

std::optional<CardType> CardFinder::typeOf(const UsbStick &stick) const
{
    if (const CardType *type = m_types.cardFor(stick.usb.id))
        return *type;
    const auto learned = m_learned.constFind(stick.usb.key());
    return learned == m_learned.constEnd() ? std::nullopt : std::optional(*learned);
}

FoundCard CardFinder::remember(FoundCard card)
{
    if (card.presence == CardPresence::Ready && !card.usb.id.isNull())
        m_preferred = card.usb.key();
    qCDebug(lcDevice).noquote() << logTime() + u"card search:"_s << static_cast<int>(card.presence)
                                << card.usb.key() << card.port;
    return card;
}

QStringList CardFinder::portsToWatch(bool fixedNames) const
{
    QStringList ports = fixedNames
                            ? QStringList{m_settings.fixedAtPort, m_settings.fixedModemPort}
                            : QStringList{m_settings.atPort, m_settings.modemPort, m_settings.voicePort};
    ports.removeAll(QString());
    return ports;
}

} // namespace corva
