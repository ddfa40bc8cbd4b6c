// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/octets.h"

#include <QString>

namespace corva
{

struct Address {
    QString text;
    bool isAlphanumeric = false;
};

/// Which types of number get a "+": the rules of messages and of status reports differ.
enum class PlusRule {
    ExactType,    ///< type octet 0x91, and no longer than 32 characters with it
    TypeOfNumber, ///< "international", whatever the numbering plan
};

/// Length in semi-octets, type, digits or packed text. Filling ends a number early. 3GPP TS 23.040 9.1.2.5.
Address readAddress(OctetReader &reader, QLatin1StringView field, PlusRule rule);

/// Length in octets, type, digits; empty when the length is 0. Never with "+". 3GPP TS 24.011 8.2.5.1.
QString readServiceCentre(OctetReader &reader);

} // namespace corva
