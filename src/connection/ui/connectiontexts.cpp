// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/ui/connectiontexts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTime>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

QString text(const char *source)
{
    return QCoreApplication::translate("ConnectionTexts", source);
}

QString sinceText(const QDateTime &since)
{
    const QLocale locale;
    QString time = locale.timeFormat(QLocale::ShortFormat).remove(u":ss"_s);
    if (since.date() == QDate::currentDate())
        return locale.toString(since.time(), time);
    return u"%1 %2"_s.arg(locale.toString(since.date(), QLocale::ShortFormat),
                          locale.toString(since.time(), time));
}

} // namespace

QString statusSentence(const ConnectionStatus &status)
{
    switch (status.state) {
    case ConnectionState::Connected:
        return text(QT_TRANSLATE_NOOP("ConnectionTexts", "With \"%1\", since %2."))
            .arg(status.profileName, sinceText(status.since));
    case ConnectionState::Connecting:
        if (status.redial > 0)
            return text(QT_TRANSLATE_NOOP("ConnectionTexts", "With \"%1\", attempt %2 of %3."))
                .arg(status.profileName, QLocale().toString(status.redial),
                     QLocale().toString(status.redials));
        return text(QT_TRANSLATE_NOOP("ConnectionTexts", "With \"%1\".")).arg(status.profileName);
    case ConnectionState::Disconnecting: return {};
    case ConnectionState::NotConnected: break;
    }
    if (status.redial > 0)
        return text(QT_TRANSLATE_NOOP("ConnectionTexts", "%1 Attempt %2 of %3 follows."))
            .arg(status.endSentence, QLocale().toString(status.redial), QLocale().toString(status.redials))
            .trimmed();
    return status.endSentence;
}

bool isWorthAsking(const ConnectionStatus &status)
{
    return status.state == ConnectionState::NotConnected && status.end != ConnectionEnd::None &&
           status.end != ConnectionEnd::ByPerson;
}

QString elapsedText(std::chrono::seconds elapsed)
{
    const qint64 seconds = std::max<qint64>(elapsed.count(), 0);
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(seconds / 3600) +
           locale.toString(QTime(0, 0).addSecs(int(seconds % 3600)), u":mm:ss");
}

} // namespace corva
