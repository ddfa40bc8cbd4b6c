// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/smspdu.h"

namespace corva
{

/// What a data coding scheme says.
struct CodingScheme {
    Alphabet alphabet = Alphabet::Gsm7;
    bool isCompressed = false;
    int messageClass = -1; ///< 0..3, -1 none
    std::optional<MessageWaiting> waiting;
    bool operator==(const CodingScheme &) const = default;
};

/// TP-DCS. The alphabet is bits 3 and 2 in every group but those of waiting messages (1100 to 1110), whose
/// alphabet is that of the group; the reserved value 3 is read as data. 3GPP TS 23.038 4.
CodingScheme codingScheme(quint8 dcs);

/// The scheme of a cell broadcast, and where its text names its language.
struct BroadcastScheme {
    Alphabet alphabet = Alphabet::Gsm7;
    bool isCompressed = false;
    int messageClass = -1;
    QLatin1StringView language;      ///< of the scheme itself, empty when it names none
    bool startsWithLanguage = false; ///< the language's two letters come ahead of the text
    bool hasHeader = false;          ///< a user data header comes ahead of the text
};

/// 3GPP TS 23.038 5.
BroadcastScheme broadcastScheme(quint8 dcs);

} // namespace corva
