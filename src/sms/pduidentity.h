// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace corva
{

/// What two copies of one received PDU have in common: its TPDU in upper-case hex, without the service
/// centre's address ahead of it and, in an SMS-DELIVER, without TP-MMS, which tells of the queue at the
/// service centre and may differ when a part is sent again. What is no such hex is its own identity.
/// 3GPP TS 23.040 9.2.2.1, 9.2.3.2.
QString pduIdentity(const QString &pdu);

} // namespace corva
