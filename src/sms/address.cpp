// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/address.h"

#include "sms/gsmtext.h"

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr quint8 internationalTelephone = 0x91;
constexpr quint8 typeOfNumber = 0x70;
constexpr quint8 international = 0x10;
/// Not all bits of the type: 0x70, which is reserved, is read as text too.
constexpr quint8 alphanumeric = 0x50;
constexpr qsizetype longestWithPlus = 32;
constexpr int filling = 0x0f;
/// 3GPP TS 23.040 9.1.2.3.
constexpr char16_t numberDigits[] = u"0123456789*#abc";

int digitAt(OctetView octets, qsizetype i)
{
    const quint8 octet = octets[std::size_t(i / 2)];
    return i % 2 == 0 ? octet & 0x0f : octet >> 4;
}

/// Up to the filling.
qsizetype digitsOf(OctetView octets, qsizetype digits)
{
    qsizetype count = 0;
    while (count < digits && digitAt(octets, count) != filling)
        ++count;
    return count;
}

QString number(OctetView octets, qsizetype digits, bool hasPlus = false)
{
    QString text(digits + hasPlus, Qt::Uninitialized);
    QChar *out = text.data();
    if (hasPlus)
        *out++ = u'+';
    for (qsizetype i = 0; i < digits; ++i)
        *out++ = numberDigits[digitAt(octets, i)];
    return text;
}

QString packedText(OctetView octets, qsizetype semiOctets)
{
    Septets septets;
    unpackSeptets(octets, 0, semiOctets * 4 / 7, septets);
    return textOfSeptets(septets, GsmCoding::standard());
}

bool getsPlus(qsizetype digits, quint8 type, PlusRule rule)
{
    if (rule == PlusRule::TypeOfNumber)
        return (type & typeOfNumber) == international;
    return type == internationalTelephone && digits < longestWithPlus;
}

} // namespace

Address readAddress(OctetReader &reader, QLatin1StringView field, PlusRule rule)
{
    const qsizetype start = reader.offset();
    const qsizetype semiOctets = reader.octet(field);
    const quint8 type = reader.octet(field);
    const qsizetype size = (semiOctets + 1) / 2;
    if (size > reader.left())
        reader.fail(field, start, PduFault::LengthPastEnd);
    const OctetView octets = reader.octets(field, size);
    if (reader.hasFailed())
        return {};
    if ((type & alphanumeric) == alphanumeric)
        return {packedText(octets, semiOctets), true};
    const qsizetype digits = digitsOf(octets, semiOctets);
    return {number(octets, digits, getsPlus(digits, type, rule)), false};
}

QString readServiceCentre(OctetReader &reader)
{
    constexpr auto field = "SMSC"_L1;
    const qsizetype start = reader.offset();
    const qsizetype size = reader.octet(field);
    if (size > reader.left())
        reader.fail(field, start, PduFault::LengthPastEnd);
    const OctetView octets = reader.octets(field, size);
    if (octets.empty())
        return {};
    const OctetView packed = octets.subspan(1);
    return number(packed, digitsOf(packed, qsizetype(packed.size()) * 2));
}

} // namespace corva
