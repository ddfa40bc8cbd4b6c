// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace cardemu
{

/// One byte for each septet: the default alphabet, and behind 0x1B its extension. nullopt when a character is
/// in neither. 3GPP TS 23.038 6.2.1.
std::optional<QByteArray> toSeptets(const QString &text);

/// Eight septets in seven octets, low bits first, behind so many zero bits. 3GPP TS 23.038 6.1.2.1.
QByteArray packSeptets(const QByteArray &septets, int fillBits = 0);

} // namespace cardemu
