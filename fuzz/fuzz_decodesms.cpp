// SPDX-License-Identifier: GPL-3.0-or-later
// Messages of every kind; the input once as octets, once as the text that a card sends.
#include "pducheck.h"
#include "sms/smsdecoder.h"

using namespace corva;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray hex = asHex(data, size);
    for (const SmsDirection direction : {SmsDirection::FromNetwork, SmsDirection::OnCard})
        checkMessage([direction](const QByteArray &pdu) { return decodeSms(pdu, direction); }, hex);

    SM_PARAM_DECODE record;
    const int characters = SmsDecoder::gsmDecodePdu(hex.constData(), &record);
    REQUIRE(characters == -1 || characters == record.contentStr.size());
    SmsDecoder::fromSctsToDatetime(record.TP_SCTS);

    const QByteArray text(reinterpret_cast<const char *>(data), qsizetype(size));
    const SmsResult asText = decodeSms(text, SmsDirection::OnCard);
    if (const auto *error = std::get_if<PduError>(&asText))
        requireSound(*error, text.size());
    return 0;
}
