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

QString number(OctetView octets, qsizetype digits)
{
    QString text;
    text.reserve(digits + 1); // the caller may put a "+" before it
    for (qsizetype i = 0; i < digits; ++i) {
        const quint8 octet = octets[std::size_t(i / 2)];
        const int digit = i % 2 == 0 ? octet & 0x0f : octet >> 4;
        if (digit == filling)
            break;
        text += QChar(numberDigits[digit]);
    }
    return text;
}

QString packedText(OctetView octets, qsizetype semiOctets)
{
    Septets septets;
    unpackSeptets(octets, 0, semiOctets * 4 / 7, septets);
    return textOfSeptets(septets, GsmCoding::standard());
}

bool getsPlus(const QString &number, quint8 type, PlusRule rule)
{
    if (rule == PlusRule::TypeOfNumber)
        return (type & typeOfNumber) == international;
    return type == internationalTelephone && number.size() < longestWithPlus;
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
    QString text = number(octets, semiOctets);
    if (getsPlus(text, type, rule))
        text.prepend(u'+');
    return {text, false};
}

QString readServiceCentre(OctetReader &reader)
{
    constexpr auto field = "SMSC"_L1;
    const qsizetype start = reader.offset();
    const qsizetype size = reader.octet(field);
    if (size > reader.left())
        reader.fail(field, start, PduFault::LengthPastEnd);
    const OctetView octets = reader.octets(field, size);
    return octets.empty() ? QString() : number(octets.subspan(1), (size - 1) * 2);
}

} // namespace corva
