// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/codingscheme.h"

#include <array>
#include <iterator>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr quint8 compressedBit = 0x20;
constexpr quint8 hasClassBit = 0x10;
constexpr quint8 activeBit = 0x08;
constexpr quint8 eightBitBit = 0x04;
constexpr quint8 lowBits = 0x03;

/// Bits 3 and 2.
Alphabet alphabetBits(quint8 dcs)
{
    constexpr std::array alphabets = {Alphabet::Gsm7, Alphabet::EightBit, Alphabet::Ucs2, Alphabet::EightBit};
    return alphabets[(dcs >> 2) & lowBits];
}

CodingScheme general(quint8 dcs)
{
    CodingScheme scheme;
    scheme.alphabet = alphabetBits(dcs);
    scheme.isCompressed = dcs & compressedBit;
    if (dcs & hasClassBit)
        scheme.messageClass = dcs & lowBits;
    return scheme;
}

CodingScheme reserved(quint8 dcs)
{
    CodingScheme scheme;
    scheme.alphabet = alphabetBits(dcs);
    return scheme;
}

CodingScheme waiting(quint8 dcs, Alphabet alphabet, bool isKept)
{
    CodingScheme scheme;
    scheme.alphabet = alphabet;
    scheme.waiting = MessageWaiting{MessageWaiting::Kind(dcs & lowBits), (dcs & activeBit) != 0, isKept};
    return scheme;
}

CodingScheme withClass(quint8 dcs)
{
    CodingScheme scheme;
    scheme.alphabet = alphabetBits(dcs);
    scheme.messageClass = dcs & lowBits;
    return scheme;
}

/// Languages of the groups 0000 and 0010.
constexpr QLatin1StringView languages[] = {"de"_L1, "en"_L1, "it"_L1, "fr"_L1, "es"_L1,
                                           "nl"_L1, "sv"_L1, "da"_L1, "pt"_L1, "fi"_L1,
                                           "no"_L1, "el"_L1, "tr"_L1, "hu"_L1, "pl"_L1};
constexpr QLatin1StringView moreLanguages[] = {"cs"_L1, "he"_L1, "ar"_L1, "ru"_L1, "is"_L1};

template <std::size_t count> QLatin1StringView nameIn(const QLatin1StringView (&names)[count], quint8 dcs)
{
    const std::size_t index = dcs & 0x0f;
    return index < count ? names[index] : QLatin1StringView();
}

/// 0x10: letters in the default alphabet; 0x11: UCS2; the rest is reserved.
BroadcastScheme namedInText(quint8 dcs)
{
    BroadcastScheme scheme;
    scheme.startsWithLanguage = dcs <= 0x11;
    scheme.alphabet = dcs == 0x11 ? Alphabet::Ucs2 : Alphabet::Gsm7;
    return scheme;
}

BroadcastScheme asMessage(const CodingScheme &message)
{
    BroadcastScheme scheme;
    scheme.alphabet = message.alphabet;
    scheme.isCompressed = message.isCompressed;
    scheme.messageClass = message.messageClass;
    return scheme;
}

BroadcastScheme behindHeader(quint8 dcs)
{
    BroadcastScheme scheme = asMessage(withClass(dcs));
    scheme.hasHeader = true;
    return scheme;
}

BroadcastScheme dataOrText(quint8 dcs)
{
    BroadcastScheme scheme = asMessage(withClass(dcs));
    scheme.alphabet = dcs & eightBitBit ? Alphabet::EightBit : Alphabet::Gsm7;
    return scheme;
}

BroadcastScheme inLanguage(QLatin1StringView language)
{
    BroadcastScheme scheme;
    scheme.language = language;
    return scheme;
}

} // namespace

CodingScheme codingScheme(quint8 dcs)
{
    switch (dcs >> 4) {
    case 0x0c: return waiting(dcs, Alphabet::Gsm7, false);
    case 0x0d: return waiting(dcs, Alphabet::Gsm7, true);
    case 0x0e: return waiting(dcs, Alphabet::Ucs2, true);
    case 0x0f: return withClass(dcs);
    default: return dcs < 0x80 ? general(dcs) : reserved(dcs);
    }
}

BroadcastScheme broadcastScheme(quint8 dcs)
{
    switch (dcs >> 4) {
    case 0x00: return inLanguage(nameIn(languages, dcs));
    case 0x01: return namedInText(dcs);
    case 0x02: return inLanguage(nameIn(moreLanguages, dcs));
    case 0x04:
    case 0x05:
    case 0x06:
    case 0x07: return asMessage(general(dcs));
    case 0x09: return behindHeader(dcs);
    case 0x0f: return dataOrText(dcs);
    default: return {};
    }
}

} // namespace corva
