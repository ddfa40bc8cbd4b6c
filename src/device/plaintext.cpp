// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/plaintext.h"

#include <algorithm>

namespace corva
{

QString plainText(const QString &text)
{
    constexpr qsizetype maximumLength = 64;
    QString plain = text;
    std::ranges::replace_if(
        plain, [](QChar c) { return !c.isPrint() && !c.isSurrogate(); }, QChar(u' '));
    return plain.simplified().left(maximumLength);
}

} // namespace corva
