// SPDX-License-Identifier: GPL-3.0-or-later
#include "simprovider.h"

#include <algorithm>
#include <array>

namespace corva
{

namespace
{

constexpr char padding = '\xff';
constexpr unsigned char escape = 0x1b;

/// The default alphabet by its codes; a blank stands where a name has no use for what is there.
constexpr char16_t defaultAlphabet[] = u"@£$¥èéùìòÇ Øø ÅåΔ_ΦΓΛΩΠΨΣΘΞ ÆæßÉ"
                                       u" !\"#¤%&'()*+,-./0123456789:;<=>?"
                                       u"¡ABCDEFGHIJKLMNOPQRSTUVWXYZÄÖÑÜ§"
                                       u"¿abcdefghijklmnopqrstuvwxyzäöñüà";
static_assert(std::size(defaultAlphabet) == 128 + 1);

/// The character behind an escape; the same code of the default alphabet where there is none.
char16_t extended(unsigned char code)
{
    struct Row {
        unsigned char code;
        char16_t character;
    };
    static constexpr auto rows = std::to_array<Row>({{0x14, u'^'},
                                                     {0x28, u'{'},
                                                     {0x29, u'}'},
                                                     {0x2f, u'\\'},
                                                     {0x3c, u'['},
                                                     {0x3d, u'~'},
                                                     {0x3e, u']'},
                                                     {0x40, u'|'},
                                                     {0x65, u'€'}});
    const auto *row = std::ranges::find(rows, code, &Row::code);
    return row == rows.end() ? defaultAlphabet[code] : row->character;
}

/// Octets of the GSM alphabet, and from 80 on, where there is a `base`, characters counted from there.
QString fromOctets(QByteArrayView octets, std::optional<char16_t> base)
{
    QString text;
    bool isEscaped = false;
    for (const char octet : octets) {
        const auto code = static_cast<unsigned char>(octet);
        if (code >= 0x80) {
            if (base)
                text += QChar(char16_t(*base + (code & 0x7f)));
        } else if (code != escape) {
            text += QChar(isEscaped ? extended(code) : defaultAlphabet[code]);
        }
        isEscaped = code == escape;
    }
    return text;
}

char16_t pairAt(QByteArrayView octets, qsizetype at)
{
    return char16_t(static_cast<unsigned char>(octets[at]) << 8 | static_cast<unsigned char>(octets[at + 1]));
}

/// Form 80: two octets a character, up to the padding.
QString fromPairs(QByteArrayView octets)
{
    QString text;
    for (qsizetype i = 0; i + 1 < octets.size() && pairAt(octets, i) != 0xffff; i += 2)
        text += QChar(pairAt(octets, i));
    return text;
}

/// Forms 81 and 82: how many characters follow, a base of one octet (its bits stand for 15 to 8 of the code)
/// or two, and the octets.
QString fromBase(QByteArrayView octets, qsizetype baseSize)
{
    if (octets.size() < 1 + baseSize)
        return {};
    const auto base =
        baseSize == 1 ? char16_t(static_cast<unsigned char>(octets[1]) << 7) : pairAt(octets, 1);
    const QByteArrayView text = octets.sliced(1 + baseSize);
    return fromOctets(text.first(std::min<qsizetype>(static_cast<unsigned char>(octets[0]), text.size())),
                      base);
}

QString readablePart(QString text)
{
    text.removeIf([](QChar c) { return c != u' ' && !c.isPrint(); });
    return text.simplified();
}

} // namespace

QString decodeSimText(const QByteArray &octets)
{
    const QByteArrayView all(octets);
    if (all.isEmpty())
        return {};
    switch (static_cast<unsigned char>(all[0])) {
    case 0x80: return readablePart(fromPairs(all.sliced(1)));
    case 0x81: return readablePart(fromBase(all.sliced(1), 1));
    case 0x82: return readablePart(fromBase(all.sliced(1), 2));
    default: {
        const qsizetype end = octets.indexOf(padding);
        return readablePart(fromOctets(end < 0 ? all : all.first(end), std::nullopt));
    }
    }
}

ReplyResult<SimProvider> parseProvider(const QByteArray &reply)
{
    constexpr int networkAtHome = 1;
    constexpr int notAbroad = 2;
    constexpr qsizetype longestFile = 255; // octets that one reading can give
    const auto fields = AtFields::find(reply, "+CRSM:");
    if (!fields)
        return fields.error();
    if (fields->number(0, 0, 255) != 144)
        return ReplyError{ReplyError::Refused, fields->text(0)};
    const QByteArray hex = fields->text(2);
    const QByteArray octets = QByteArray::fromHex(hex);
    // What is no hexadecimal digit is skipped by the decoding, and so missing from its result.
    if (octets.isEmpty() || octets.size() > longestFile || octets.size() * 2 != hex.size())
        return ReplyError{ReplyError::BadField, "provider"};
    const int condition = static_cast<unsigned char>(octets[0]);
    SimProvider provider;
    provider.name = decodeSimText(octets.sliced(1));
    provider.wantsNetworkAtHome = (condition & networkAtHome) != 0;
    provider.isSilentAbroad = (condition & notAbroad) != 0;
    return provider;
}

} // namespace corva
