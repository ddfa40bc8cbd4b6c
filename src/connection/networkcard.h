// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace corva
{

/// The network interface, e.g. "wwan0", that belongs to the same USB device as a serial port ("/dev/ttyUSB2"
/// or a link to it); empty when there is none. The first by name of several.
QString networkCardOf(const QString &port);

} // namespace corva
