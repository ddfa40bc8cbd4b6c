// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSocketNotifier>
#include <QString>
#include <functional>
#include <memory>

namespace cardemu
{

/// Counts how often a device file is open elsewhere, by the kernel's own reports (inotify).
class OpenWatch
{
public:
    /// `changed` is called when reports came in; it is for the caller to look at what they say.
    OpenWatch(const QString &path, std::function<void()> changed);
    ~OpenWatch();
    OpenWatch(const OpenWatch &) = delete;
    OpenWatch &operator=(const OpenWatch &) = delete;

    /// As of now: reports that wait are read first. True where the kernel does not tell.
    bool isOpen();
    /// True once after the last client left, also when another one has come since.
    bool takeLeft();

private:
    void read();

    int m_descriptor = -1;
    bool m_blind = false; ///< reports were lost, or there are none
    int m_opens = 0;
    bool m_left = false;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace cardemu
