// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "require.h"
#include "sms/smspdu.h"

/// The input's octets as hex: every bit of it is a bit of the PDU.
inline QByteArray asHex(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)).toHex();
}

inline void requireSound(const corva::PduError &error, qsizetype octets)
{
    REQUIRE(!error.field.isEmpty() && !error.reason.isEmpty());
    REQUIRE(error.offset >= 0 && error.offset <= octets);
}

inline void requireSound(const corva::Concatenation &part)
{
    REQUIRE(part.sequence >= 1 && part.sequence <= part.total && part.total <= 255);
    REQUIRE(part.reference >= 0 && part.reference <= (part.is16Bit ? 0xffff : 0xff));
}

inline void requireSound(const corva::DecodedSms &sms, qsizetype octets)
{
    REQUIRE(sms.tpduLength > 0 && sms.tpduLength < octets);
    REQUIRE(sms.text.size() <= 255 && sms.data.size() <= 255);
    REQUIRE(sms.text.isEmpty() || sms.data.isEmpty());
    REQUIRE(!sms.hasCompressed || sms.text.isEmpty());
    REQUIRE(sms.messageClass >= -1 && sms.messageClass <= 3);
    REQUIRE(!sms.time || sms.time->isValid());
    if (sms.concatenation)
        requireSound(*sms.concatenation);
}

/// A value or an error, each sound; the same for the other letter case.
template <typename Decode> void checkMessage(Decode decode, const QByteArray &hex)
{
    const corva::SmsResult result = decode(hex);
    REQUIRE(decode(hex.toUpper()) == result);
    if (const auto *error = std::get_if<corva::PduError>(&result))
        requireSound(*error, hex.size() / 2);
    else
        requireSound(std::get<corva::DecodedSms>(result), hex.size() / 2);
}
