// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/recipients.h"

#include "sms/smsdecoder.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr qsizetype longestNumber = sizeof(SM_PARAM::TPA) - 1;

bool isLeftOut(char32_t character)
{
    constexpr char32_t minus = 0x2212;
    switch (QChar::category(character)) {
    case QChar::Punctuation_Dash:
    case QChar::Punctuation_Open:
    case QChar::Punctuation_Close:
    case QChar::Other_Format: return true; // marks of writing direction, which come with pasted numbers
    default: return QChar::isSpace(character) || character == minus || character == U'.';
    }
}

/// The character as it is dialled; none when a number cannot hold it there.
std::optional<QChar> dialled(char32_t character, bool isFirst)
{
    constexpr char32_t widePlus = 0xFF0B;
    if (QChar::isDigit(character))
        return QChar(u'0' + char16_t(QChar::digitValue(character)));
    if (isFirst && (character == U'+' || character == widePlus))
        return u'+';
    return std::nullopt;
}

QString text(const char *source)
{
    return QCoreApplication::translate("Recipients", source);
}

/// Adds the number to `to`, or says why it is none.
QString addNumber(const QString &written, QStringList &to)
{
    QString number;
    const QList<uint> characters = written.toUcs4();
    for (const char32_t character : characters) {
        if (isLeftOut(character))
            continue;
        const auto sign = dialled(character, number.isEmpty());
        if (!sign)
            return text(QT_TRANSLATE_NOOP("Recipients", "\"%1\" is no number: \"%2\" cannot be dialled."))
                .arg(written, QString::fromUcs4(&character, 1));
        number += *sign;
    }
    if (number == u'+')
        return text(QT_TRANSLATE_NOOP("Recipients", "\"%1\" is no number: the digits are missing."))
            .arg(written);
    if (!SmsDecoder::checkLengthofPhoneNumber(number))
        return text(
                   QT_TRANSLATE_NOOP("Recipients", "\"%1\" is too long: a number has %2 characters at most."))
            .arg(written, QString::number(longestNumber));
    if (!number.isEmpty() && !to.contains(number))
        to += number;
    return {};
}

} // namespace

Recipients readRecipients(const QString &written)
{
    static const QRegularExpression separators(u"[,;\n\u060C\u061B\u3001\uFF0C\uFF1B]"_s);
    Recipients recipients;
    const QStringList entries = written.split(separators, Qt::SkipEmptyParts);
    for (const QString &entry : entries) {
        const QString error = addNumber(entry.trimmed(), recipients.numbers);
        if (recipients.error.isEmpty())
            recipients.error = error;
    }
    return recipients;
}

QString joinRecipients(const QStringList &numbers)
{
    return numbers.join(u", "_s);
}

} // namespace corva
