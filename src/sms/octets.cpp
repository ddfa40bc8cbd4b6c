// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/octets.h"

#include <array>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr char digits[] = "0123456789ABCDEF";
constexpr auto pduField = "PDU"_L1;

constexpr std::array<qint8, 256> makeHexValues()
{
    std::array<qint8, 256> values{};
    values.fill(-1);
    for (int i = 0; i < 16; ++i) {
        values[quint8(digits[i])] = qint8(i);
        if (i >= 10)
            values[quint8(digits[i] - 'A' + 'a')] = qint8(i);
    }
    return values;
}

constexpr auto hexValues = makeHexValues();

} // namespace

int hexValue(char digit)
{
    return hexValues[quint8(digit)];
}

char hexDigit(int value)
{
    return digits[value & 0x0f];
}

std::optional<PduError> readHex(QByteArrayView hex, Octets &octets)
{
    if (hex.isEmpty())
        return pduError(pduField, 0, PduFault::Empty);
    const qsizetype whole = hex.size() / 2;
    octets.reserve(octets.size() + whole);
    for (qsizetype i = 0; i < whole; ++i) {
        const int value = hexValue(hex[2 * i]) * 16 | hexValue(hex[2 * i + 1]);
        if (value < 0)
            return pduError(pduField, i, PduFault::NotHex);
        octets.append(quint8(value));
    }
    if (hex.size() % 2 != 0)
        return pduError(pduField, whole, PduFault::HalfOctet);
    return std::nullopt;
}

quint8 OctetReader::octet(QLatin1StringView field)
{
    const OctetView one = octets(field, 1);
    return one.empty() ? quint8(0) : one.front();
}

OctetView OctetReader::octets(QLatin1StringView field, qsizetype count)
{
    if (m_error)
        return {};
    if (count > left()) {
        fail(field, m_offset, PduFault::EndsEarly);
        return {};
    }
    const OctetView read = m_octets.subspan(std::size_t(m_offset), std::size_t(count));
    m_offset += count;
    return read;
}

void OctetReader::fail(QLatin1StringView field, qsizetype offset, PduFault fault)
{
    if (!m_error)
        m_error = pduError(field, offset, fault);
}

} // namespace corva
