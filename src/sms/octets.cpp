// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/octets.h"

#include <array>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr auto pduField = "PDU"_L1;

/// For each character the value of the digit, shifted; negative for what is no digit.
constexpr std::array<qint16, 256> hexValues(int shift)
{
    std::array<qint16, 256> values{};
    values.fill(-1);
    for (int i = 0; i < 16; ++i) {
        const char digit = hexDigit(i);
        values[quint8(digit)] = qint16(i << shift);
        if (i >= 10)
            values[quint8(digit - 'A' + 'a')] = qint16(i << shift);
    }
    return values;
}

constexpr auto highDigits = hexValues(4);
constexpr auto lowDigits = hexValues(0);

int octetAt(const char *digits)
{
    return highDigits[quint8(digits[0])] | lowDigits[quint8(digits[1])];
}

} // namespace

std::optional<PduError> readHex(QByteArrayView hex, Octets &octets)
{
    if (hex.isEmpty())
        return pduError(pduField, 0, PduFault::Empty);
    const qsizetype whole = hex.size() / 2;
    const qsizetype before = octets.size();
    octets.resize(before + whole);
    const char *digits = hex.data();
    quint8 *out = octets.data() + before;
    for (qsizetype i = 0; i < whole; ++i, digits += 2) {
        const int value = octetAt(digits);
        if (value < 0) {
            octets.resize(before + i);
            return pduError(pduField, i, PduFault::NotHex);
        }
        out[i] = quint8(value);
    }
    if (hex.size() % 2 != 0)
        return pduError(pduField, whole, PduFault::HalfOctet);
    return std::nullopt;
}

void OctetReader::fail(QLatin1StringView field, qsizetype offset, PduFault fault)
{
    if (!m_error)
        m_error = pduError(field, offset, fault);
}

} // namespace corva
