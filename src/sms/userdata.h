// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/codingscheme.h"
#include "sms/octets.h"

namespace corva
{

/// The elements of a user data header that matter here. 3GPP TS 23.040 9.2.3.24.
struct UserDataHeader {
    qsizetype size = 0; ///< octets with the length octet, 0 without a header
    std::optional<Concatenation> concatenation;
    int singleShift = 0; ///< national language identifiers, 0 none
    int lockingShift = 0;
};

/// Reads the header at the start of `data`, whose first octet is `offset` of the PDU. Elements of a length
/// that is not theirs are passed over, except a broken part of a long message, which is a fault.
UserDataHeader readHeader(OctetReader &reader, OctetView data, qsizetype offset);

/// TP-UDL and TP-UD into the members of `sms` that tell of them; whether a header comes first is set there
/// already.
void readUserData(OctetReader &reader, const CodingScheme &scheme, DecodedSms &sms);

/// Text of big-endian code units; half a unit at the end is left out.
QString textOfUcs2(OctetView octets);

} // namespace corva
