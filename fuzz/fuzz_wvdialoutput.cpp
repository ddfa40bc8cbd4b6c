// SPDX-License-Identifier: GPL-3.0-or-later
// The same events from pieces as from the whole. The first byte sets the pieces' size.
#include "connection/wvdialoutput.h"
#include "require.h"

using namespace corva;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    const qsizetype piece = 1 + data[0] % 32;
    const QByteArray text(reinterpret_cast<const char *>(data) + 1, qsizetype(size) - 1);
    WvdialOutput whole;
    const std::vector<WvdialEvent> expected = whole.feed(text);

    WvdialOutput output;
    std::vector<WvdialEvent> events;
    for (qsizetype at = 0; at < text.size(); at += piece) {
        const auto more = output.feed(QByteArrayView(text).sliced(at, std::min(piece, text.size() - at)));
        events.insert(events.end(), more.begin(), more.end());
    }
    REQUIRE(events == expected);
    REQUIRE(output.finish() == whole.finish());
    for (const WvdialEvent &event : events) {
        REQUIRE(event.number >= 0);
        REQUIRE(event.text.size() <= WvdialOutput::longestLine);
    }
    return 0;
}
