// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/statisticsxml.h"

#include <QObject>
#include <QStringList>
#include <QThreadPool>

namespace corva
{

/// What stood on disk when the program started.
struct LoadedStatistics {
    StoredTotals totals;
    std::vector<HistoryRecord> history;
    std::optional<RunningSession> left; ///< a session that nobody closed
    QStringList problems;               ///< sentences for the person
};

/// What is to be written, in the order of the members, as far as it is given: so that a stop between two of
/// them loses nothing and counts nothing twice.
struct StatisticsChange {
    std::optional<RunningSession> closed; ///< with how it ended, before its bytes stand in the totals
    std::optional<StoredTotals> totals;
    std::optional<std::vector<HistoryRecord>> history;
    std::optional<RunningSession> running; ///< none: the file of the session is removed
};

/// The three files "traffic.xml", "historyRecord.xml" and "traffic-session.xml" in one folder. They are read
/// at the start and written on a thread of its own, one change after another.
class StatisticsStore final : public QObject
{
    Q_OBJECT

public:
    explicit StatisticsStore(const QString &folder, QObject *parent = nullptr);
    /// Waits for what is being written.
    ~StatisticsStore() override;

    /// A file that cannot be read in full is kept beside, with the time in its name; what could be read of it
    /// counts.
    LoadedStatistics load();
    /// Begins to write; `sigSaved` says how it went.
    void save(const StatisticsChange &change);
    /// Another file of the person's, on the same thread; `sigExported` says how it went.
    void exportFile(const QString &path, const QByteArray &content);
    /// Writes at once, after what is being written. Returns why it failed, empty when it went well.
    QString saveNow(const StatisticsChange &change);

Q_SIGNALS:
    /// `error` is a sentence, empty when everything is on disk.
    void sigSaved(const QString &error);
    void sigExported(const QString &path, const QString &error);

private:
    QString write(const StatisticsChange &change) const;

    QString m_totalsFile;
    QString m_historyFile;
    QString m_sessionFile;
    QThreadPool m_writer;
};

} // namespace corva
