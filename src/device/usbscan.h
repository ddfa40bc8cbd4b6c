// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/usbidentity.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace corva
{

/// One serial port of a stick.
struct SerialPort {
    QString devnode; ///< "/dev/ttyUSB2"
    int interfaceNumber = 0;
    QString driver;        ///< the kernel driver of the interface: "option"
    bool isSettled = true; ///< there for so long that its neighbours, if any, are there as well
    bool operator==(const SerialPort &) const = default;
};

/// One plugged-in USB device with what it shows.
struct UsbStick {
    UsbIdentity usb;
    QString manufacturer; ///< as the stick says; any text may stand here
    QString product;
    QList<int> interfaceClasses; ///< bInterfaceClass of each interface
    QList<SerialPort> ports;     ///< by interface number

    QStringList drivers() const;
    /// The device name of the port on this interface; empty when there is none.
    QString portOn(int interfaceNumber) const;
    /// Every interface is mass storage, and there is at least one.
    bool isDiskOnly() const;
    /// No port has come just now: more of them may be about to.
    bool isSettled() const;
    bool operator==(const UsbStick &) const = default;
};

/// Everything on USB, by bus and socket. libusb lists the devices (none is opened), libudev their names and
/// serial ports. Empty when neither can be reached, with a line in the log.
QList<UsbStick> scanUsb();

/// The stick that a serial port belongs to, found through the links that lead to it; a null identity when
/// there is none.
UsbStick stickOfPort(const QString &port);

} // namespace corva
