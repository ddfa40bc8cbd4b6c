// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardstate.h"

namespace corva
{

CardFamily familyFromText(const QString &text)
{
    if (text.startsWith(QLatin1StringView("TD-SCDMA")))
        return CardFamily::TdScdma;
    return text.startsWith(QLatin1StringView("CDMA")) ? CardFamily::Cdma : CardFamily::Wcdma;
}

} // namespace corva
