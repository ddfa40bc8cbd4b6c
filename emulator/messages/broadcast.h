// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "messages/segments.h"

#include <QByteArrayList>

namespace cardemu
{

/// What a cell broadcasts.
struct Broadcast {
    QString text = QStringLiteral("Hello");
    Alphabet alphabet = Alphabet::Automatic; ///< Gsm7, Ucs2, or the one of the two that fits
    int channel = 50;                        ///< the message identifier
    int serial = 0;
};

/// The pages as octets, 88 each, filled up with CR; empty when the text does not fit into the alphabet or
/// into 15 pages. 3GPP TS 23.041 9.4.1.
QByteArrayList broadcastPages(const Broadcast &broadcast);

} // namespace cardemu
