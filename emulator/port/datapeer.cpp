// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/datapeer.h"

#include <QTimer>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace cardemu
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

DataPeer::~DataPeer()
{
    closeLine();
    m_process.disconnect(this);
    m_process.kill();
    m_process.waitForFinished();
}

Complaint DataPeer::start(const QString &command)
{
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return u"no socket: "_s + QString::fromLocal8Bit(std::strerror(errno));
    m_line = ends[0];
    fcntl(m_line, F_SETFL, O_NONBLOCK);
    // Between fork and exec: the program's end of the line, and the signals that this program keeps blocked.
    m_process.setChildProcessModifier([end = ends[1]] {
        dup2(end, STDIN_FILENO);
        dup2(end, STDOUT_FILENO);
        sigset_t none;
        sigemptyset(&none);
        sigprocmask(SIG_SETMASK, &none, nullptr);
    });
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
    m_process.setInputChannelMode(QProcess::ForwardedInputChannel);
    m_process.start(u"/bin/sh"_s, {u"-c"_s, u"exec "_s + command});
    ::close(ends[1]);
    m_readable = std::make_unique<QSocketNotifier>(m_line, QSocketNotifier::Read);
    m_writable = std::make_unique<QSocketNotifier>(m_line, QSocketNotifier::Write);
    m_writable->setEnabled(false);
    connect(m_readable.get(), &QSocketNotifier::activated, this, &DataPeer::read);
    connect(m_writable.get(), &QSocketNotifier::activated, this, &DataPeer::flush);
    return {};
}

void DataPeer::hangUp()
{
    disconnect();
    closeLine();
    if (m_process.state() == QProcess::NotRunning) {
        deleteLater();
        return;
    }
    connect(&m_process, &QProcess::finished, this, &QObject::deleteLater);
    m_process.terminate();
    QTimer::singleShot(3s, &m_process, &QProcess::kill);
}

void DataPeer::closeLine()
{
    m_readable.reset();
    m_writable.reset();
    if (m_line >= 0)
        ::close(m_line);
    m_line = -1;
    m_unwritten.clear();
}

void DataPeer::write(const QByteArray &bytes)
{
    if (m_line < 0)
        return;
    m_unwritten += bytes;
    flush();
}

void DataPeer::setReading(bool reading)
{
    if (m_readable)
        m_readable->setEnabled(reading);
}

void DataPeer::read()
{
    std::array<char, 16384> buffer{};
    const ssize_t size = ::read(m_line, buffer.data(), buffer.size());
    if (size > 0)
        Q_EMIT received(QByteArray(buffer.data(), size));
    else if (size == 0 || (errno != EAGAIN && errno != EINTR))
        Q_EMIT ended();
}

void DataPeer::flush()
{
    while (!m_unwritten.isEmpty()) {
        const ssize_t size =
            ::send(m_line, m_unwritten.constData(), static_cast<size_t>(m_unwritten.size()), MSG_NOSIGNAL);
        if (size <= 0)
            break;
        m_unwritten.remove(0, size);
    }
    m_writable->setEnabled(!m_unwritten.isEmpty());
    if (m_unwritten.isEmpty())
        Q_EMIT flushed();
}

} // namespace cardemu
