// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <compare>
#include <optional>

namespace corva
{

/// A USB vendor and product id. Zero in both means "no USB device".
struct UsbId {
    quint16 vendor = 0;
    quint16 product = 0;

    bool isNull() const { return vendor == 0 && product == 0; }
    /// Four lower-case hex digits each, as lsusb shows them: "1209:0001".
    QString toString() const;
    /// The reverse, either case; nullopt for any other shape.
    static std::optional<UsbId> fromString(QStringView text);

    auto operator<=>(const UsbId &) const = default;
};

/// Which stick it is, and where it is plugged in. Outlives the names of its serial ports.
struct UsbIdentity {
    UsbId id;
    int busNumber = 0;    ///< as "Bus 001" of lsusb
    int deviceNumber = 0; ///< as "Device 002" of lsusb; a new one at every plugging
    QString path;         ///< bus and hub ports, "1-2.4": the same as long as the stick stays in its socket
    QString serial;       ///< empty when the stick has none

    /// One text to remember a stick by: "1209:0001/serial", or "1209:0001@path" without a serial number.
    /// Empty for a port that hangs on no USB device.
    QString key() const;

    bool operator==(const UsbIdentity &) const = default;
};

} // namespace corva
