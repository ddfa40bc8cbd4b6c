// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <sys/types.h>
#include <vector>

namespace corva
{

/// A process as "/proc/<pid>/stat" tells it. Source: proc(5).
struct ProcessStat {
    pid_t pid = 0;
    QByteArray name; ///< the program's name, at most 15 bytes
    char state = 0;  ///< 'Z' for a zombie
    pid_t session = 0;
    quint64 startTime = 0; ///< ticks since boot: together with the id it names one process for ever

    bool isZombie() const { return state == 'Z' || state == 'X'; }
};

/// nullopt for a line that is not of that form.
std::optional<ProcessStat> parseProcessStat(const QByteArray &line);
/// nullopt when there is no such process.
std::optional<ProcessStat> processStat(pid_t pid);

/// The living members of a session, zombies left out. A session's id is not given to another process while
/// one of them lives.
std::vector<ProcessStat> membersOfSession(pid_t session);
/// Sends `signal` to those of that name, or to all with an empty name. How many there were.
int signalSession(pid_t session, int signal, const QByteArray &name = {});

/// Whether a script runs with which pppd tells the system that a link came up or went down. They lead
/// sessions of their own, and go on when pppd ends before them.
bool arePppScriptsRunning();

/// A process as a file names it for other programs: "<pid> <start time>".
QByteArray processNote(const ProcessStat &process);
/// Whether the process that the file names lives. A stranger that got the same process id meanwhile is
/// another.
bool isNotedProcess(const QString &path);

/// A session that this program started, kept in a file for the next start of the program should this one die,
/// as a note of its leader.
bool noteSession(const QString &path, pid_t leader);
/// The session noted in the file when members of it still live; 0 otherwise. A stranger that got the same
/// process id meanwhile is none.
pid_t notedSession(const QString &path);

} // namespace corva
