// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>
#include <memory>

namespace corva
{

/// Says at once when ports and sticks come and go, and when the computer wakes up. Lives on the GUI thread;
/// never blocks.
///
/// On `sigPortGone` close the port, on `sigUsbChanged` and `sigResumed` look for the card.
class HotplugMonitor : public QObject
{
    Q_OBJECT

public:
    explicit HotplugMonitor(QObject *parent = nullptr);
    ~HotplugMonitor() override;

    /// Also reports these paths, which udev may know nothing of: pseudo-terminals behind links, "/dev/at". A
    /// link that is put back, even to the same place, counts as gone and come. Replaces the earlier list.
    void watchPorts(const QStringList &paths);

Q_SIGNALS:
    /// A serial port is there ("/dev/ttyUSB2", or a watched path as it was given). Comes once for each port.
    void sigPortAppeared(const QString &devnode);
    /// A serial port is gone. Comes before its descriptor says so, as a rule; not delayed.
    void sigPortGone(const QString &devnode);
    /// Something changed among sticks and ports, and then nothing for a moment: one signal for one plugging.
    void sigUsbChanged();
    /// The computer woke up from suspend. USB may have been without power meanwhile.
    void sigResumed();

private Q_SLOTS:
    void slotPrepareForSleep(bool start);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace corva
