// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionstate.h"
#include "connection/dialpermission.h"

#include <QObject>
#include <QUrl>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>

/// 1 from the start of dialling until the outcome is known. For any thread.
extern std::atomic<int> connecting;

namespace corva
{

class CardMonitor;
class DiallerBackend;
class ProfileStore;
struct LinkFacts;

/// What the service works with: who has the rights to dial, and who knows the system's network interfaces.
struct ConnectionParts {
    ConnectionParts(); ///< the real ones
    ~ConnectionParts();
    ConnectionParts(ConnectionParts &&) noexcept;
    std::unique_ptr<DiallerBackend> backend;
    std::function<LinkFacts(const QString &interfaceName)> facts;
    /// Whether an earlier run of the program left the system's files changed.
    std::function<bool()> hasLeftovers;
    /// Which loss of the system's own files is on record; empty: none.
    std::function<QString()> latestLoss;
};

/// The data connection: dials by the profile, watches, ends, dials again. Lives on the GUI thread and never
/// waits there: card commands run on the card worker, files and the dialler behind a `DiallerBackend`.
class ConnectionService : public QObject
{
    Q_OBJECT

public:
    ConnectionService(CardMonitor *monitor, ProfileStore *profiles, QObject *parent = nullptr);
    ConnectionService(CardMonitor *monitor, ProfileStore *profiles, ConnectionParts parts,
                      QObject *parent = nullptr);
    /// As `shutDown`.
    ~ConnectionService() override;

    /// For a program that ends: ends a link that is up and puts the system's files back. Blocks, for as long
    /// as pppd needs to hang up. Call it while the card still answers, before its monitor is stopped.
    void shutDown();

    const ConnectionStatus &status() const { return m_status; }
    ProfileStore &profiles();

    /// Puts back what an earlier run of the program left, and tells what it could not. Called once, at the
    /// start.
    void recoverLeftovers();

    ConnectObstacle obstacle() const;
    /// Dials by the profile in "/Data/defaultRecord.conf". Does nothing while a dialler is there: false.
    /// An obstacle other than roaming is told, and nothing dialled: false as well.
    bool connectNow(const std::optional<DialCredentials> &credentials = std::nullopt);
    /// Ends the link, the dial or the row of redials.
    void disconnectNow(ConnectionEnd why = ConnectionEnd::ByPerson);

    /// Bytes that the link carried so far, both ways; what idleness is judged by.
    void setByteCounter(std::function<std::optional<quint64>()> counter);
    /// Whether a voice call is up.
    void setCallUp(bool isUp);

Q_SIGNALS:
    void sigStatusChanged(const corva::ConnectionStatus &status);

    // What the status says as well, for who waits for one change alone.
    void sigConnectingStart();
    void sigConnectingEnd();
    /// The link came up, or is up no longer.
    void sigUpdateConnectPixmap(bool isConnected);
    /// A link that was up is over: the history has one more.
    void sigUpdateHis();

    /// The card gets its context now: PDP type and access point, empty for one of the network's choice.
    void sigPDPSetCommand(const QString &type, const QString &apn);
    /// A box for the person: why a connection failed, or why it was ended.
    void sigMessage(const QString &text);
    /// It would connect by itself, but for roaming: whether to is the person's to say, as at a press on
    /// Connect. Once for a card, or for a row of redials.
    void sigRoamingAsked();
    /// The profile's page, to be opened in the browser: http or https.
    void sigOpenUrl(const QUrl &url);

private:
    ConnectionStatus m_status;
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace corva
