// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <array>

namespace corva
{

/// A table of the 7-bit alphabet: a character for each septet, 0 where there is none.
using GsmTable = std::array<char16_t, 128>;

/// The septet behind which the next one is of the extension table.
constexpr quint8 gsmEscape = 0x1b;

/// National language identifiers. 3GPP TS 23.038 6.2.1.2.4.
enum GsmLanguage {
    DefaultLanguage,
    Turkish,
    Spanish,
    Portuguese,
    Bengali,
    Gujarati,
    Hindi,
    Kannada,
    Malayalam,
    Oriya,
    Punjabi,
    Tamil,
    Telugu,
    Urdu,
};

/// The locking shift table of a language, which stands for the default table; the default table itself for a
/// language that has none (Spanish) or is unknown. 3GPP TS 23.038 6.2.1, A.3.
const GsmTable &gsmLockingTable(int language);

/// The single shift table of a language, which stands for the extension table; the default one for an unknown
/// language. 3GPP TS 23.038 6.2.1.1, A.2.
const GsmTable &gsmShiftTable(int language);

/// Whether the standard gives the language a locking table of its own.
bool hasLockingTable(int language);

} // namespace corva
