// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/textfold.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// Letters with a stroke or a tail have no mark that could be taken off.
struct Letter {
    char16_t letter;
    QStringView plain;
};
constexpr Letter letters[] = {
    {u'ß', u"ss"}, {u'æ', u"ae"}, {u'œ', u"oe"}, {u'ø', u"o"}, {u'ł', u"l"},  {u'đ', u"d"},
    {u'ð', u"d"},  {u'þ', u"th"}, {u'ı', u"i"},  {u'ħ', u"h"}, {0x0640, u""}, // the Arabic stretcher
};

bool isPlain(QChar c)
{
    return c.unicode() < 0x80;
}

} // namespace

QString foldedText(const QString &text)
{
    if (std::ranges::all_of(text, isPlain))
        return text.toLower();
    const QString bare = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    QString folded;
    folded.reserve(bare.size());
    for (const QChar c : bare) {
        const auto *const row = std::ranges::find(letters, c.unicode(), &Letter::letter);
        if (row != std::end(letters))
            folded += row->plain;
        else if (c.category() != QChar::Mark_NonSpacing)
            folded += c;
    }
    return folded;
}

} // namespace corva
