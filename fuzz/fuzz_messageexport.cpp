// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever file is imported: what was read of it comes back when it is exported in the same form.
#include "require.h"
#include "sms/messageexport.h"

using namespace corva;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const ExportedMessages json = parseMessagesJson(bytes);
    REQUIRE(json.isKnown || json.messages.empty());
    const ExportedMessages jsonAgain = parseMessagesJson(messagesJson(json.messages));
    REQUIRE(jsonAgain.messages == json.messages && jsonAgain.unreadable == 0);

    const ExportedMessages csv = parseMessagesCsv(bytes);
    REQUIRE(csv.isKnown || csv.messages.empty());
    const ExportedMessages csvAgain = parseMessagesCsv(messagesCsv(csv.messages));
    REQUIRE(csvAgain.messages == csv.messages && csvAgain.unreadable == 0);
    return 0;
}
