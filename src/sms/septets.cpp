// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/septets.h"

namespace corva
{

void packSeptets(std::span<const quint8> septets, int fillBits, Octets &packed)
{
    quint32 pending = 0;
    int bits = fillBits;
    for (const quint8 septet : septets) {
        pending |= quint32(septet & 0x7f) << bits;
        bits += 7;
        for (; bits >= 8; bits -= 8, pending >>= 8)
            packed.append(quint8(pending));
    }
    if (bits > 0)
        packed.append(quint8(pending));
}

void unpackSeptets(OctetView packed, int fillBits, qsizetype count, Septets &septets)
{
    quint32 pending = 0;
    int bits = -fillBits;
    qsizetype left = count;
    septets.reserve(septets.size() + count);
    for (const quint8 octet : packed) {
        if (left <= 0)
            break;
        pending |= bits < 0 ? quint32(octet) >> -bits : quint32(octet) << bits;
        bits += 8;
        for (; bits >= 7 && left > 0; bits -= 7, pending >>= 7, --left)
            septets.append(quint8(pending & 0x7f));
    }
}

} // namespace corva
