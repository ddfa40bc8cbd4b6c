// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/ptyport.h"

#include <QFile>
#include <QFileInfo>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace cardemu
{

using namespace Qt::StringLiterals;

namespace
{

Complaint systemComplaint(const QString &what)
{
    return what + u": "_s + QString::fromLocal8Bit(std::strerror(errno));
}

void setRaw(int descriptor)
{
    termios settings{};
    tcgetattr(descriptor, &settings);
    cfmakeraw(&settings);
    cfsetspeed(&settings, B115200);
    tcsetattr(descriptor, TCSANOW, &settings);
}

} // namespace

Complaint PtyPort::open(const QString &link)
{
    close();
    Complaint complaint = openPair();
    if (complaint.isEmpty())
        complaint = makeLink(link);
    if (!complaint.isEmpty()) {
        close();
        return complaint;
    }
    m_watch = std::make_unique<OpenWatch>(m_device, [this] { clientsChanged(); });
    m_readable = std::make_unique<QSocketNotifier>(m_master, QSocketNotifier::Read);
    m_writable = std::make_unique<QSocketNotifier>(m_master, QSocketNotifier::Write);
    m_writable->setEnabled(false);
    connect(m_readable.get(), &QSocketNotifier::activated, this, [this] { read(); });
    connect(m_writable.get(), &QSocketNotifier::activated, this, [this] { flush(); });
    return {};
}

Complaint PtyPort::openPair()
{
    m_master = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    std::array<char, 128> name{};
    if (m_master < 0 || grantpt(m_master) != 0 || unlockpt(m_master) != 0 ||
        ptsname_r(m_master, name.data(), name.size()) != 0)
        return systemComplaint(u"no pseudo-terminal"_s);
    m_device = QFile::decodeName(name.data());
    m_slave = ::open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (m_slave < 0)
        return systemComplaint(m_device);
    setRaw(m_slave);
    return {};
}

Complaint PtyPort::makeLink(const QString &link)
{
    const QFileInfo existing(link);
    if (existing.isSymLink())
        QFile::remove(link);
    else if (existing.exists())
        return u"%1 exists and is not a link"_s.arg(link);
    if (::symlink(QFile::encodeName(m_device).constData(), QFile::encodeName(link).constData()) != 0)
        return systemComplaint(link);
    m_link = link;
    return {};
}

void PtyPort::close()
{
    m_watch.reset();
    m_readable.reset();
    m_writable.reset();
    // The link goes first: nobody shall find a link to a device that may already be another's.
    if (!m_link.isEmpty())
        QFile::remove(m_link);
    if (m_master >= 0)
        ::close(m_master);
    if (m_slave >= 0)
        ::close(m_slave);
    m_master = m_slave = -1;
    m_link.clear();
    m_device.clear();
    m_unwritten.clear();
}

void PtyPort::write(const QByteArray &bytes)
{
    if (m_master < 0)
        return;
    clientsChanged();
    if (!m_watch->isOpen())
        return;
    m_unwritten += bytes;
    flush();
}

void PtyPort::setReading(bool reading)
{
    if (m_readable)
        m_readable->setEnabled(reading);
}

void PtyPort::read()
{
    clientsChanged();
    std::array<char, 4096> buffer{};
    const ssize_t size = ::read(m_master, buffer.data(), buffer.size());
    if (size > 0)
        Q_EMIT received(QByteArray(buffer.data(), size));
}

void PtyPort::flush()
{
    while (!m_unwritten.isEmpty()) {
        const ssize_t size =
            ::write(m_master, m_unwritten.constData(), static_cast<size_t>(m_unwritten.size()));
        if (size <= 0)
            break;
        m_unwritten.remove(0, size);
    }
    m_writable->setEnabled(!m_unwritten.isEmpty());
    if (m_unwritten.isEmpty())
        Q_EMIT flushed();
}

// A client may be gone and the next one there already: nothing that was meant for the first may reach the
// second.
void PtyPort::clientsChanged()
{
    if (!m_watch->takeLeft())
        return;
    m_unwritten.clear();
    m_writable->setEnabled(false);
    tcflush(m_slave, TCIFLUSH);
    Q_EMIT clientLeft();
}

} // namespace cardemu
