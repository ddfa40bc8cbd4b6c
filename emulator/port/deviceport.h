// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/cardport.h"

#include <QSocketNotifier>
#include <QTimer>
#include <memory>

namespace cardemu
{

/// A port on a terminal device that is there already: a USB gadget's serial function ("/dev/ttyGS0"), a null
/// modem cable. Such a device shows neither who opens the far end nor its DTR. When it hangs up it is opened
/// again, as often as that takes.
class DevicePort : public CardPort
{
    Q_OBJECT

public:
    explicit DevicePort(QObject *parent = nullptr);
    ~DevicePort() override { close(); }

    Complaint open(const QString &link) override;
    void close() override;
    bool isOpen() const override { return !m_device.isEmpty(); }
    QString link() const override { return m_device; }
    QString device() const override { return m_device; }
    bool hasClient() override { return m_descriptor >= 0; }
    void write(const QByteArray &bytes) override;
    qsizetype unwritten() const override { return m_unwritten.size(); }
    void setReading(bool reading) override;
    void watchForHangUp(bool) override {}

private:
    bool openDevice();
    void closeDevice();
    void read();
    void flush();
    void lose();

    int m_descriptor = -1;
    QString m_device;
    QByteArray m_unwritten;
    bool m_reading = true;
    QTimer m_retry;
    std::unique_ptr<QSocketNotifier> m_readable;
    std::unique_ptr<QSocketNotifier> m_writable;
};

} // namespace cardemu
