// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/datacall.h"

#include "link/serialthread.h"
#include "shell/globals.h"
#include "shell/logging.h"
#include "shell/safefile.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr int refusedPlainly = 0;
constexpr int noAnswer = -1;
constexpr qint64 longestImei = 64;

QString notePath()
{
    return basePath + u"/Data/data-call"_s;
}

} // namespace

DataCall::Answer DataCall::make(SerialThread &link)
{
    if (m_stage == Stage::Abandoned)
        return {};
    QFile::remove(notePath()); // never through a link that somebody left there
    if (QString why; !writeFileSafely(notePath(), m_imei.toUtf8(), &why))
        qCWarning(lcConnection).noquote() << logTime() + why;
    Answer answer{Activation::Maker, link.setDataCall(contextId, true)};
    if (answer.result == refusedPlainly)
        answer = {Activation::Standard, link.activatePdpContext(contextId, true)};
    Stage waiting = Stage::Waiting;
    if (m_stage.compare_exchange_strong(waiting, Stage::Answered))
        return answer;
    end(link, answer.by);
    return {};
}

bool DataCall::abandon()
{
    Stage waiting = Stage::Waiting;
    m_stage.compare_exchange_strong(waiting, Stage::Abandoned);
    return m_stage == Stage::Abandoned;
}

bool DataCall::end(SerialThread &link, Activation by)
{
    int result = by == Activation::Standard ? refusedPlainly : link.setDataCall(contextId, false);
    if (result == refusedPlainly)
        result = link.activatePdpContext(contextId, false);
    if (result == noAnswer)
        return false;
    QFile::remove(notePath());
    return true;
}

bool DataCall::isNoted()
{
    return QFileInfo(notePath()).isFile();
}

bool DataCall::endNoted(SerialThread &link, const QString &imei)
{
    if (!isNoted())
        return true; // a connection has come and gone meanwhile
    const QByteArray noted = readAtMost(notePath(), longestImei);
    if (noted.isEmpty() ||
        noted == imei.toUtf8()) // it may have been asked for before the card said who it is
        return end(link, Activation::None);
    if (!imei.isEmpty()) // a card that does not say who it is may be the noted one yet
        QFile::remove(notePath());
    return true;
}

} // namespace corva
