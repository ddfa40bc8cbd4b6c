// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace corva
{

/// Whether nobody but the administrator can have put this program here: it is a plain file, neither it nor a
/// folder above it may be written by others, and none is a link.
bool isAdministratorsOwn(const QString &program);

} // namespace corva
