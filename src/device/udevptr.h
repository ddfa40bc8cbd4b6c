// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <libudev.h>
#include <memory>
#include <optional>

namespace corva
{

/// Owners of libudev's objects: one reference each.
struct UdevDeleter {
    void operator()(udev *p) const { udev_unref(p); }
    void operator()(udev_device *p) const { udev_device_unref(p); }
    void operator()(udev_enumerate *p) const { udev_enumerate_unref(p); }
    void operator()(udev_monitor *p) const { udev_monitor_unref(p); }
    void operator()(udev_queue *p) const { udev_queue_unref(p); }
};
template <typename T> using UdevPtr = std::unique_ptr<T, UdevDeleter>;

/// An attribute of a device as text without surrounding blanks; empty when it has none. Devices write these
/// texts themselves: control characters are taken out.
QString udevText(udev_device *device, const char *attribute);

/// A whole number attribute of the given base; nullopt when it is absent or no number.
std::optional<int> udevNumber(udev_device *device, const char *attribute, int base = 10);

} // namespace corva
