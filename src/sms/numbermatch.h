// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace corva
{

/// What the spellings of one person's number have in common: its last `matchingLength` digits, all of them
/// when it has fewer or the length is 0, so that "+49171234567" and "0171234567" match at 9, and a short code
/// matches itself only. Senders in letters match whatever their case.
QString personKeyOf(const QString &number, int matchingLength);

} // namespace corva
