// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/usagesentences.h"

#include "statistics/traffictexts.h"

#include <QCoreApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

QString text(const char *source)
{
    return QCoreApplication::translate("TrafficSentences", source);
}

} // namespace

QString volumesSentence(const TrafficVolumes &volumes)
{
    const TrafficVolume all = volumes.both();
    const QString sentence = text(QT_TRANSLATE_NOOP("TrafficSentences", "%1 received, %2 sent"))
                                 .arg(volumeText(all.received), volumeText(all.sent));
    if (volumes.roaming.total() == 0)
        return sentence;
    return text(QT_TRANSLATE_NOOP("TrafficSentences", "%1; %2 of it roaming"))
        .arg(sentence, volumeText(volumes.roaming.total()));
}

QString allowanceSentence(const AllowanceUse &use)
{
    const char *source = use.allowance == Allowance::Main
                             ? QT_TRANSLATE_NOOP("TrafficSentences", "%1 of %2 used (%3 %)")
                             : QT_TRANSLATE_NOOP("TrafficSentences", "%1 of %2 roaming (%3 %)");
    return text(source).arg(volumeText(use.used), volumeText(use.quota), QLocale().toString(use.percent()));
}

QString forecastSentence(const PeriodUse &use, const TrafficSettings &settings)
{
    const QString end = dayText(use.period.last);
    if (!use.forecast)
        return text(QT_TRANSLATE_NOOP("TrafficSentences",
                                      "Too few days are known to say what it will be by %1."))
            .arg(end);
    if (use.allowances.front().isUsedUp())
        return text(QT_TRANSLATE_NOOP("TrafficSentences", "The volume is used up. A new one begins on %1."))
            .arg(dayText(use.period.last.addDays(1)));
    const QString expected = volumeText(use.forecast->atEnd);
    if (settings.quota == 0)
        return text(QT_TRANSLATE_NOOP("TrafficSentences", "As it goes, it will be about %1 by %2."))
            .arg(expected, end);
    if (use.forecast->usedUpOn.isValid())
        return text(QT_TRANSLATE_NOOP(
                        "TrafficSentences",
                        "As it goes, the volume will be used up on %1; by %2 it would be about %3."))
            .arg(dayText(use.forecast->usedUpOn), end, expected);
    return text(QT_TRANSLATE_NOOP("TrafficSentences",
                                  "As it goes, it will be about %1 by %2: the volume is enough."))
        .arg(expected, end);
}

} // namespace corva
