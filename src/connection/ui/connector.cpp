// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/ui/connector.h"

#include "connection/dialleroptions.h"
#include "connection/profilestore.h"
#include "connection/simprofile.h"
#include "connection/ui/choicedialog.h"
#include "connection/ui/credentialsdialog.h"
#include "device/cardmonitor.h"
#include "shell/whendone.h"
#include "widgets/messagequeue.h"

#include <QEvent>
#include <QPromise>
#include <QThreadPool>
#include <QWidget>
#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

ChoiceDialog::Choice choiceOf(const ApnProposal &proposal)
{
    const QString &plan = proposal.planName;
    return {proposal.operatorName, plan.isEmpty() || plan == proposal.operatorName ? proposal.apn : plan};
}

QString roamingQuestion()
{
    const QString own = DiallerOptions::fromConfiguration().roamingQuestion;
    return own.isEmpty()
               ? Connector::tr("You are connecting to a roaming network. Would you like to continue?")
               : own;
}

} // namespace

Connector::Connector(CardMonitor *monitor, ConnectionService *connection, ProfileStore *profiles,
                     MessageQueue *messages, QWidget *window)
    : QObject(window), m_monitor(monitor), m_connection(connection), m_profiles(profiles),
      m_messages(messages), m_window(window)
{
    connect(m_connection, &ConnectionService::sigMessage, m_messages, &MessageQueue::tell);
    connect(m_connection, &ConnectionService::sigRoamingAsked, this, &Connector::connectAbroad);
    m_window->installEventFilter(this);
    connect(m_monitor, &CardMonitor::sigStateChanged, this, &Connector::searchProposals);
    connect(m_monitor, &CardMonitor::sigStateChanged, this, &Connector::dropOutdatedQuestion);
    searchProposals();
}

bool Connector::isActive() const
{
    const ConnectionStatus &status = m_connection->status();
    return status.state != ConnectionState::NotConnected || status.redial > 0;
}

void Connector::toggle()
{
    if (isActive())
        disconnectNow();
    else
        connectNow();
}

void Connector::disconnectNow(ConnectionEnd why)
{
    if (m_connection->status().state != ConnectionState::Disconnecting)
        m_connection->disconnectNow(why);
}

void Connector::connectNow()
{
    dropWaitingQuestion();
    if (isActive() || m_dialog)
        return;
    m_mayRoam = false;
    switch (m_connection->obstacle()) {
    case ConnectObstacle::CallOnOtherNetwork:
        m_messages->tell(tr("Only UMTS network can connect while calling!"));
        return;
    case ConnectObstacle::CardGone:
        m_messages->tell(tr("The device has been disconnected or is unavailable."));
        return;
    case ConnectObstacle::Roaming: askAboutRoaming([this] { findProfile(); }); return;
    case ConnectObstacle::None: break;
    }
    findProfile();
}

void Connector::searchProposals()
{
    if (m_imsi == m_monitor->state().identity.imsi)
        return;
    if (!m_imsi.isEmpty()) // another SIM is not dialled because of a press that was meant for this one
        m_connectsThen = false;
    m_imsi = m_monitor->state().identity.imsi;
    m_proposals.clear();
    m_isSearching = true;
    // The database is large: it is read beside, once for each SIM.
    auto promise = std::make_shared<QPromise<std::vector<ApnProposal>>>();
    promise->start();
    whenDone(promise->future(), this,
             [this, imsi = m_imsi](const std::optional<std::vector<ApnProposal>> &found) {
                 if (imsi != m_imsi)
                     return; // of a SIM that was taken out meanwhile
                 m_isSearching = false;
                 m_proposals = found.value_or(std::vector<ApnProposal>());
                 Q_EMIT sigProposalsChanged();
                 if (std::exchange(m_connectsThen, false))
                     findProposal();
             });
    QThreadPool::globalInstance()->start([promise, imsi = m_imsi] {
        promise->addResult(imsi.isEmpty() ? std::vector<ApnProposal>() : apnProposals(imsi));
        promise->finish();
    });
}

void Connector::findProfile()
{
    const QString &imsi = m_monitor->state().identity.imsi;
    const auto chosen = m_profiles->defaultProfile();
    if (m_profiles->isDefaultBroken()) {
        dial(); // the service says so; the person chooses anew
        return;
    }
    if (chosen && isForSim(*chosen, imsi)) {
        askForCredentials();
        return;
    }
    if (const auto fitting = m_profiles->profileFor(imsi)) {
        useProfile(fitting->name());
        return;
    }
    m_connectsThen = m_isSearching;
    if (!m_connectsThen)
        findProposal();
}

void Connector::findProposal()
{
    if (!m_proposals.empty()) {
        chooseProposal();
        return;
    }
    QStringList names;
    for (const ConnectionProfile &profile : m_profiles->list())
        if (profile.isShown() && isForSim(profile, m_imsi))
            names += profile.name();
    if (names.size() == 1)
        useProfile(names.first());
    else if (!names.isEmpty())
        chooseProfile(names);
    else
        Q_EMIT sigProfileWanted();
}

