// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/openwatch.h"

#include <QFile>
#include <array>
#include <cstring>
#include <sys/inotify.h>
#include <unistd.h>
#include <utility>

namespace cardemu
{

OpenWatch::OpenWatch(const QString &path, std::function<void()> changed)
    : m_descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    const QByteArray name = QFile::encodeName(path);
    m_blind = m_descriptor < 0 || inotify_add_watch(m_descriptor, name.constData(), IN_OPEN | IN_CLOSE) < 0;
    if (m_blind)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this, changed = std::move(changed)] {
                         read();
                         changed();
                     });
}

OpenWatch::~OpenWatch()
{
    m_notifier.reset();
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

bool OpenWatch::isOpen()
{
    read();
    return m_blind || m_opens > 0;
}

bool OpenWatch::takeLeft()
{
    read();
    return std::exchange(m_left, false);
}

void OpenWatch::read()
{
    alignas(inotify_event) std::array<char, 4096> buffer{};
    for (;;) {
        const ssize_t size = m_descriptor < 0 ? -1 : ::read(m_descriptor, buffer.data(), buffer.size());
        if (size <= 0)
            return;
        for (ssize_t at = 0; at < size;) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            m_opens += (event.mask & IN_OPEN) != 0 ? 1 : 0;
            m_opens -= (event.mask & IN_CLOSE) != 0 ? 1 : 0;
            m_left = m_left || m_opens == 0;
            m_blind = m_blind || (event.mask & IN_Q_OVERFLOW) != 0;
            at += static_cast<ssize_t>(sizeof event + event.len);
        }
    }
}

} // namespace cardemu
