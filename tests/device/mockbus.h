// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/usbidentity.h"

#include <QList>
#include <QString>
#include <memory>
#include <umockdev.h>

/// One serial port of a mocked card.
struct MockPort {
    int interfaceNumber = 0;
    QString name; ///< "ttyUSB0"
    QString driver = QStringLiteral("option");
};

/// A mocked stick in socket "1-<socket>" of bus 1.
struct MockCard {
    corva::UsbId id;
    int socket = 2;
    int deviceNumber = 2;
    QString product = QStringLiteral("Mock Stick");
    QString serial;
    QList<MockPort> ports;
    int interfaceClass = 0xff; ///< of every interface; a stick without ports has one
};

/// USB as libusb and libudev see it, in this process alone. Needs the preloaded umockdev.
class MockBus
{
public:
    MockBus();
    ~MockBus();

    /// Adds the stick and its ports; udev monitors hear of each.
    void plug(const MockCard &card);
    /// Removes them again, ports first, as the kernel does.
    void unplug(const MockCard &card);
    /// The path of a port's node outside the mocked world.
    QString nodePath(const QString &port) const;

private:
    struct Unref {
        void operator()(UMockdevTestbed *p) const { g_object_unref(p); }
    };
    void add(const QString &description);

    std::unique_ptr<UMockdevTestbed, Unref> m_testbed;
};
