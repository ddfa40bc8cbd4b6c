// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever a store's file holds: what was read of it comes back when it is written, and is filed without
// loss.
#include "require.h"
#include "sms/messagefiling.h"
#include "sms/messagexml.h"
#include "sms/reportmatching.h"

using namespace corva;

namespace
{

constexpr int matchingLength = 9;

/// The messages as they are received; returns how many parts were recognised as known.
size_t file(MessageTable &table, const std::vector<Message> &messages)
{
    size_t known = 0;
    for (Message message : messages) {
        message.id = newMessageId();
        message = tidied(std::move(message));
        const size_t parts = message.parts.size();
        const bool isKnown = takeKnownParts(table, message) != nullptr;
        known += parts - message.parts.size();
        if (isKnown)
            continue;
        const RecordPtr begun = longMessageFor(table, message);
        table.put(begun ? joined(begun->message, message) : message);
    }
    return known;
}

size_t partsOf(const MessageTable &table)
{
    size_t parts = 0;
    for (const RecordPtr &record : table.records())
        parts += record->message.parts.size();
    return parts;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const ParsedMessages parsed =
        parseStoreXml(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    QByteArray written = storeXmlHead();
    size_t parts = 0;
    for (const Message &message : parsed.messages) {
        written += messageXml(message);
        parts += message.parts.size();
        (void)message.text();
        (void)message.state();
    }
    const ParsedMessages again = parseStoreXml(written + storeXmlTail());
    REQUIRE(again.problem.isEmpty());
    REQUIRE(again.messages == parsed.messages);

    MessageTable table(matchingLength);
    const size_t known = file(table, parsed.messages);
    REQUIRE(partsOf(table) + known == parts);
    for (const Message &message : parsed.messages)
        (void)reportedPart(table.records(), reportOf(message), matchingLength);
    REQUIRE(mirrored(table, MessagePlace::Sim, parsed.messages, matchingLength).size() <=
            parsed.messages.size());
    QStringList ids;
    for (const RecordPtr &record : table.records()) {
        (void)record->folded();
        ids += record->message.id;
    }
    table.remove(ids);
    REQUIRE(table.records().isEmpty());
    return 0;
}
