// SPDX-License-Identifier: GPL-3.0-or-later
// Status reports.
#include "pducheck.h"
#include "sms/smsdecoder.h"

using namespace corva;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray hex = asHex(data, size);
    checkMessage(&decodeStatusReport, hex);
    SM_PARAM_DECODE record;
    if (SmsDecoder::STATUS_REPORT_PDU(hex.constData(), &record) == 1)
        REQUIRE(record.dischargeTime.size() == 14);
    SmsDecoder::GetDataTime(record.dischargeTime, true, true);
    return 0;
}
