// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/deviceport.h"

#include "port/rawline.h"

#include <QFile>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace cardemu
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

DevicePort::DevicePort(QObject *parent) : CardPort(parent)
{
    m_retry.setInterval(100ms);
    connect(&m_retry, &QTimer::timeout, this, [this] {
        if (openDevice())
            m_retry.stop();
    });
}

Complaint DevicePort::open(const QString &link)
{
    close();
    m_device = link;
    if (openDevice())
        return {};
    Complaint complaint = link + u": "_s + QString::fromLocal8Bit(std::strerror(errno));
    close();
    return complaint;
}

bool DevicePort::openDevice()
{
    m_descriptor =
        ::open(QFile::encodeName(m_device).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (m_descriptor < 0 || !setRaw(m_descriptor)) {
        closeDevice();
        return false;
    }
    m_readable = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    m_writable = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Write);
    m_readable->setEnabled(m_reading);
    m_writable->setEnabled(false);
    connect(m_readable.get(), &QSocketNotifier::activated, this, &DevicePort::read);
    connect(m_writable.get(), &QSocketNotifier::activated, this, &DevicePort::flush);
    return true;
}

void DevicePort::closeDevice()
{
    m_readable.reset();
    m_writable.reset();
    const int error = errno;
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    errno = error;
    m_descriptor = -1;
    m_unwritten.clear();
}

void DevicePort::close()
{
    m_retry.stop();
    closeDevice();
    m_device.clear();
    m_reading = true;
}

// Nobody can be seen to listen, so what is never read must not pile up.
void DevicePort::write(const QByteArray &bytes)
{
    constexpr qsizetype most = 4 << 20;
    if (m_descriptor < 0 || m_unwritten.size() > most)
        return;
    m_unwritten += bytes;
    flush();
}

void DevicePort::setReading(bool reading)
{
    m_reading = reading;
    if (m_readable)
        m_readable->setEnabled(reading);
}

void DevicePort::read()
{
    std::array<char, 4096> buffer{};
    const ssize_t size = ::read(m_descriptor, buffer.data(), buffer.size());
    if (size > 0)
        Q_EMIT received(QByteArray(buffer.data(), size));
    else if (size == 0 || (errno != EAGAIN && errno != EINTR))
        lose();
}

void DevicePort::flush()
{
    while (!m_unwritten.isEmpty()) {
        const ssize_t size =
            ::write(m_descriptor, m_unwritten.constData(), static_cast<size_t>(m_unwritten.size()));
        if (size <= 0)
            break;
        m_unwritten.remove(0, size);
    }
    m_writable->setEnabled(!m_unwritten.isEmpty());
    if (m_unwritten.isEmpty())
        Q_EMIT flushed();
}

void DevicePort::lose()
{
    closeDevice();
    m_retry.start();
    Q_EMIT pulled();
}

} // namespace cardemu
