// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "messages/tpdu.h"

#include <vector>

namespace cardemu
{

enum class Alphabet { Automatic, Gsm7, EightBit, Ucs2 };

/// How a text becomes one or more messages.
struct TextForm {
    Alphabet alphabet = Alphabet::Automatic; ///< Automatic: Gsm7 where that has every character, else Ucs2
    int messageClass = -1;
    int reference = -1;         ///< of a long message; below 0: one that was not used yet
    bool wideReference = false; ///< 16 bits
};

/// The user data of each part; one part when the text fits, without a header then. Escape sequences and
/// surrogate pairs are not torn. EightBit carries UTF-8. Empty when the alphabet lacks a character, or more
/// than 255 parts were needed. 3GPP TS 23.040 9.2.3.24.
std::vector<UserData> segmentText(const QString &text, const TextForm &form);

} // namespace cardemu
