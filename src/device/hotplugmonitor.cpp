// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/hotplugmonitor.h"

#include "device/portwatcher.h"
#include "device/udevptr.h"
#include "shell/logging.h"

#include <QDBusConnection>
#include <QFile>
#include <QSet>
#include <QSocketNotifier>
#include <QTimer>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

/// A card brings some twenty events within a tenth of a second; the search may begin when they are over.
constexpr auto settleTime = 150ms;

} // namespace

class HotplugMonitor::Private
{
public:
    explicit Private(HotplugMonitor *owner) : q(owner)
    {
        settle.setSingleShot(true);
        settle.setInterval(settleTime);
        connect(&settle, &QTimer::timeout, q, &HotplugMonitor::sigUsbChanged);
        connect(&watcher, &PortWatcher::sigAppeared, q, [this](const QString &port) { appeared(port); });
        connect(&watcher, &PortWatcher::sigGone, q, [this](const QString &port) { gone(port); });
    }

    void listenToUdev()
    {
        context.reset(udev_new());
        monitor.reset(context ? udev_monitor_new_from_netlink(context.get(), "udev") : nullptr);
        if (!monitor || udev_monitor_filter_add_match_subsystem_devtype(monitor.get(), "tty", nullptr) < 0 ||
            udev_monitor_filter_add_match_subsystem_devtype(monitor.get(), "usb", "usb_device") < 0 ||
            udev_monitor_enable_receiving(monitor.get()) < 0) {
            qCWarning(lcDevice).noquote() << logTime() + u"plugging and unplugging cannot be watched"_s;
            monitor.reset();
            return;
        }
        notifier =
            std::make_unique<QSocketNotifier>(udev_monitor_get_fd(monitor.get()), QSocketNotifier::Read);
        connect(notifier.get(), &QSocketNotifier::activated, q, [this] { readEvents(); });
    }

    /// All that wait; the socket does not block.
    void readEvents()
    {
        while (const UdevPtr<udev_device> device{udev_monitor_receive_device(monitor.get())})
            handle(device.get());
    }

    void handle(udev_device *device)
    {
        const QByteArrayView action(udev_device_get_action(device));
        const QString devnode = QFile::decodeName(udev_device_get_devnode(device));
        const bool isTty = QByteArrayView(udev_device_get_subsystem(device)) == "tty";
        const bool isRemoved = action == "remove";
        if (action != "add" && !isRemoved)
            return;
        if (!isTty || devnode.isEmpty())
            settle.start();
        else if (isRemoved)
            gone(devnode);
        else
            appeared(devnode);
    }

    void appeared(const QString &port)
    {
        settle.start();
        Q_EMIT q->sigPortAppeared(port);
    }

    void gone(const QString &port)
    {
        settle.start();
        Q_EMIT q->sigPortGone(port);
    }

    HotplugMonitor *q;
    UdevPtr<udev> context;
    UdevPtr<udev_monitor> monitor;
    std::unique_ptr<QSocketNotifier> notifier;
    PortWatcher watcher;
    QTimer settle;
};

HotplugMonitor::HotplugMonitor(QObject *parent) : QObject(parent), d(std::make_unique<Private>(this))
{
    d->listenToUdev();
    // Without a system bus nobody tells of suspend; the card is then found again by its udev events alone.
    QDBusConnection::systemBus().connect(u"org.freedesktop.login1"_s, u"/org/freedesktop/login1"_s,
                                         u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s, this,
                                         SLOT(slotPrepareForSleep(bool)));
}

HotplugMonitor::~HotplugMonitor() = default;

void HotplugMonitor::watchPorts(const QStringList &paths)
{
    // udev tells of the kernel's own names, and only once their rights are set.
    QStringList others = paths;
    others.removeIf([](const QString &path) {
        return path.startsWith("/dev/tty"_L1) || path.startsWith("/dev/rfcomm"_L1);
    });
    d->watcher.watch(others);
}

void HotplugMonitor::slotPrepareForSleep(bool start)
{
    if (!start)
        Q_EMIT sigResumed();
}

} // namespace corva
