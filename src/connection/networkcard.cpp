// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/networkcard.h"

#include "device/udevptr.h"

#include <QFile>
#include <QStringList>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// Belongs to `device`, as libudev has it.
udev_device *usbDeviceAbove(udev_device *device)
{
    return udev_device_get_parent_with_subsystem_devtype(device, "usb", "usb_device");
}

} // namespace

QString networkCardOf(const QString &port)
{
    struct stat status = {};
    if (stat(QFile::encodeName(port).constData(), &status) != 0 || !S_ISCHR(status.st_mode))
        return {};
    const UdevPtr<udev> context(udev_new());
    const UdevPtr<udev_device> tty(udev_device_new_from_devnum(context.get(), 'c', status.st_rdev));
    udev_device *usb = tty ? usbDeviceAbove(tty.get()) : nullptr;
    if (!usb)
        return {};

    const UdevPtr<udev_enumerate> search(udev_enumerate_new(context.get()));
    udev_enumerate_add_match_subsystem(search.get(), "net");
    udev_enumerate_add_match_parent(search.get(), usb);
    udev_enumerate_scan_devices(search.get());
    QStringList names;
    udev_list_entry *entry = nullptr;
    udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(search.get())) names +=
        QString::fromUtf8(udev_list_entry_get_name(entry)).section(u'/', -1);
    names.sort();
    return names.value(0);
}

} // namespace corva
