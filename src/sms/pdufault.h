// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/pduerror.h"

namespace corva
{

/// What can be wrong with a PDU.
enum class PduFault {
    Empty,
    NotHex,
    HalfOctet,
    EndsEarly,
    LengthPastEnd,
    WrongType,
    HeaderPastData,
    ElementPastHeader,
    NoSuchPart,
    HalfCharacter,
};

PduError pduError(QLatin1StringView field, qsizetype offset, PduFault fault);

} // namespace corva
