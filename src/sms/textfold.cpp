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

/// What is beyond ASCII, each letter by itself but for its marks.
QString foldedRun(const QString &run)
{
    QString folded;
    for (const QChar c : run.normalized(QString::NormalizationForm_KD).toCaseFolded()) {
        const auto *const row = std::ranges::find(letters, c.unicode(), &Letter::letter);
        if (row != std::end(letters))
            folded += row->plain;
        else if (c.category() != QChar::Mark_NonSpacing)
            folded += c;
    }
    return folded;
}

bool isAscii(QChar c)
{
    return c.unicode() < 0x80;
}

} // namespace

QString foldedText(const QString &text)
{
    const QString lower = text.toLower();
    const QChar *at = std::ranges::find_if_not(lower, isAscii);
    QString folded;
    folded.reserve(lower.size());
    for (auto done = lower.begin(); done != lower.end();) {
        folded += QStringView(done, at);
        done = std::find_if(at, lower.end(), isAscii);
        folded += foldedRun(QString(at, done - at));
        at = std::find_if_not(done, lower.end(), isAscii);
    }
    return folded;
}

} // namespace corva
