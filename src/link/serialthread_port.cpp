// SPDX-License-Identifier: GPL-3.0-or-later
#include "serialthread.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

using namespace std::chrono;

namespace
{

/// 115200 8N1 raw. The input flags are exactly XON/XOFF, or left alone.
void setLine(termios &line, bool softFlowControl)
{
    line.c_cflag = CS8 | CREAD | HUPCL | CRTSCTS;
    if (softFlowControl)
        line.c_iflag = IXON | IXOFF;
    line.c_oflag = 0;
    line.c_lflag &= ~tcflag_t(ICANON | ISIG | ECHO | ECHOE | ECHOK);
    std::memset(line.c_cc, 0, sizeof line.c_cc);
    line.c_cc[VMIN] = 1;
    line.c_cc[VTIME] = 0;
    cfsetispeed(&line, B115200);
    cfsetospeed(&line, B115200);
}

bool isCharacterDevice(const QByteArray &path)
{
    struct stat info {
    };
    if (stat(path.constData(), &info) != 0)
        return false;
    if (!S_ISCHR(info.st_mode))
        errno = ENOTTY;
    return S_ISCHR(info.st_mode);
}

} // namespace

int SerialThread::openPort(const QString &name)
{
    return openWith(name, true);
}

int SerialThread::openPort(const QString &name, Claim claim)
{
    return openWith(name, true, claim);
}

int SerialThread::openPortWithoutSoftFlowControl(const QString &name)
{
    return openWith(name, false);
}

int SerialThread::openWith(const QString &name, bool softFlowControl, Claim claim)
{
    const QByteArray path = name.toLocal8Bit();
    if (!isCharacterDevice(path)) // truncating would empty a file that a wrong setting names
        return closePortAbnormal(-1, "open", errno);
    const int fd = ::open(path.constData(), O_RDWR | O_NOCTTY | O_TRUNC | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return closePortAbnormal(fd, "open", errno);
    if (const int error = claim ? claim(fd) : 0)
        return closePortAbnormal(fd, "claim", error);
    termios line{};
    if (tcgetattr(fd, &line) != 0)
        return closePortAbnormal(fd, "tcgetattr", errno);
    setLine(line, softFlowControl);
    if (tcsetattr(fd, TCSANOW, &line) != 0)
        return closePortAbnormal(fd, "tcsetattr", errno);
    const int flags = fcntl(fd, F_GETFL);
    if (flags < 0)
        return closePortAbnormal(fd, "fcntl(GETFL)", errno);
    if (fcntl(fd, F_SETFL, flags & ~O_NONBLOCK) < 0)
        return closePortAbnormal(fd, "fcntl(SETFL)", errno);
    m_ahead.clear();
    m_portLost = false;
    m_fd = fd;
    return fd;
}

bool SerialThread::closePortNormal(int fd)
{
    if (fd < 0)
        return false;
    tcflush(fd, TCIOFLUSH); // closing would wait for a device that takes no data
    ::close(fd);
    if (fd == m_fd)
        m_ahead.clear();
    return true;
}

int SerialThread::closePortAbnormal(int fd, const char *, int err)
{
    if (fd >= 0)
        ::close(fd);
    errno = err;
    return -1;
}

void SerialThread::forgetPort()
{
    m_fd = -1;
    m_ahead.clear();
}

/// Waits for `events` on `fd`; a stop request ends the wait as a failure.
SerialThread::Wait SerialThread::waitFor(int fd, short events, int milliseconds)
{
    const auto end = steady_clock::now() + std::chrono::milliseconds(milliseconds);
    for (;;) {
        pollfd watched[] = {{fd, events, 0}, {m_stopEvent, POLLIN, 0}};
        const auto left = ceil<std::chrono::milliseconds>(end - steady_clock::now()).count();
        const int ready = poll(watched, 2, milliseconds < 0 ? -1 : int(std::max<long>(left, 0)));
        if (ready < 0 && errno == EINTR)
            continue;
        if ((watched[0].revents & POLLNVAL) && fd == m_fd)
            m_portLost = true; // closed behind our back
        if (ready < 0 || m_stop || (watched[0].revents & POLLNVAL))
            return Wait::Failed;
        if (watched[0].revents)
            return Wait::Ready;
        if (ready == 0)
            return Wait::Silent;
    }
}

int SerialThread::writePort(int fd, const char *data, int len)
{
    if (fd <= 0 || waitFor(fd, POLLOUT, -1) != Wait::Ready)
        return -1;
    ssize_t written = 0;
    do {
        written = ::write(fd, data, std::size_t(len));
    } while (written < 0 && errno == EINTR);
    if (written < 0 && fd == m_fd && (errno == EIO || errno == ENXIO || errno == ENODEV))
        m_portLost = true;
    return int(written);
}

int SerialThread::sendData(void *data, int len)
{
    return writePort(m_fd, static_cast<const char *>(data), len);
}

int SerialThread::readDataWaiting()
{
    int waiting = 0;
    if (ioctl(m_fd, FIONREAD, &waiting) != 0)
        return 1;
    return waiting + int(m_ahead.size());
}

/// One `read`, taken up again after a signal. The end of the device is remembered.
int SerialThread::readFrom(int fd, char *buf, int len)
{
    ssize_t got = 0;
    do {
        got = ::read(fd, buf, std::size_t(len));
    } while (got < 0 && errno == EINTR);
    if (got <= 0 && fd == m_fd)
        m_portLost = true;
    return int(got);
}

/// One read into the buffer of bytes read ahead. False at the end of the device.
bool SerialThread::fillBuffer(int fd)
{
    char chunk[4096];
    const int got = readFrom(fd, chunk, sizeof chunk);
    if (got > 0)
        m_ahead.append(chunk, got);
    return got > 0;
}

/// One chunk: what was read ahead on the AT port first, then the descriptor.
int SerialThread::readSome(int fd, char *buf, int len)
{
    if (fd != m_fd || m_ahead.isEmpty())
        return readFrom(fd, buf, len);
    const int count = int(std::min<qsizetype>(len, m_ahead.size()));
    std::memcpy(buf, m_ahead.constData(), std::size_t(count));
    m_ahead.remove(0, count);
    return count;
}

int SerialThread::readData(void *buf, int len)
{
    return readAll(m_fd, static_cast<char *>(buf), len);
}

int SerialThread::readAll(int fd, char *buf, int len)
{
    if (fd < 1)
        return -1;
    int total = 0;
    while (total < len) {
        const int got = readSome(fd, buf + total, len - total);
        if (got < 0)
            return -1;
        if (got == 0)
            break;
        total += got;
    }
    return total;
}

int SerialThread::readLine(int fd, char *buf, int len)
{
    if (fd < 1)
        return -1;
    int total = 0;
    while (total < len) {
        const int got = readSome(fd, buf + total, len - total);
        if (got < 0)
            return -1;
        if (got == 0 || buf[total] == 'n')
            break;
        total += got;
    }
    return total;
}
