// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/gsmtext.h"
#include "sms/smparam.h"
#include "sms/smspdu.h"

#include <vector>

namespace corva
{

/// How text may be coded.
struct TextCoding {
    /// Identifier of the national language whose tables may be used: 1 Turkish, 2 Spanish, 3 Portuguese, 0
    /// none. 3GPP TS 23.038 6.2.1.2.4.
    int language = 0;

    /// By the value of the key "specialcode": any other text than the three names is Turkish.
    static TextCoding fromSpecialCode(const QString &value);
};

/// A text cut into the parts in which it is sent.
struct SplitText {
    /// The total of a long message is one octet.
    static constexpr int mostParts = 255;

    Alphabet alphabet = Alphabet::Gsm7; ///< Gsm7 or Ucs2
    bool isNational = false;            ///< the parts name a national table in their header
    bool isLocking = false;     ///< that table stands for the default one, otherwise for the extension
    int languageCode = 0;       ///< its language, 0 when not national
    std::vector<QString> parts; ///< at least one; no escape and no surrogate pair is torn
    int length = 0;             ///< septets with escapes counted, or UTF-16 code units
    int formulaParts = 1;       ///< as the counter shows it; a message may need one more
    QString whyUcs2;            ///< the first character that no table carries

    bool isSendable() const { return parts.size() <= mostParts; }
    bool operator==(const SplitText &) const = default;
};

/// Chooses the alphabet, counts and cuts: the default alphabet if it will do, then the national tables (the
/// one that takes less room), else UCS2.
SplitText splitText(const QString &text, const TextCoding &coding);

/// The tables that the septets of such a text are made with.
GsmCoding gsmCodingOf(const SplitText &split);

/// The record of part `index` for the encoder, to be made anew for each sending. `number` is checked: digits
/// behind at most one "+", 15 characters; `serviceCentre` is digits only. A report is asked for on the last
/// part only. The text for the encoder is `split.parts[index]`, its Unicode flag `split.alphabet ==
/// Alphabet::Ucs2`.
SM_PARAM smParamFor(const SplitText &split, int index, const QString &number, const QString &serviceCentre,
                    int concatReference, bool asksReport);

} // namespace corva
