// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/endsignals.h"

#include <QSocketNotifier>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace corva
{

namespace
{

constexpr std::array endingSignals{SIGTERM, SIGINT, SIGHUP};

std::atomic<int> writeEnd = -1;

void tell(int)
{
    // Nothing else is safe here; a full pipe has told already.
    const int savedErrno = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, &byte, 1);
    errno = savedErrno;
}

std::array<struct sigaction, endingSignals.size()> earlier;

void takeOver()
{
    struct sigaction action = {};
    action.sa_handler = tell;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < endingSignals.size(); ++i)
        sigaction(endingSignals.at(i), &action, &earlier.at(i));
}

void giveBack()
{
    for (std::size_t i = 0; i < endingSignals.size(); ++i)
        sigaction(endingSignals.at(i), &earlier.at(i), nullptr);
}

} // namespace

EndSignals::EndSignals(QObject *parent) : QObject(parent)
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return; // the signals end the program at once, as they do in any other
    m_descriptor = ends[0];
    writeEnd = ends[1];
    auto *notifier = new QSocketNotifier(m_descriptor, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &EndSignals::takeSignals);
    takeOver();
}

EndSignals::~EndSignals()
{
    if (m_descriptor < 0)
        return;
    giveBack();
    ::close(writeEnd.exchange(-1));
    ::close(m_descriptor);
}

void EndSignals::takeSignals()
{
    std::array<char, 16> bytes{};
    while (::read(m_descriptor, bytes.data(), bytes.size()) > 0) {
    }
    Q_EMIT sigEnd();
}

} // namespace corva
