// SPDX-License-Identifier: GPL-3.0-or-later
#include "messages/septets.h"

#include <QStringView>
#include <algorithm>
#include <array>

namespace cardemu
{

namespace
{

// In the order of their codes; 0x1B, the escape, is no character.
constexpr char16_t alphabet[] = u"@£$¥èéùìòÇ\nØø\rÅåΔ_ΦΓΛΩΠΨΣΘΞ\xFFFFÆæßÉ !\"#¤%&'()*+,-./0123456789:;<=>?"
                                u"¡ABCDEFGHIJKLMNOPQRSTUVWXYZÄÖÑÜ§¿abcdefghijklmnopqrstuvwxyzäöñüà";

struct Extension {
    char16_t character;
    char code;
};

constexpr std::array extensions = {
    Extension{u'\f', 0x0A}, Extension{u'^', 0x14}, Extension{u'{', 0x28}, Extension{u'}', 0x29},
    Extension{u'\\', 0x2F}, Extension{u'[', 0x3C}, Extension{u'~', 0x3D}, Extension{u']', 0x3E},
    Extension{u'|', 0x40},  Extension{u'€', 0x65},
};

} // namespace

std::optional<QByteArray> toSeptets(const QString &text)
{
    QByteArray septets;
    for (const QChar c : text) {
        const qsizetype code = QStringView(alphabet).indexOf(c);
        const auto *const extension = std::ranges::find(extensions, c.unicode(), &Extension::character);
        if (code >= 0 && c.unicode() != 0xFFFF)
            septets += static_cast<char>(code);
        else if (extension != extensions.end())
            septets.append('\x1b').append(extension->code);
        else
            return std::nullopt;
    }
    return septets;
}

QByteArray packSeptets(const QByteArray &septets, int fillBits)
{
    QByteArray octets;
    unsigned bits = 0;
    int count = fillBits;
    for (const char septet : septets) {
        bits |= static_cast<unsigned>(septet & 0x7F) << count;
        count += 7;
        if (count >= 8) {
            octets += static_cast<char>(bits & 0xFF);
            bits >>= 8;
            count -= 8;
        }
    }
    if (count > 0)
        octets += static_cast<char>(bits & 0xFF);
    return octets;
}

} // namespace cardemu
