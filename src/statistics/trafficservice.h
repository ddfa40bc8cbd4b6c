// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QObject>
#include <memory>
#include <optional>

namespace corva
{

/// Bytes both ways.
struct TrafficVolume {
    quint64 received = 0;
    quint64 sent = 0;
    quint64 total() const { return received + sent; }
    bool operator==(const TrafficVolume &) const = default;
};

/// A link that came up.
struct TrafficSession {
    QString profileName;
    QString interfaceName; ///< "ppp0": whose counters are read
    bool isRoaming = false;
};

/// Counts what the link carries: rates, the session, days and months, the quota, the history. Lives on the
/// GUI thread; the files are written on a thread of its own.
class TrafficService : public QObject
{
    Q_OBJECT

public:
    explicit TrafficService(QObject *parent = nullptr);
    /// Writes what is not on disk yet.
    ~TrafficService() override;

    void sessionStarted(const TrafficSession &session);
    /// The card went onto a foreign network, or came home, while the link is up.
    void setRoaming(bool isRoaming);
    /// `how` stands in the history: a word that `statistics/historyrecord.h` lists.
    void sessionEnded(const QString &how);
    /// Of the running session, or of the last one.
    TrafficVolume sessionVolume() const;

Q_SIGNALS:
    /// Once a second while a link is up: bytes per second.
    void sigRate(corva::TrafficVolume perSecond);
    /// A share of the month's volume is used up, said once for each billing period and share.
    void sigQuotaWarning(const QString &sentence);
    /// The month's volume is used up and the person wants the link ended.
    void sigQuotaReached(const QString &sentence);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace corva
