// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/endsentence.h"

#include <QCoreApplication>

#include <algorithm>

namespace corva
{

namespace
{

struct EndRow {
    ConnectionEnd end;
    const char *sentence;
};
constexpr EndRow rows[] = {
    {ConnectionEnd::Refused,
     QT_TRANSLATE_NOOP("EndSentence", "The network refused the user name and the password.")},
    {ConnectionEnd::NoCarrier, QT_TRANSLATE_NOOP("EndSentence", "The network did not take the call.")},
    {ConnectionEnd::Busy, QT_TRANSLATE_NOOP("EndSentence", "The line is busy. Please try again later.")},
    {ConnectionEnd::TimeOut, QT_TRANSLATE_NOOP("EndSentence", "The network did not answer in time.")},
    {ConnectionEnd::DiallerFailed, QT_TRANSLATE_NOOP("EndSentence", "The dialler ended before it was done.")},
    {ConnectionEnd::FilesFailed,
     QT_TRANSLATE_NOOP("EndSentence", "The files for the dialler could not be written.")},
    {ConnectionEnd::NoRights, QT_TRANSLATE_NOOP("EndSentence", "The right to connect was not given.")},
    {ConnectionEnd::ByPeer, QT_TRANSLATE_NOOP("EndSentence", "The network ended the connection.")},
    {ConnectionEnd::LinkLost, QT_TRANSLATE_NOOP("EndSentence", "The network does not answer any more.")},
    {ConnectionEnd::CardGone, QT_TRANSLATE_NOOP("EndSentence", "The card was pulled out.")},
    {ConnectionEnd::Idle,
     QT_TRANSLATE_NOOP("EndSentence", "The connection was ended because nothing was carried.")},
    {ConnectionEnd::Quota,
     QT_TRANSLATE_NOOP("EndSentence", "The connection was ended because the volume is used up.")},
};

} // namespace

QString endSentence(ConnectionEnd end)
{
    const auto *row = std::ranges::find(rows, end, &EndRow::end);
    return row == std::end(rows) ? QString() : QCoreApplication::translate("EndSentence", row->sentence);
}

} // namespace corva
