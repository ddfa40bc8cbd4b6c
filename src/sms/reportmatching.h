// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/messagetable.h"

#include <optional>

namespace corva
{

/// One part of a message.
struct PartPlace {
    QString id;
    int part = 0; ///< index into its `parts`
};

/// The part that a report is about: of those sent to that number under that reference the one that still
/// waits for its report, and was sent nearest to the time that the report names. References are used again
/// after 256 parts, so one sent at another time is not meant. None when there is none.
std::optional<PartPlace> reportedPart(const QList<RecordPtr> &records, const StatusReport &report,
                                      int matchingLength);

/// Enters what the report says. What was delivered stays so.
void applyTo(MessagePart &part, const StatusReport &report);

/// The entry in the box of reports, and the report of such an entry.
Message reportEntry(const StatusReport &report);
StatusReport reportOf(const Message &entry);

/// Reports that came before the reference was known that a part of `sent` has now.
QList<RecordPtr> waitingReports(const QList<RecordPtr> &records, const Message &sent, int matchingLength);

} // namespace corva
