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
    if (m_descriptor < 0 || inotify_add_watch(m_descriptor, name.constData(), IN_OPEN | IN_CLOSE) < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), std::move(changed));
}

OpenWatch::~OpenWatch()
{
    m_notifier.reset();
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

OpenWatch::News OpenWatch::take(News earlier)
{
    News news = earlier;
    alignas(inotify_event) std::array<char, 4096> buffer{};
    for (ssize_t size = 0; (size = ::read(m_descriptor, buffer.data(), buffer.size())) > 0;) {
        for (ssize_t at = 0; at < size;) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            at += static_cast<ssize_t>(sizeof event + event.len);
            const bool opens = (event.mask & IN_OPEN) != 0;
            news.opened = news.opened || opens;
            news.reopened = news.reopened || (opens && news.closed);
            news.closed = news.closed || (event.mask & IN_CLOSE) != 0;
        }
    }
    return news;
}

} // namespace cardemu
