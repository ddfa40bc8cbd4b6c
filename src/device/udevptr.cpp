// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/udevptr.h"

#include "device/plaintext.h"

namespace corva
{

QString udevText(udev_device *device, const char *attribute)
{
    return plainText(QString::fromUtf8(udev_device_get_sysattr_value(device, attribute)));
}

std::optional<int> udevNumber(udev_device *device, const char *attribute, int base)
{
    bool ok = false;
    const int number = udevText(device, attribute).toInt(&ok, base);
    return ok ? std::optional(number) : std::nullopt;
}

} // namespace corva
