// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/modemtypes.h"
#include "device/portholder.h"
#include "device/usbidentity.h"
#include "link/cardstate.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace corva
{

struct UsbStick;

/// What the probe of one port came to.
struct ProbeResult {
    enum class Verdict {
        Answered,  ///< something came back on "AT"
        Silent,    ///< opened, and nothing came in time
        CannotOpen ///< see `error`
    };
    Verdict verdict = Verdict::Silent;
    int error = 0; ///< CannotOpen: errno of the step that failed
};

/// Opens one port, writes "AT" and waits for any reply. The finder itself opens nothing and writes nothing.
/// Called on the finder's thread, one port after another; the port that the finder settles on is not always
/// the last. A silent port should lose its unsent "AT" (tcflush) before it is closed: closing waits 30 s for
/// a device that takes nothing.
using PortProbe = std::function<ProbeResult(const QString &port)>;

/// The ports of one card, as device names to open; empty where there is none.
struct CardPorts {
    QString at;
    QString modem; ///< the data port; the AT port itself on a card with one port
    QString voice;
    bool operator==(const CardPorts &) const = default;
};

/// What a search came to.
struct FoundCard {
    CardPresence presence = CardPresence::Absent;
    QString deviceName; ///< from the types file, or as the stick calls itself
    CardPorts ports;
    std::optional<CardFamily> family;  ///< as the types file says; nullopt where it does not
    QString port;                      ///< the port that `presence` speaks of
    PortHolder holder;                 ///< PortBusy
    QString group;                     ///< NoRights: the group that owns the port
    PortFault fault = PortFault::None; ///< Absent: the configuration names `port`, which can be none
    UsbIdentity usb;                   ///< null id for a port without a USB device
    bool operator==(const FoundCard &) const = default;
};

/// Where the finder looks, beside USB.
struct DeviceSettings {
    QString atPort; ///< section "device", key "at_port": when set, USB is not searched
    QString modemPort;
    QString voicePort;
    QString fixedAtPort = QStringLiteral("/dev/at"); ///< the names of `findByFixedNames`
    QString fixedModemPort = QStringLiteral("/dev/modem");
    QStringList modeSwitchFolders{QStringLiteral("/etc/usb_modeswitch.d"),
                                  QStringLiteral("/usr/share/usb_modeswitch")};

    /// The defaults with the ports that the configuration names.
    static DeviceSettings fromConfiguration();
};

/// Finds the card among the serial ports. No thread of its own; not for two threads at a time. A search
/// blocks for as long as its probes do.
class CardFinder
{
public:
    CardFinder(ModemTypes types, DeviceSettings settings);

    /// In this order: the ports that the configuration names; known cards; unknown cards that a rule of the
    /// types file covers, port by port; sticks that still show themselves as a disk. Of several cards the one
    /// used last comes first, then the order of the sockets. The first that answers wins; when none does, the
    /// one that came nearest.
    FoundCard find(const PortProbe &probe);

    /// Looks at the two fixed names alone.
    FoundCard findByFixedNames(const PortProbe &probe);

    /// The card to try first, by `UsbIdentity::key`. The finder itself remembers each card that answered.
    void preferCard(const QString &key) { m_preferred = key; }
    QString preferredCard() const { return m_preferred; }

    /// The ports to watch for a change of their links (see `HotplugMonitor::watchPorts`): what the
    /// configuration names, or else the fixed names when they are used.
    QStringList portsToWatch(bool fixedNames) const;

private:
    FoundCard findConfigured(const PortProbe &probe);
    FoundCard findOnUsb(const PortProbe &probe);
    FoundCard tryStick(const UsbStick &stick, const PortProbe &probe);
    std::optional<CardType> typeOf(const UsbStick &stick) const;
    FoundCard remember(FoundCard card);

    ModemTypes m_types;
    DeviceSettings m_settings;
    QString m_preferred;
    QMap<QString, CardType>
        m_learned; ///< unknown cards that answered, by key: what their interfaces turned out to be
};

} // namespace corva
