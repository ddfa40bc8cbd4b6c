// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/dhcpclient.h"
#include "connection/dialrequest.h"
#include "connection/wvdialprocess.h"

#include <QDeadlineTimer>
#include <QObject>
#include <deque>

namespace corva
{

/// Carries out the requests to the dialler's side, one after another. Lives on a thread with an event loop
/// and the rights to dial: in the program when it runs as root, in the helper program otherwise.
class DialWork : public QObject
{
    Q_OBJECT

public:
    /// Why a request is refused, or an empty text; may put right what the request says.
    using Check = std::function<DialResult(DialRequest &)>;

    /// `onRun` hears when a dialler runs, on another thread.
    DialWork(const SystemFiles &files, std::function<void()> onRun, Check check = {},
             QObject *parent = nullptr);

    /// Queues the request; `sigDone` answers it. What ends a link ends a lease that is still asked for.
    void ask(const DialRequest &request);
    /// Drops what waits, ends the dialler and the lease and puts the files back. `sigShutDown` follows.
    void shutDown();

    /// The interface that has an address from here, or is asking for one.
    const QString &leasedInterface() const { return m_leased; }
    /// Whether the dialler's files hold what was asked for last, and it may be started.
    bool isWritten() const { return m_isWritten; }
    /// How many requests are not answered yet.
    std::size_t waitingCount() const { return m_requests.size(); }

Q_SIGNALS:
    void sigDone(const corva::DialResult &result);
    void sigOutput(const QByteArray &chunk);
    void sigDiallerGone();
    void sigShutDown();

private:
    void carryOutNext();
    void carryOut(DialRequest request);
    bool isAskingForLease() const;
    bool isEndWaiting() const; ///< what ends a link waits to be carried out
    void dial();
    void killWvdialReconnect();
    QString leaseNote() const;
    void slotWaitWvdialCloseReconnect();
    void leaseDone(const QString &error);
    void saveFiles();
    void recoverFiles();
    void setNameServers(int quietLooks);
    void runRouteHelper();
    void answer(const DialResult &result);
    void answer(bool isDone, const QString &error);

    const Check m_check;
    DiallerFiles m_files;
    WvdialProcess m_wvdial;
    DhcpClient m_dhcp;
    QString m_leased;
    std::deque<DialRequest> m_requests; ///< the first is being carried out, while busy
    QDeadlineTimer m_scriptsEnd;        ///< pppd's scripts are not waited for any longer
    bool m_isBusy = false;
    bool m_hasSaved = false;
    bool m_isWritten = false;
    bool m_hasDialled = false; ///< since it was written
    bool m_isLinked = false;   ///< the dialler runs, or an interface has its address from here
    bool m_isShuttingDown = false;
};

} // namespace corva