void Connector::chooseProposal()
{
    const auto take = [this](const ApnProposal &proposal) {
        QString error;
        if (m_profiles->takeProposal(proposal, &error))
            askForCredentials();
        else
            complain(error);
    };
    if (m_proposals.size() == 1) {
        take(m_proposals.front());
        return;
    }
    std::vector<ChoiceDialog::Choice> choices;
    std::transform(m_proposals.begin(), m_proposals.end(), std::back_inserter(choices), choiceOf);
    const QString &name = m_proposals.front().operatorName;
    const bool isOneOperator =
        std::all_of(m_proposals.begin(), m_proposals.end(),
                    [&](const ApnProposal &each) { return each.operatorName == name; });
    auto *dialog = new ChoiceDialog(
        isOneOperator ? tr("Which access is yours?") : tr("Whose SIM card is it?"),
        isOneOperator ? tr("%1 has several. Choose yours; the choice is kept as a profile.").arg(name)
                      : tr("Several operators share this network. Choose yours; the choice is kept as a "
                           "profile."),
        tr("C&onnect"), choices, m_window);
    connect(dialog, &ChoiceDialog::sigChosen, this,
            [take, proposals = m_proposals](int index) { take(proposals.at(std::size_t(index))); });
    open(dialog);
}

void Connector::chooseProfile(const QStringList &names)
{
    std::vector<ChoiceDialog::Choice> choices;
    for (const QString &name : names)
        choices.push_back({name, {}});
    auto *dialog = new ChoiceDialog(tr("Which profile?"), tr("It is taken from now on."), tr("C&onnect"),
                                    choices, m_window);
    connect(dialog, &ChoiceDialog::sigChosen, this,
            [this, names](int index) { useProfile(names.at(index)); });
    open(dialog);
}

void Connector::useProfile(const QString &name)
{
    QString error;
    if (m_profiles->setDefault(name, &error))
        askForCredentials();
    else
        complain(error);
}

void Connector::askForCredentials()
{
    const auto profile = m_profiles->defaultProfile();
    if (!profile || !profile->asksForUser()) {
        dial();
        return;
    }
    auto *dialog = new CredentialsDialog(*profile, m_window);
    connect(dialog, &CredentialsDialog::sigEntered, this,
            [this, profile](const QString &userName, const QString &password, bool keep) {
                if (!keep) {
                    dial(DialCredentials{profile->name(), userName, password});
                    return;
                }
                ConnectionProfile kept = *profile;
                kept.setText(ProfileField::UserName, userName);
                kept.setText(ProfileField::Password, password);
                kept.setOn(ProfileField::SavesUserName, true);
                kept.setOn(ProfileField::AsksUserName, false);
                QString error;
                if (m_profiles->change(profile->name(), kept, &error))
                    dial();
                else
                    complain(error);
            });
    open(dialog);
}

/// No box comes out of a window that is hidden in the tray.
void Connector::connectAbroad()
{
    if (!m_window->isVisible()) {
        m_asksWhenShown = true;
        Q_EMIT sigQuestionWaits(roamingQuestion());
        return;
    }
    dropWaitingQuestion();
    if (m_connection->obstacle() == ConnectObstacle::Roaming)
        connectNow();
}

void Connector::dropWaitingQuestion()
{
    if (std::exchange(m_asksWhenShown, false))
        Q_EMIT sigQuestionOver();
}

/// A card that has no network for a moment is not asked about a second time: its question goes on waiting.
void Connector::dropOutdatedQuestion()
{
    const ConnectObstacle obstacle = m_connection->obstacle();
    const Registration registration = m_monitor->state().registration;
    const bool hasNetwork = registration == Registration::Home || registration == Registration::Roaming;
    if (obstacle == ConnectObstacle::CardGone)
        m_messages->withdraw(roamingQuestion());
    if (obstacle == ConnectObstacle::CardGone || (obstacle == ConnectObstacle::None && hasNetwork))
        dropWaitingQuestion();
}

bool Connector::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && m_asksWhenShown) // once it is there
        QMetaObject::invokeMethod(this, &Connector::connectAbroad, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void Connector::askAboutRoaming(const std::function<void()> &goOn)
{
    m_messages->ask(roamingQuestion(), [this, goOn] {
        m_mayRoam = true;
        goOn();
    });
}

/// Roaming may have begun while the person was at another step.
void Connector::dial(const std::optional<DialCredentials> &credentials)
{
    if (!m_mayRoam && m_connection->obstacle() == ConnectObstacle::Roaming)
        askAboutRoaming([this, credentials] { dial(credentials); });
    else
        m_connection->connectNow(credentials);
}

void Connector::open(QDialog *dialog)
{
    m_dialog = dialog;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void Connector::complain(const QString &error)
{
    m_messages->tell(error);
}

} // namespace corva
