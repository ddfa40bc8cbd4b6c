// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace cardemu
{

/// "+CSCS": how texts stand on the wire. 3GPP TS 27.007 5.5.
enum class Charset { Ira, Gsm, Ucs2 };

/// UCS2 gives four hex digits for each character; the others keep ASCII and put "?" for the rest and for
/// quotes.
QByteArray toWire(const QString &text, Charset charset);
/// The reverse; hex that is not well formed gives an empty text.
QString fromWire(const QByteArray &bytes, Charset charset);

} // namespace cardemu
