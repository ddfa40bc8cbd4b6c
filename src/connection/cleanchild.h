// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>

namespace corva
{

/// Undoes what a child would inherit of this process besides descriptors: blocked and ignored signals stay so
/// behind an exec, and the helper's mask would make the resolver file unreadable for others. Between fork and
/// exec: plain system calls alone.
void makeCleanChild();

/// The same, a search path of the system's own, no other environment, and nothing to read or to write.
void prepareSystemChild(QProcess &process);

} // namespace corva
