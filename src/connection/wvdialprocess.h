// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/diallerfiles.h"

#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>
#include <sys/types.h>

namespace corva
{

class WvdiaConfigThread;

/// The dialler's child while it lives: its start, its output, its end. Needs an event loop on its thread, and
/// the rights to dial.
///
/// The child is a shell around a pipe, which a signal to it alone would leave running. It leads a session
/// that wvdial and pppd belong to: whoever is in it is ours, and nobody else's dialler is touched.
class WvdialProcess : public QObject
{
    Q_OBJECT

public:
    /// `onRun` hears on the dialler's thread that it runs.
    WvdialProcess(DiallerFiles &files, std::function<void()> onRun, QObject *parent = nullptr);
    /// Leaves a child that still runs alone: see `slotKillWvdial`.
    ~WvdialProcess() override;

    /// Whether a dialler's child, or what it started, is there.
    bool isPresent() const { return m_child > 0; }
    /// False with a sentence when a child is there already or none can be made; otherwise `sigStarted`
    /// follows. `isAgain`: its output comes behind that of the one before.
    bool slotStartWvdial(bool isAgain, QString *error);
    /// Ends the dialler, gently first. `sigGone` follows, at once when there is none, and
    /// after 17 s for one that cannot be killed.
    void slotKillWvdial();
    /// Takes the dialler that an earlier run of this program left into this object's care.
    void adoptLeftover();

Q_SIGNALS:
    void sigStarted(bool isRunning);
    void sigOutput(const QByteArray &chunk);
    void sigGone();

private:
    void safeKillWvdail();
    void slotWaitWvdialClose();
    bool defunctWvdial() const;
    bool isGone();
    void takeKillStep();

    DiallerFiles &m_files;
    const std::function<void()> m_onRun;
    std::unique_ptr<WvdiaConfigThread> m_thread;
    QTimer m_poll;
    pid_t m_child = 0; ///< also the session's id
    bool m_isReaped = false;
    bool m_isOutputEnded = false;
    bool m_isKilling = false;
    int m_run = 0;             ///< tells one dialler's signals from the next one's
    int m_killWvdialCount = 0; ///< polls since the kill
    int m_emptyPolls = 0;      ///< polls since nobody was left
    int m_partingPolls = 0;    ///< polls of the killing in which there was no pppd
    std::size_t m_killStep = 0;
};

} // namespace corva
