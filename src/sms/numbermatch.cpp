// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/numbermatch.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

QString personKeyOf(const QString &number, int matchingLength)
{
    if (std::ranges::any_of(number, [](QChar c) { return c.isLetter(); }))
        return number.trimmed().toCaseFolded();
    QString digits;
    for (const QChar c : number) {
        if (c.isDigit())
            digits += QChar(u'0' + c.digitValue());
        else if (c == u'*' || c == u'#')
            digits += c;
    }
    if (digits.isEmpty())
        return number.trimmed();
    return matchingLength > 0 ? digits.right(matchingLength) : digits;
}

} // namespace corva
