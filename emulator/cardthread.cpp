// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardthread.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <future>

namespace cardemu
{

using namespace Qt::StringLiterals;

CardThread::CardThread(const Profile &profile)
{
    std::promise<EmulatedCard *> made;
    m_thread.reset(QThread::create([&made, &profile] {
        EmulatedCard card(profile);
        made.set_value(&card);
        QEventLoop().exec();
    }));
    m_thread->start();
    m_card = made.get_future().get();
}

CardThread::~CardThread()
{
    m_thread->quit();
    m_thread->wait();
}

QString CardThread::start(const QString &folder)
{
    QString complaint;
    QMetaObject::invokeMethod(m_card, "start", Qt::BlockingQueuedConnection, Q_RETURN_ARG(QString, complaint),
                              Q_ARG(QString, folder));
    return complaint;
}

QJsonObject CardThread::control(const QJsonObject &request)
{
    QJsonObject answer;
    QMetaObject::invokeMethod(m_card, "control", Qt::BlockingQueuedConnection,
                              Q_RETURN_ARG(QJsonObject, answer), Q_ARG(QJsonObject, request));
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
