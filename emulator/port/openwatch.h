// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSocketNotifier>
#include <QString>
#include <functional>
#include <memory>

namespace cardemu
{

/// Tells when a device file is opened and closed, by the kernel's own reports (inotify). Equal reports that
/// wait one behind the other are merged by the kernel, so they cannot be counted.
class OpenWatch
{
public:
    struct News {
        bool opened = false;
        bool closed = false;
        bool reopened = false; ///< closed by one, then opened by another
    };

    /// `changed` is called when there is news to take.
    OpenWatch(const QString &path, std::function<void()> changed);
    ~OpenWatch();
    OpenWatch(const OpenWatch &) = delete;
    OpenWatch &operator=(const OpenWatch &) = delete;

    /// False where the kernel refuses to report; errno says why.
    bool isValid() const { return m_notifier != nullptr; }
    /// What happened since the last call; with `earlier`, since the one before it.
    News take() { return take(News()); }
    News take(News earlier);

private:
    int m_descriptor = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace cardemu
