// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace corva
{

/// A text that a device or another process made up, fit for a line of plain text: no control or unprintable
/// characters (direction marks are such), single blanks, at most 64 characters.
QString plainText(const QString &text);

} // namespace corva
