// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "card/scheduler.h"

#include <QJsonArray>
#include <QJsonObject>

namespace cardemu
{

/// What went over the ports, newest last; the oldest entries make room for new ones.
class TrafficLog : public QObject
{
    Q_OBJECT

public:
    explicit TrafficLog(Scheduler &scheduler) : m_scheduler(scheduler) {}

    /// `what` is "received" (a command line without its end) or "sent" (bytes as they left, without echo).
    void add(const QString &port, const QString &what, const QByteArray &bytes);
    /// The newest `count` entries: {"time", "port", "received" or "sent"}. Bytes stand as Latin-1 text.
    QJsonArray newest(qsizetype count) const;
    void clear() { m_entries = {}; }

    static constexpr qsizetype capacity = 5000;
    /// Longer texts are cut, so that a flood does not fill the memory.
    static constexpr qsizetype longestText = 1000;

Q_SIGNALS:
    void added(const QJsonObject &entry);

private:
    Scheduler &m_scheduler;
    QList<QJsonObject> m_entries;
};

} // namespace cardemu
