// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/messageexport.h"

namespace corva
{

ExportedMessages parseExport(const QByteArray &bytes)
{
    ExportedMessages exported = parseMessagesJson(bytes);
    return exported.isKnown ? exported : parseMessagesCsv(bytes);
}

} // namespace corva
