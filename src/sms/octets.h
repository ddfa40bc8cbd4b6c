// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/pdufault.h"

#include <QByteArrayView>
#include <QVarLengthArray>
#include <optional>
#include <span>

namespace corva
{

/// The octets of a PDU: any message fits without an allocation.
using Octets = QVarLengthArray<quint8, 256>;
using OctetView = std::span<const quint8>;

/// Upper-case digit of a value 0..15.
constexpr char hexDigit(int value)
{
    return "0123456789ABCDEF"[value & 0x0f];
}

/// Appends the octets of hex text in either case. The error of the first digit that is none, or of a missing
/// one.
std::optional<PduError> readHex(QByteArrayView hex, Octets &octets);

/// Reads octets one after another and never past the end. The first fault stays; whatever is read after it is
/// zero or empty, so that a reader of fields asks once, at its end.
class OctetReader
{
public:
    explicit OctetReader(OctetView octets) : m_octets(octets) {}

    quint8 octet(QLatin1StringView field)
    {
        const OctetView one = octets(field, 1);
        return one.empty() ? quint8(0) : one.front();
    }
    OctetView octets(QLatin1StringView field, qsizetype count)
    {
        if (count > left())
            fail(field, m_offset, PduFault::EndsEarly);
        if (m_error)
            return {};
        m_offset += count;
        return m_octets.subspan(std::size_t(m_offset - count), std::size_t(count));
    }

    qsizetype offset() const { return m_offset; }
    qsizetype left() const { return qsizetype(m_octets.size()) - m_offset; }

    void fail(QLatin1StringView field, qsizetype offset, PduFault fault);
    bool hasFailed() const { return m_error.has_value(); }
    const std::optional<PduError> &error() const { return m_error; }

private:
    OctetView m_octets;
    qsizetype m_offset = 0;
    std::optional<PduError> m_error;
};

} // namespace corva
