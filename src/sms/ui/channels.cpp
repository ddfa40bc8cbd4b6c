// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/channels.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr int highest = 65535; // a message identifier has 16 bits: 3GPP TS 23.041 9.4.1.2.2
constexpr qsizetype mostNumbers = 100;

QString text(const char *source)
{
    return QCoreApplication::translate("Channels", source);
}

} // namespace

Channels readChannels(const QString &written)
{
    static const QRegularExpression separators(u"[,;\\s]+"_s);
    static const QRegularExpression range(
        QRegularExpression::anchoredPattern(u"([0-9]{1,5})(?:-([0-9]{1,5}))?"_s));
    Channels channels;
    const QStringList entries = written.split(separators, Qt::SkipEmptyParts);
    for (const QString &entry : entries) {
        const auto match = range.match(entry);
        const int first = match.captured(1).toInt();
        const int last = match.hasCaptured(2) ? match.captured(2).toInt() : first;
        if (!match.hasMatch() || last < first || last > highest)
            return {{},
                    text(QT_TRANSLATE_NOOP("Channels", "\"%1\" is no channel. Channels are numbers from 0 to "
                                                       "65535, or ranges as 10-15."))
                        .arg(entry)};
        if (last - first >= mostNumbers || channels.numbers.size() + last - first >= mostNumbers)
            return {{},
                    text(QT_TRANSLATE_NOOP("Channels", "These are more than %1 channels.")).arg(mostNumbers)};
        for (int number = first; number <= last; ++number)
            channels.numbers += number;
    }
    std::sort(channels.numbers.begin(), channels.numbers.end());
    channels.numbers.erase(std::unique(channels.numbers.begin(), channels.numbers.end()),
                           channels.numbers.end());
    return channels;
}

QString channelsText(const QList<int> &numbers)
{
    QStringList entries;
    for (qsizetype first = 0; first < numbers.size();) {
        qsizetype last = first;
        while (last + 1 < numbers.size() && numbers.at(last + 1) == numbers.at(last) + 1)
            ++last;
        const QString begin = QString::number(numbers.at(first));
        entries += last == first ? begin : begin + u'-' + QString::number(numbers.at(last));
        first = last + 1;
    }
    return entries.join(u", "_s);
}

} // namespace corva
