// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/cmserrors.h"
#include "sms/smsfiling.h"
#include "sms/smsreplies.h"

#include <cstdlib>

using namespace corva;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray reply(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const ListedSms &listed : parseSmsList(reply)) {
        // Whatever a card lists is kept with its PDU: nothing that came is dropped.
        const FiledSms filed = fileSms(listed, MessagePlace::Sim, {});
        if (const auto *message = std::get_if<Message>(&filed); message && message->parts.empty())
            abort();
    }
    parseReadSms(reply);
    for (const char *mark : {"+CMT:", "+CBM:", "+JCLAS:"})
        parseReportedPdus(reply, mark);
    parseStoredReports(reply, "+CMTI:");
    parseFill(reply, "SM");
    parseServiceCentre(reply);
    nearestNoticeModes("3,1,2,2,0", reply);
    if (const auto error = cmsErrorIn(reply); error && cmsErrorText(*error).isEmpty())
        abort();
    return 0;
}
