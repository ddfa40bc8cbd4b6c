// SPDX-License-Identifier: GPL-3.0-or-later
#include "linktest.h"

#include "link/serialthread.h"

#include <QRegularExpression>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

Pty::Pty() : m_fd(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
{
    char name[128] = "";
    if (grantpt(m_fd) == 0 && unlockpt(m_fd) == 0 && ptsname_r(m_fd, name, sizeof name) == 0)
        m_name = QString::fromLatin1(name);
}

void Pty::write(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(m_fd, bytes.data(), size_t(bytes.size()));
        if (written <= 0)
            qFatal("the pseudo-terminal takes nothing");
        bytes = bytes.sliced(written);
    }
}

QByteArray Pty::readUntil(QByteArrayView end)
{
    QByteArray text;
    pollfd watched{m_fd, POLLIN, 0};
    while (!text.endsWith(end) && poll(&watched, 1, 10000) == 1) {
        char byte = 0;
        if (::read(m_fd, &byte, 1) != 1)
            break;
        text.append(byte);
    }
    return text;
}

void Pty::unplug()
{
    if (m_fd >= 0)
        ::close(std::exchange(m_fd, -1));
}

void FakeOwner::note(const char *method, const QString &text)
{
    {
        const std::scoped_lock lock(m_mutex);
        const QString name = QString::fromLatin1(method);
        m_calls.append(text.isEmpty() ? name : u"%1(%2)"_s.arg(name, text));
    }
    if (onCall)
        onCall();
}

QStringList FakeOwner::calls()
{
    const std::scoped_lock lock(m_mutex);
    return m_calls;
}

QStringList FakeOwner::takeCalls()
{
    const std::scoped_lock lock(m_mutex);
    return std::exchange(m_calls, {});
}

namespace
{

std::mutex logMutex;
QStringList logged;

void keepLine(QtMsgType, const QMessageLogContext &, const QString &message)
{
    static const QRegularExpression time(u"^\\d\\d-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d  "_s);
    const std::scoped_lock lock(logMutex);
    const auto match = time.match(message);
    logged.append(match.hasMatch() ? message.sliced(match.capturedLength()) : u'?' + message);
}

} // namespace

LogCapture::LogCapture()
{
    logged.clear();
    qInstallMessageHandler(keepLine);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(nullptr);
}

QStringList LogCapture::lines() const
{
    const std::scoped_lock lock(logMutex);
    return logged;
}

void resetLinkGlobals()
{
    foundPortFlag = false;
    receive_flag = false;
    gManualSearch = gManualSelect = gWaitSearchOrSelectEnd = 0;
    gManualSearchResult = gManualSelectResult = 0;
}
