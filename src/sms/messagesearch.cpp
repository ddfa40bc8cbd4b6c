// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/messagesearch.h"

#include "sms/textfold.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

QList<RecordPtr> allOf(const QList<const MessageTable *> &tables)
{
    QList<RecordPtr> all;
    for (const MessageTable *table : tables) {
        QList<RecordPtr> merged;
        merged.reserve(all.size() + table->records().size());
        std::ranges::merge(all, table->records(), std::back_inserter(merged), isAhead);
        all = std::move(merged);
    }
    return all;
}

bool isOfNumber(QChar c)
{
    return c.isDigit() || c == u'+';
}

} // namespace

void MessageSearch::setNameLookup(NameLookup lookup)
{
    m_lookup = std::move(lookup);
    forgetNames();
}

void MessageSearch::forgetNames()
{
    m_names.clear();
    forgetResult();
}

MessageSearch::Word MessageSearch::wordOf(const QString &text)
{
    Word word{text, {}};
    if (!std::ranges::all_of(text, isOfNumber) || (text.front() != u'0' && text.front() != u'+'))
        return word;
    // "0171" is found in "+49171".
    const auto isSignificant = [](QChar c) { return c != u'0' && c != u'+'; };
    word.digits = text.sliced(std::ranges::find_if(text, isSignificant) - text.begin());
    return word;
}

void MessageSearch::learnNames(const QList<RecordPtr> &records)
{
    if (!m_lookup)
        return;
    for (const RecordPtr &record : records) {
        for (qsizetype i = 0; i < record->persons.size(); ++i) {
            QString &name = m_names[record->persons.at(i)];
            // Not null once it was asked for.
            if (name.isNull())
                name = u""_s + foldedText(m_lookup(record->message.recipients.at(i)));
        }
    }
}

bool MessageSearch::hasWord(const MessageRecord &record, const Word &word) const
{
    return record.folded().contains(word.text) ||
           (!word.digits.isEmpty() && record.folded().contains(word.digits)) ||
           std::ranges::any_of(record.persons, [&](const QString &person) {
               return m_names.value(person).contains(word.text);
           });
}

QList<RecordPtr> MessageSearch::find(const QString &text, const QList<const MessageTable *> &tables)
{
    const QString folded = foldedText(text).simplified();
    QList<Word> words;
    for (const QString &word : folded.split(u' ', Qt::SkipEmptyParts))
        words += wordOf(word);
    // A number that grows may lose its beginning, and then finds more.
    const bool isPlain = std::ranges::all_of(words, &QString::isEmpty, &Word::digits);
    const bool isNarrower = m_isResultGood && isPlain && folded.startsWith(m_lastText);
    if (!isNarrower) {
        m_lastResult = allOf(tables);
        learnNames(m_lastResult);
    }
    m_lastResult.removeIf([&](const RecordPtr &record) {
        return !std::ranges::all_of(words, [&](const Word &word) { return hasWord(*record, word); });
    });
    m_lastText = folded;
    m_isResultGood = true;
    return m_lastResult;
}

} // namespace corva
