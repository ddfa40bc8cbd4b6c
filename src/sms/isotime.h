// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

namespace corva
{

/// "2024-05-03T12:34:56.789+02:00", the milliseconds only where there are some: the same moment wherever it
/// is read. Empty for an invalid time. Many times faster than the toolkit's own, of which a large store takes
/// tens of thousands.
QString isoText(const QDateTime &time);
/// That form, and every other of ISO 8601 that the toolkit knows. Invalid for anything else.
QDateTime fromIsoText(QStringView text);

} // namespace corva
