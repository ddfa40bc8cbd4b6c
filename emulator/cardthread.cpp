// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardthread.h"

#include <QJsonDocument>

namespace cardemu
{

using namespace Qt::StringLiterals;

CardThread::CardThread(const Profile &profile)
{
    auto *anchor = new QObject;
    anchor->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, anchor, &QObject::deleteLater);
    m_thread.setObjectName(u"emulated card"_s);
    m_thread.start();
    QMetaObject::invokeMethod(
        anchor, [this, anchor, &profile] { m_card = new EmulatedCard(profile, anchor); },
        Qt::BlockingQueuedConnection);
}

CardThread::~CardThread()
{
    m_thread.quit();
    m_thread.wait();
}

Complaint CardThread::start(const QString &folder)
{
    Complaint complaint;
    QMetaObject::invokeMethod(
        m_card, [&] { complaint = m_card->start(folder); }, Qt::BlockingQueuedConnection);
    return complaint;
}

QJsonObject CardThread::control(const QJsonObject &request)
{
    QJsonObject answer;
    QMetaObject::invokeMethod(
        m_card, [&] { answer = m_card->control(request); }, Qt::BlockingQueuedConnection);
    return answer;
}

QJsonObject CardThread::control(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (!document.isObject())
        return {{u"ok"_s, false}, {u"error"_s, u"not a JSON object: "_s + error.errorString()}};
    return control(document.object());
}

} // namespace cardemu
