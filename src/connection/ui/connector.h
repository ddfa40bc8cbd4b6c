// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/apnproposals.h"
#include "connection/connectionservice.h"

#include <QObject>
#include <QPointer>
#include <functional>
#include <optional>
#include <vector>

class QDialog;
class QWidget;

namespace corva
{

class CardMonitor;
class MessageQueue;
class ProfileStore;

/// What a press on Connect leads to: settles with the person what has to be settled (roaming, the profile,
/// the password) and dials. No step waits: each goes on when its dialog was answered. Tells what the service
/// has to say in boxes.
class Connector final : public QObject
{
    Q_OBJECT

public:
    /// `window` becomes the parent of the dialogs.
    Connector(CardMonitor *monitor, ConnectionService *connection, ProfileStore *profiles,
              MessageQueue *messages, QWidget *window);

    MessageQueue &messages() { return *m_messages; }
    /// Whether there is something to end: a link, a dial, or a row of redials.
    bool isActive() const;
    /// Asks whoever shows the profiles to open the one that is dialled.
    void editProfile() { Q_EMIT sigEditWanted(); }
    /// Connects, or ends what is active.
    void toggle();
    void connectNow();
    void disconnectNow(ConnectionEnd why = ConnectionEnd::ByPerson);

    /// The access points that the database knows for this SIM; none yet while it is searched.
    const std::vector<ApnProposal> &proposals() const { return m_proposals; }

Q_SIGNALS:
    void sigProposalsChanged();
    /// The person has to write a profile: nothing is known for this SIM.
    void sigProfileWanted();
    /// Of the profile that is dialled.
    void sigEditWanted();
    /// A question that waits until the window is shown.
    void sigQuestionWaits(const QString &question);
    /// It waits no longer: it is asked now, or there is nothing to ask any more.
    void sigQuestionOver();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void searchProposals();
    void findProfile();
    void findProposal();
    void chooseProposal();
    void chooseProfile(const QStringList &names);
    void useProfile(const QString &name);
    void askForCredentials();
    void connectAbroad();
    void dropWaitingQuestion();
    void dropOutdatedQuestion();
    void askAboutRoaming(const std::function<void()> &goOn);
    void dial(const std::optional<DialCredentials> &credentials = std::nullopt);
    void open(QDialog *dialog);
    void complain(const QString &error);

    CardMonitor *m_monitor;
    ConnectionService *m_connection;
    ProfileStore *m_profiles;
    MessageQueue *m_messages;
    QWidget *m_window;
    QPointer<QDialog> m_dialog; ///< the step that the person is at
    QString m_imsi;             ///< whose proposals they are
    bool m_isSearching = false;
    bool m_mayRoam = false;       ///< the person was asked for this dial
    bool m_asksWhenShown = false; ///< about roaming, for a connection that nobody pressed a button for
    bool m_connectsThen = false;  ///< Connect was pressed and waits for the search
    std::vector<ApnProposal> m_proposals;
};

} // namespace corva
