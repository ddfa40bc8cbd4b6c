// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/gsmtext.h"

#include <algorithm>

namespace corva
{

namespace
{

constexpr QChar blank = u' ';

QChar inTable(const GsmTable &table, quint8 septet)
{
    const char16_t character = table[septet & 0x7f];
    return character ? QChar(character) : blank;
}

} // namespace

int septetIn(const GsmTable &table, QChar character)
{
    if (character.isNull())
        return -1;
    const auto found = std::find(table.begin(), table.end(), character.unicode());
    return found == table.end() ? -1 : int(found - table.begin());
}

int GsmCoding::septets(QChar character) const
{
    if (septetIn(base, character) >= 0)
        return 1;
    return septetIn(extension, character) >= 0 ? 2 : 0;
}

bool GsmCoding::append(QChar character, Septets &septets) const
{
    int septet = septetIn(base, character);
    if (septet < 0) {
        septet = septetIn(extension, character);
        if (septet < 0)
            return false;
        septets.append(gsmEscape);
    }
    septets.append(quint8(septet));
    return true;
}

QChar GsmCoding::escaped(quint8 septet) const
{
    const char16_t character = extension[septet & 0x7f];
    return character ? QChar(character) : inTable(base, septet);
}

QString textOfSeptets(std::span<const quint8> septets, const GsmCoding &coding)
{
    QString text(qsizetype(septets.size()), Qt::Uninitialized);
    QChar *out = text.data();
    const quint8 *const end = septets.data() + septets.size();
    for (const quint8 *septet = septets.data(); septet != end; ++septet) {
        // Only the escape has no character in a base table.
        const char16_t character = coding.base[*septet & 0x7f];
        if (character)
            *out++ = character;
        else
            *out++ = septet + 1 != end ? coding.escaped(*++septet) : blank;
    }
    text.truncate(out - text.constData());
    return text;
}

} // namespace corva
