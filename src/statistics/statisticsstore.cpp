// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/statisticsstore.h"

#include "shell/logging.h"
#include "shell/safefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr qint64 largestFile = 64LL * 1024 * 1024;

/// Null when there is a file that cannot be read, or is too large to be ours.
QByteArray readWhole(const QString &path)
{
    const QByteArray bytes = readAtMost(path, largestFile + 1);
    return bytes.size() > largestFile ? QByteArray() : bytes;
}

/// Reads one file by its parser. Of a broken one the whole is kept beside, and a sentence added.
template <typename Content>
Content readFile(const QString &path, ParsedStatistics<Content> (*parse)(const QByteArray &),
                 QStringList &problems)
{
    if (!QFileInfo::exists(path))
        return {};
    auto parsed = parse(readWhole(path));
    if (parsed.problem.isEmpty())
        return parsed.content;
    qCWarning(lcShell).noquote() << logTime() + path << parsed.problem;
    const QString kept = keepBrokenFile(path);
    const QString name = QFileInfo(path).fileName();
    problems += kept.isEmpty()
                    ? StatisticsStore::tr("%1 could not be read in full.").arg(name)
                    : StatisticsStore::tr("%1 could not be read in full. What stood in it is kept as %2.")
                          .arg(name, QFileInfo(kept).fileName());
    return parsed.content;
}

bool removeFile(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.exists() || file.remove())
        return true;
    *error = StatisticsStore::tr("%1 cannot be removed: %2").arg(path, file.errorString());
    return false;
}

} // namespace

StatisticsStore::StatisticsStore(const QString &folder, QObject *parent)
    : QObject(parent), m_totalsFile(folder + u"/traffic.xml"_s),
      m_historyFile(folder + u"/historyRecord.xml"_s), m_sessionFile(folder + u"/traffic-session.xml"_s)
{
    m_writer.setMaxThreadCount(1);
}

StatisticsStore::~StatisticsStore()
{
    m_writer.waitForDone();
}

LoadedStatistics StatisticsStore::load()
{
    LoadedStatistics loaded;
    loaded.totals = readFile(m_totalsFile, &parseTotals, loaded.problems);
    loaded.history = readFile(m_historyFile, &parseHistory, loaded.problems);
    if (RunningSession left = readFile(m_sessionFile, &parseSession, loaded.problems); left.last.isValid())
        loaded.left = std::move(left);
    return loaded;
}

QString StatisticsStore::write(const StatisticsChange &change) const
{
    QString error;
    const auto put = [&error](const QString &path, const QByteArray &content) {
        return writeFileSafely(path, content, &error);
    };
    const bool isDone = (!change.closed || put(m_sessionFile, formatSession(*change.closed))) &&
                        (!change.totals || put(m_totalsFile, formatTotals(*change.totals))) &&
                        (!change.history || put(m_historyFile, formatHistory(*change.history))) &&
                        (change.running ? put(m_sessionFile, formatSession(*change.running))
                                        : removeFile(m_sessionFile, &error));
    return isDone ? QString() : error;
}

void StatisticsStore::save(const StatisticsChange &change)
{
    m_writer.start([this, change] { Q_EMIT sigSaved(write(change)); });
}

void StatisticsStore::exportFile(const QString &path, const QByteArray &content)
{
    m_writer.start([this, path, content] {
        QString error;
        writeFileSafely(path, content, &error);
        Q_EMIT sigExported(path, error);
    });
}

QString StatisticsStore::saveNow(const StatisticsChange &change)
{
    m_writer.waitForDone();
    return write(change);
}

} // namespace corva
