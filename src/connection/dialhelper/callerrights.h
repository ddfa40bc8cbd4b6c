// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>
#include <sys/types.h>

namespace corva
{

/// Who asked for the helper: the user that pkexec names, else the one who started it. nullopt when pkexec's
/// word is no number.
std::optional<uid_t> callerOf(const char *pkexecUid);

/// The device file of a serial port, with every link followed, when `caller` may read and write it himself.
/// An empty text for everything else: no port, no terminal, a console, another's port.
QString portOfCaller(const QString &port, uid_t caller);

} // namespace corva
