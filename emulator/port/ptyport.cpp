// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/ptyport.h"

#include "port/rawline.h"

#include <QFile>
#include <QFileInfo>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>
#include <utility>

namespace cardemu
{

using namespace Qt::StringLiterals;

namespace
{

Complaint systemComplaint(const QString &what)
{
    return what + u": "_s + QString::fromLocal8Bit(std::strerror(errno));
}

} // namespace

PtyPort::PtyPort(QObject *parent) : CardPort(parent)
{
    m_hangUpWatch.setInterval(std::chrono::milliseconds(50));
    connect(&m_hangUpWatch, &QTimer::timeout, this, [this] {
        if (isHungUp(m_master))
            Q_EMIT hungUp();
    });
}

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
    m_readable = std::make_unique<QSocketNotifier>(m_master, QSocketNotifier::Read);
    m_writable = std::make_unique<QSocketNotifier>(m_master, QSocketNotifier::Write);
    m_readable->setEnabled(false);
    m_writable->setEnabled(false);
    connect(m_readable.get(), &QSocketNotifier::activated, this, &PtyPort::look);
    connect(m_writable.get(), &QSocketNotifier::activated, this, &PtyPort::flush);
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
    setRaw(m_master);
    // Only after it was open once does the kernel tell that it is closed.
    const int slave = ::open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (slave < 0)
        return systemComplaint(m_device);
    ::close(slave);
    m_watch = std::make_unique<OpenWatch>(m_device, [this] { look(); });
    return m_watch->isValid() ? Complaint() : systemComplaint(u"cannot watch "_s + m_device);
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
    m_hangUpWatch.stop();
    m_watch.reset();
    m_readable.reset();
    m_writable.reset();
    // The link goes first: nobody shall find a link to a device that may already be another's.
    if (!m_link.isEmpty())
        QFile::remove(m_link);
    if (m_master >= 0)
        ::close(m_master);
    m_master = -1;
    m_link.clear();
    m_device.clear();
    m_unwritten.clear();
    m_hasClient = false;
    m_reading = true;
}

bool PtyPort::hasClient()
{
    if (m_master >= 0)
        look();
    return m_hasClient;
}

void PtyPort::write(const QByteArray &bytes)
{
    if (m_master < 0 || !isOpenElsewhere())
        return;
    m_unwritten += bytes;
    flush();
}

void PtyPort::setReading(bool reading)
{
    m_reading = reading;
    if (m_readable)
        m_readable->setEnabled(m_hasClient && m_reading);
}

void PtyPort::watchForHangUp(bool watches)
{
    if (watches == m_hangUpWatch.isActive())
        return;
    if (watches && m_master >= 0)
        m_hangUpWatch.start();
    else
        m_hangUpWatch.stop();
}

bool PtyPort::isOpenElsewhere() const
{
    pollfd descriptor{m_master, 0, 0};
    return ::poll(&descriptor, 1, 0) == 0;
}

// A port that nobody has open is always readable, to its end of file; so reading is watched for only while
// there is a client, and the watch tells when one comes.
void PtyPort::look()
{
    // A client that never stops must not keep the card from everything else.
    constexpr int mostAtOnce = 64;
    for (int i = 0; i < mostAtOnce; ++i) {
        const QByteArray bytes = m_reading ? read() : QByteArray();
        // After reading: whose bytes they are, his coming and the leaving before it are in the news by now.
        noticeClients();
        if (bytes.isEmpty())
            break;
        Q_EMIT received(bytes);
    }
    setReading(m_reading);
}

QByteArray PtyPort::read() const
{
    std::array<char, 4096> buffer{};
    const ssize_t size = ::read(m_master, buffer.data(), buffer.size());
    return size > 0 ? QByteArray(buffer.data(), size) : QByteArray();
}

void PtyPort::noticeClients()
{
    OpenWatch::News news = m_watch->take();
    const bool hadClient = std::exchange(m_hasClient, isOpenElsewhere()) || news.opened;
    // Whoever came between the two looks has not closed the port that he opened.
    if (news.closed && m_hasClient)
        news = m_watch->take(news);
    if (news.reopened || (hadClient && !m_hasClient))
        leave();
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

// What was meant for who left is dropped. With nobody there the line is also made raw again, and commands are
// dropped that were left because their replies were not taken; a client that is there already has its own
// settings.
void PtyPort::leave()
{
    m_unwritten.clear();
    m_writable->setEnabled(false);
    tcflush(m_master, TCOFLUSH);
    if (!m_hasClient)
        setRaw(m_master);
    if (!m_hasClient && !m_reading)
        tcflush(m_master, TCIFLUSH);
    Q_EMIT clientLeft();
}

} // namespace cardemu
