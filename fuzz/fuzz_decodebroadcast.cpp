// SPDX-License-Identifier: GPL-3.0-or-later
// Broadcast pages, read by their coding scheme and as 7-bit text.
#include "pducheck.h"
#include "sms/smsdecoder.h"

using namespace corva;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray hex = asHex(data, size);
    const auto result = decodeBroadcast(hex);
    if (const auto *error = std::get_if<PduError>(&result)) {
        requireSound(*error, qsizetype(size));
    } else {
        const auto &page = std::get<BroadcastPage>(result);
        REQUIRE(page.page >= 1 && page.page <= 15 && page.pages >= 1 && page.pages <= 15);
        REQUIRE(page.text.isEmpty() || page.data.isEmpty());
        REQUIRE(!page.text.endsWith(u'\r'));
    }
    SM_PARAM record;
    const int septets = SmsDecoder::Decode_BroadCast_PDU(hex.constData(), &record);
    REQUIRE(septets == (size < 6 ? -1 : std::min(160, int(size - 6) * 8 / 7)));
    return 0;
}
