// SPDX-License-Identifier: GPL-3.0-or-later
// The reader, fed in chunks, against the rules applied byte by byte. The first byte sets the chunks' size,
// and whether an error of a message operation ends a reply, too.
#include "byterules.h"
#include "link/replyreader.h"
#include "require.h"

using corva::ReplyReader;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1 || size > 4096)
        return 0;
    const qsizetype chunk = 1 + data[0] % 32;
    const QByteArray stream(reinterpret_cast<const char *>(data) + 1, qsizetype(size) - 1);
    const bool endsOnCmsError = data[0] & 0x80;
    const byterules::Outcome expected = byterules::read(stream, endsOnCmsError);

    ReplyReader reader(endsOnCmsError ? ReplyReader::Also::CmsError : ReplyReader::Also::Nothing);
    byterules::Outcome actual;
    while (!actual.isComplete && actual.consumed < stream.size()) {
        const qsizetype length = std::min(chunk, stream.size() - actual.consumed);
        const auto progress = reader.feed(QByteArrayView(stream).sliced(actual.consumed, length));
        REQUIRE(progress.consumed >= 0 && progress.consumed <= length);
        actual.consumed += progress.consumed;
        actual.isComplete = progress.status == ReplyReader::Status::Complete;
    }
    actual.reply = reader.reply();
    REQUIRE(actual == expected);
    return 0;
}
