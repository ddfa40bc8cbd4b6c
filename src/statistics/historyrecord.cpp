// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/historyrecord.h"

#include <QCoreApplication>
#include <algorithm>
#include <iterator>

namespace corva
{

namespace
{

struct EndRow {
    QLatin1StringView word;
    const char *text;
};

constexpr EndRow endRows[] = {
    {historyend::Person, QT_TRANSLATE_NOOP("HistoryEnd", "By you")},
    {historyend::Peer, QT_TRANSLATE_NOOP("HistoryEnd", "By the network")},
    {historyend::LinkLost, QT_TRANSLATE_NOOP("HistoryEnd", "No answer")},
    {historyend::Dialler, QT_TRANSLATE_NOOP("HistoryEnd", "Dialler stopped")},
    {historyend::CardGone, QT_TRANSLATE_NOOP("HistoryEnd", "Card removed")},
    {historyend::Idle, QT_TRANSLATE_NOOP("HistoryEnd", "Nothing carried")},
    {historyend::Quota, QT_TRANSLATE_NOOP("HistoryEnd", "Volume used up")},
    {historyend::Program, QT_TRANSLATE_NOOP("HistoryEnd", "Program closed")},
    {historyend::Unexpected, QT_TRANSLATE_NOOP("HistoryEnd", "Unexpectedly")},
};

} // namespace

QString historyEndText(const QString &word)
{
    const auto *row = std::find_if(std::begin(endRows), std::end(endRows),
                                   [&](const EndRow &candidate) { return candidate.word == word; });
    return row == std::end(endRows) ? QCoreApplication::translate("HistoryEnd", "Not known")
                                    : QCoreApplication::translate("HistoryEnd", row->text);
}

} // namespace corva
