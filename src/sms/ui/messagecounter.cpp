// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/messagecounter.h"

#include <QCoreApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

QString text(const char *source)
{
    return QCoreApplication::translate("MessageCounter", source);
}

/// What a person calls the character: itself, and its number where it cannot be seen.
QString shownCharacter(const QString &character)
{
    const QList<uint> code = character.toUcs4();
    if (code.isEmpty() || QChar::isPrint(code.front()))
        return character;
    return u"U+%1"_s.arg(code.front(), 4, 16, QChar(u'0')).toUpper();
}

} // namespace

QString wordCount(int length, int parts)
{
    return text(QT_TRANSLATE_NOOP("MessageCounter", "Symbol: %1 /%2"))
        .arg(QString::number(length), QString::number(parts));
}

QString lengthNotice(const SplitText &split)
{
    if (!split.isSendable())
        return text(QT_TRANSLATE_NOOP("MessageCounter", "The message is too long: it may have %1 parts."))
            .arg(SplitText::mostParts);
    QStringList sentences;
    if (split.alphabet == Alphabet::Ucs2)
        sentences +=
            text(QT_TRANSLATE_NOOP("MessageCounter",
                                   "Because of \"%1\" a message holds 70 characters instead of 160."))
                .arg(shownCharacter(split.whyUcs2));
    else if (split.isNational)
        sentences +=
            text(QT_TRANSLATE_NOOP("MessageCounter", "National letters leave 155 characters of 160."));
    if (int(split.parts.size()) != split.formulaParts)
        sentences += text(QT_TRANSLATE_NOOP("MessageCounter", "It is sent in %1 parts."))
                         .arg(QLocale().toString(split.parts.size()));
    return sentences.join(u' ');
}

} // namespace corva
