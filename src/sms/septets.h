// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/octets.h"

namespace corva
{

/// One septet a byte: any message fits without an allocation.
using Septets = QVarLengthArray<quint8, 256>;

/// Octets that `count` septets take behind `fillBits`.
constexpr qsizetype packedSize(qsizetype count, int fillBits = 0)
{
    return (count * 7 + fillBits + 7) / 8;
}

/// Zero bits between a header of so many octets and the next septet boundary, 0..6.
constexpr int fillBitsBehind(qsizetype headerOctets)
{
    return int((7 - headerOctets * 8 % 7) % 7);
}

/// Appends septets, lowest bit first, behind `fillBits` zero bits. 3GPP TS 23.038 6.1.2.1.
void packSeptets(std::span<const quint8> septets, int fillBits, Octets &packed);

/// Appends up to `count` septets that follow `fillBits` bits; as many as the octets hold.
void unpackSeptets(OctetView packed, int fillBits, qsizetype count, Septets &septets);

} // namespace corva
