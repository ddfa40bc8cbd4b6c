// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/controlserver.h"

#include "emulatedcard.h"

#include <QJsonDocument>

namespace cardemu
{

using namespace Qt::StringLiterals;

namespace
{

void sendLine(QLocalSocket *client, const QJsonObject &object)
{
    client->write(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
}

QJsonObject refusal(const QString &error)
{
    return {{u"ok"_s, false}, {u"error"_s, error}};
}

bool someoneAnswers(const QString &path)
{
    constexpr int patience = 500;
    QLocalSocket socket;
    socket.connectToServer(path);
    return socket.waitForConnected(patience);
}

} // namespace

ControlServer::ControlServer(EmulatedCard &card) : m_card(card)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &ControlServer::accept);
    connect(&card.log(), &TrafficLog::added, this, &ControlServer::tellWatchers);
}

// Clients are told to go while this object can still hear of it.
ControlServer::~ControlServer()
{
    for (QLocalSocket *client : m_server.findChildren<QLocalSocket *>()) {
        client->disconnect(this);
        client->abort();
    }
}

QString ControlServer::listen(const QString &path)
{
    if (someoneAnswers(path))
        return u"%1: another card is there"_s.arg(path);
    QLocalServer::removeServer(path);
    return m_server.listen(path) ? QString() : u"%1: %2"_s.arg(path, m_server.errorString());
}

void ControlServer::accept()
{
    while (QLocalSocket *client = m_server.nextPendingConnection()) {
        connect(client, &QLocalSocket::readyRead, this, [this, client] { read(client); });
        connect(client, &QLocalSocket::disconnected, this, [this, client] {
            m_watchers.remove(client);
            m_overlong.remove(client);
            client->deleteLater();
        });
        read(client);
    }
}

void ControlServer::read(QLocalSocket *client)
{
    while (client->canReadLine()) {
        const QByteArray line = client->readLine();
        const bool tooLong = m_overlong.remove(client) || line.size() > longestLine;
        sendLine(client, tooLong ? refusal(u"the line is too long"_s) : answer(client, line));
    }
    if (client->bytesAvailable() > longestLine) {
        client->skip(client->bytesAvailable());
        m_overlong.insert(client);
    }
}

QJsonObject ControlServer::answer(QLocalSocket *client, const QByteArray &line)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (document.isNull())
        return refusal(u"not JSON: %1 at byte %2"_s.arg(error.errorString()).arg(error.offset));
    if (!document.isObject())
        return refusal(u"must be an object"_s);
    if (document.object()[u"command"_s] == u"watch"_s) {
        m_watchers.insert(client);
        return {{u"ok"_s, true}};
    }
    return m_card.control(document.object());
}

void ControlServer::tellWatchers(const QJsonObject &entry)
{
    for (QLocalSocket *client : std::as_const(m_watchers)) {
        if (client->bytesToWrite() < longestLine)
            sendLine(client, entry);
    }
}

} // namespace cardemu
