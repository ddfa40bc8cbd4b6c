// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "atfields.h"
#include "cardstate.h"

namespace corva
{

/// "+CRSM: 144,0,<hex>": the SIM's file 6F46 (EF_SPN), a display condition and up to 16 octets of name; an
/// empty name where the file holds none. 3GPP TS 31.102 4.2.12.
ReplyResult<SimProvider> parseProvider(const QByteArray &reply);

/// A text as SIM files keep it, an octet a character of the GSM alphabet or UCS2 in one of the three forms
/// 80, 81 and 82, filled up with FF. What people cannot read is left out. ETSI TS 102 221 annex A, 3GPP
/// TS 23.038 6.2.1.
QString decodeSimText(const QByteArray &octets);

} // namespace corva
