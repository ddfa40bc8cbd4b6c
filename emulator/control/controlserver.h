// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSet>

namespace cardemu
{

class EmulatedCard;

/// The control socket: one JSON object for each line, answered in order. A client that sends {"command":
/// "watch"} also gets every entry of the log as it is made.
class ControlServer : public QObject
{
    Q_OBJECT

public:
    explicit ControlServer(EmulatedCard &card);
    ~ControlServer() override;

    /// Complains when another card answers on this socket; one that was left behind is replaced.
    QString listen(const QString &path);

    /// A longer line is skipped, and that is answered when it ends.
    static constexpr qint64 longestLine = 1 << 20;

private:
    void accept();
    void read(QLocalSocket *client);
    QJsonObject answer(QLocalSocket *client, const QByteArray &line);
    void tellWatchers(const QJsonObject &entry);

    EmulatedCard &m_card;
    QLocalServer m_server;
    QSet<QLocalSocket *> m_watchers;
    QSet<QLocalSocket *> m_overlong; ///< what they send up to the next line end is skipped
};

} // namespace cardemu
