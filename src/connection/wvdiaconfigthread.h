// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QThread>
#include <functional>
#include <sys/types.h>

namespace corva
{

/// Starts the dialler's child and passes on what it writes. The child leads a session of its own, has no
/// descriptor of this program but its output, and an environment of its own.
class WvdiaConfigThread : public QThread
{
    Q_OBJECT

public:
    /// `command` goes to the shell. `onFork` is called on the thread with the new child's process id, before
    /// the child does anything; a false answer ends the child again.
    WvdiaConfigThread(QByteArray command, std::function<bool(pid_t)> onFork);
    /// Stops reading; the child goes on.
    ~WvdiaConfigThread() override;

Q_SIGNALS:
    /// The child runs; -1 when it could not be made.
    void sigStarted(qint64 pid);
    void sigOutput(const QByteArray &chunk);
    /// Nobody holds the child's output any more.
    void sigOutputEnded();

protected:
    void run() override;

private:
    void passOutputOn(int output);

    const QByteArray m_command;
    const std::function<bool(pid_t)> m_onFork;
    int m_stopEvent = -1; ///< becomes readable when reading has to stop
};

} // namespace corva
