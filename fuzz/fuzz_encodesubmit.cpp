// SPDX-License-Identifier: GPL-3.0-or-later
// Records with anything in them: the encoder validates nothing, and still writes whole octets and leaves its
// bounds alone.
#include "pducheck.h"
#include "sms/submit.h"

#include <algorithm>
#include <cstring>

using namespace corva;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    constexpr size_t headSize = 2 * sizeof(SM_PARAM::SCA) + 8;
    if (size < headSize)
        return 0;
    SM_PARAM record;
    std::memcpy(record.SCA, data, sizeof record.SCA);
    std::memcpy(record.TPA, data + sizeof record.SCA, sizeof record.TPA);
    const uint8_t *flags = data + 2 * sizeof record.SCA;
    record.concatenated = flags[0] & 1;
    record.ucs2Header = flags[1] & 1;
    record.national = flags[2] & 1;
    record.reportPart = flags[3] & 1;
    record.tp_udlength = int8_t(flags[4]) << 8 | flags[5];
    const SubmitSettings settings{int8_t(flags[6]), (flags[7] & 1) != 0, (flags[7] & 2) != 0};
    std::memcpy(record.TP_UD, data + headSize, std::min(sizeof record.TP_UD, size - headSize));
    const QString text = QString::fromLatin1(reinterpret_cast<const char *>(data), qsizetype(size));
    const QByteArray pdu = encodeSubmit(record, text, settings);
    REQUIRE(pdu.size() % 2 == 0 && pdu.size() < 1024);
    REQUIRE(hexOfUcs2(text, record.tp_udlength).size() <= text.size() * 4);
    return 0;
}
