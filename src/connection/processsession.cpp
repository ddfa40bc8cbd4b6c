// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/processsession.h"

#include "shell/safefile.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <csignal>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

// Fields behind the name, which stands in brackets and may hold anything.
constexpr int stateField = 0;
constexpr int sessionField = 3;
constexpr int startTimeField = 19;

constexpr qint64 longestCommand = 4096;

struct Note {
    pid_t pid = 0; ///< 0 where there is none
    quint64 startTime = 0;
};

Note noteIn(const QString &path)
{
    constexpr qint64 longestNote = 64;
    const QList<QByteArray> words = readAtMost(path, longestNote).simplified().split(' ');
    return {words.at(0).toInt(), words.value(1).toULongLong()};
}

} // namespace

std::optional<ProcessStat> parseProcessStat(const QByteArray &line)
{
    const qsizetype open = line.indexOf('(');
    const qsizetype close = line.lastIndexOf(')');
    if (open < 0 || close < open)
        return std::nullopt;
    const QList<QByteArray> fields = line.mid(close + 1).simplified().split(' ');
    if (fields.size() <= startTimeField || fields.at(stateField).size() != 1)
        return std::nullopt;
    ProcessStat stat;
    bool isPid = false;
    stat.pid = line.left(open).trimmed().toInt(&isPid);
    stat.name = line.mid(open + 1, close - open - 1);
    stat.state = fields.at(stateField).at(0);
    stat.session = fields.at(sessionField).toInt();
    stat.startTime = fields.at(startTimeField).toULongLong();
    return isPid ? std::optional(stat) : std::nullopt;
}

std::optional<ProcessStat> processStat(pid_t pid)
{
    QFile file(u"/proc/%1/stat"_s.arg(pid));
    return file.open(QIODevice::ReadOnly) ? parseProcessStat(file.readAll()) : std::nullopt;
}

std::vector<ProcessStat> membersOfSession(pid_t session)
{
    std::vector<ProcessStat> members;
    if (session <= 1)
        return members;
    const QStringList entries = QDir(u"/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::NoSort);
    for (const QString &entry : entries) {
        const pid_t pid = entry.toInt();
        if (const auto stat = pid > 0 ? processStat(pid) : std::nullopt)
            if (stat->session == session && !stat->isZombie())
                members.push_back(*stat);
    }
    return members;
}

int signalSession(pid_t session, int signal, const QByteArray &name)
{
    int count = 0;
    for (const ProcessStat &member : membersOfSession(session))
        if ((name.isEmpty() || member.name == name) && kill(member.pid, signal) == 0)
            ++count;
    return count;
}

bool arePppScriptsRunning()
{
    const QStringList entries = QDir(u"/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::NoSort);
    return std::ranges::any_of(entries, [](const QString &entry) {
        QFile file(u"/proc/%1/cmdline"_s.arg(entry));
        if (entry.toInt() <= 0 || !file.open(QIODevice::ReadOnly))
            return false;
        // "/bin/sh /etc/ppp/ip-up ppp0 ...", "run-parts /etc/ppp/ip-up.d ...": an editor's second word, too,
        // but that is not waited for without end.
        const QList<QByteArray> words = file.read(longestCommand).split('\0');
        return std::any_of(words.begin(), words.begin() + std::min<qsizetype>(words.size(), 3),
                           [](const QByteArray &word) {
                               return word.startsWith("/etc/ppp/ip-") || word.startsWith("/etc/ppp/ipv6-");
                           });
    });
}

QByteArray processNote(const ProcessStat &process)
{
    return QByteArray::number(process.pid) + ' ' + QByteArray::number(qulonglong(process.startTime)) + '\n';
}

bool isNotedProcess(const QString &path)
{
    const Note note = noteIn(path);
    const auto now = note.pid > 1 ? processStat(note.pid) : std::nullopt;
    return now && !now->isZombie() && now->startTime == note.startTime;
}

bool noteSession(const QString &path, pid_t leader)
{
    const auto stat = processStat(leader);
    return stat && writeFileSafely(path, processNote(*stat));
}

pid_t notedSession(const QString &path)
{
    const Note note = noteIn(path);
    const auto now = note.pid > 1 ? processStat(note.pid) : std::nullopt;
    const bool isStranger = now && now->startTime != note.startTime;
    return isStranger || membersOfSession(note.pid).empty() ? 0 : note.pid;
}

} // namespace corva
