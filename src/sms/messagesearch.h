// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/messagetable.h"

#include <functional>

namespace corva
{

/// Finds messages as the person types: what a longer text finds is looked for among what the shorter one
/// found.
class MessageSearch
{
public:
    using NameLookup = std::function<QString(const QString &number)>;

    void setNameLookup(NameLookup lookup);
    /// Names may be others now.
    void forgetNames();
    /// Messages came, changed or went.
    void forgetResult() { m_isResultGood = false; }

    /// Those of `tables` in which each word of `text` occurs, the newest first.
    QList<RecordPtr> find(const QString &text, const QList<const MessageTable *> &tables);

private:
    struct Word {
        QString text;
        QString digits; ///< of a number, without what stands ahead of it in another country; else empty
    };
    static Word wordOf(const QString &text);
    void learnNames(const QList<RecordPtr> &records);
    bool hasWord(const MessageRecord &record, const Word &word) const;

    NameLookup m_lookup;
    QHash<QString, QString> m_names; ///< of persons, folded
    QString m_lastText;              ///< folded
    QList<RecordPtr> m_lastResult;
    bool m_isResultGood = false;
};

} // namespace corva
