// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/septets.h"

#include <QtEndian>
#include <algorithm>

namespace corva
{

namespace
{

/// The first eight octets, or as many as there are, the first one lowest.
quint64 bitsAt(OctetView octets)
{
    if (octets.size() >= sizeof(quint64))
        return qFromLittleEndian<quint64>(octets.data());
    quint64 bits = 0;
    for (std::size_t i = 0; i < octets.size(); ++i)
        bits |= quint64(octets[i]) << (8 * i);
    return bits;
}

} // namespace

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
    const qsizetype held = (qsizetype(packed.size()) * 8 - fillBits) / 7;
    const qsizetype before = septets.size();
    const qsizetype wanted = std::clamp<qsizetype>(count, 0, std::max<qsizetype>(held, 0));
    septets.resize(before + wanted);
    quint8 *out = septets.data() + before;
    qsizetype left = wanted;
    // Eight septets are 56 bits: with the fill bits they lie within eight octets.
    for (; left >= 8; left -= 8, packed = packed.subspan(7)) {
        quint64 bits = bitsAt(packed) >> fillBits;
        for (int i = 0; i < 8; ++i, bits >>= 7)
            *out++ = bits & 0x7f;
    }
    for (quint64 bits = bitsAt(packed) >> fillBits; left > 0; --left, bits >>= 7)
        *out++ = bits & 0x7f;
}

} // namespace corva
