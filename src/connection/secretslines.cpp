// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/secretslines.h"

#include <QCryptographicHash>
#include <QList>

#include <algorithm>
#include <utility>

namespace corva
{
namespace
{

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r';
}

/// The words of a line as pppd reads them: quotes and backslashes taken off, no comment.
QList<QByteArray> wordsOf(const QByteArray &line)
{
    QList<QByteArray> words;
    QByteArray word;
    bool isInWord = false;
    char quote = 0;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const char c = line.at(i);
        if (quote == 0 && (isBlank(c) || c == '#')) {
            if (isInWord)
                words += std::exchange(word, {});
            isInWord = false;
            if (c == '#')
                return words;
            continue;
        }
        isInWord = true;
        if (c == '\\' && i + 1 < line.size())
            word += line.at(++i);
        else if (quote == 0 && (c == '"' || c == '\''))
            quote = c;
        else if (c == quote)
            quote = 0;
        else
            word += c;
    }
    return isInWord ? words << word : words;
}

struct Line {
    QByteArray text; ///< without blanks at its ends
    QByteArray user; ///< empty unless it is for every server, as wvdial's are
    QByteArray hash;
};

/// Empty lines are left out: wvdial adds them.
QList<Line> linesOf(const QByteArray &file)
{
    QList<Line> lines;
    for (const QByteArray &raw : file.split('\n')) {
        Line line{raw.trimmed(), {}, {}};
        const QList<QByteArray> words = wordsOf(raw);
        if (words.size() == 3 && words.at(1) == "*") {
            line.user = words.at(0);
            line.hash = secretHash(words.at(0), words.at(2));
        }
        if (!line.text.isEmpty())
            lines += line;
    }
    return lines;
}

bool contains(const QList<Line> &lines, const QByteArray &text)
{
    return std::ranges::find(lines, text, &Line::text) != lines.end();
}

} // namespace

QByteArray secretHash(const QByteArray &user, const QByteArray &password)
{
    return QCryptographicHash::hash(user + '\0' + password, QCryptographicHash::Sha256).toHex();
}

std::optional<QByteArray> withoutDialled(const QByteArray &now, const std::optional<QByteArray> &original,
                                         const QSet<QByteArray> &dialled)
{
    const QList<Line> before = linesOf(original.value_or(QByteArray()));
    QList<Line> after = linesOf(now);
    QSet<QByteArray> users;
    for (const Line &line : after)
        if (dialled.contains(line.hash))
            users += line.user;
    const auto isDialled = [&dialled](const Line &line) { return dialled.contains(line.hash); };
    const auto isOfUser = [&users](const Line &line) {
        return !line.user.isEmpty() && users.contains(line.user);
    };
    after.removeIf(isDialled);

    QList<Line> others = before;
    others.removeIf(isOfUser);
    if (std::ranges::equal(after, others, {}, &Line::text, &Line::text))
        return original;
    if (users.isEmpty())
        return now;

    QByteArray merged;
    for (const QByteArray &raw : now.split('\n')) {
        const QList<Line> line = linesOf(raw);
        if (line.isEmpty() || !isDialled(line.first()))
            merged += raw + '\n';
    }
    merged.chop(1); // what stood behind the last line's end
    if (!merged.isEmpty() && !merged.endsWith('\n'))
        merged += '\n';
    for (const Line &line : before)
        if (isOfUser(line) && !contains(after, line.text))
            merged += line.text + '\n';
    return merged;
}

bool isCutOff(const QByteArray &now, const QByteArray &original, const QSet<QByteArray> &dialled)
{
    const QList<Line> before = linesOf(original);
    const QList<Line> after = linesOf(now);
    if (after.size() > before.size() || now == original)
        return false;
    auto next = before.begin();
    for (qsizetype i = 0; i < after.size(); ++i, ++next) {
        const Line &line = after.at(i);
        const bool mayBePart = i + 1 == after.size() && !now.endsWith('\n');
        next = std::find_if(next, before.end(), [&](const Line &old) {
            return mayBePart ? old.text.startsWith(line.text) : old.text == line.text;
        });
        if (next == before.end() || dialled.contains(line.hash))
            return false;
    }
    return after.size() < before.size() || !now.endsWith('\n');
}

} // namespace corva
