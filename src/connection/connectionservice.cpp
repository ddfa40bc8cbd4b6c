// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/connectionservice.h"

#include "connection/datacall.h"
#include "connection/dialleroptions.h"
#include "connection/endsentence.h"
#include "connection/idlemonitor.h"
#include "connection/linkplanning.h"
#include "connection/profilechecks.h"
#include "connection/profilestore.h"
#include "connection/redial.h"
#include "connection/simprofile.h"
#include "device/cardmonitor.h"
#include "link/cardworker.h"
#include "shell/globals.h"
#include "shell/logging.h"
#include "shell/safefile.h"
#include "shell/whendone.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

std::atomic<int> connecting = 0;

namespace corva
{

namespace
{

constexpr auto refreshPeriod = 500ms;
constexpr int mostLeftCallTries = 3;

QUrl pageOf(const ConnectionProfile &profile)
{
    const QString text = profile.text(ProfileField::DefaultOpenUrl).trimmed();
    const QUrl url = QUrl::fromUserInput(text);
    return isWebAddress(text) && !url.host().isEmpty() ? url : QUrl();
}

/// Which loss of the system's files the person has been told of.
QString toldLossFile()
{
    return basePath + u"/Data/told-loss"_s;
}

/// A CDMA card may say nothing of a registration, and even nothing at all.
bool hasNetwork(const CardState &card)
{
    const bool saysNothing = card.family == CardFamily::Cdma && card.registration == Registration::Unknown;
    return card.registration == Registration::Home || card.registration == Registration::Roaming ||
           (saysNothing && card.service != ServiceState::None);
}

} // namespace

ConnectionParts::ConnectionParts()
    : backend(makeDiallerBackend()), facts([](const QString &interfaceName) {
          return linkFacts(interfaceName, DiallerOptions::fromConfiguration().resolverFile);
      }),
      hasLeftovers([] { return DiallerFiles().hasLeftovers(); }), latestLoss([] {
          const QFileInfo record(SystemFiles().lost);
          return record.exists() ? record.lastModified().toUTC().toString(Qt::ISODateWithMs) : QString();
      })
{
}
ConnectionParts::ConnectionParts(ConnectionParts &&) noexcept = default;
ConnectionParts::~ConnectionParts() = default;

class ConnectionService::Private
{
public:
    Private(ConnectionService *service, CardMonitor *cardMonitor, ProfileStore *store,
            ConnectionParts theParts);

    bool mayDial();
    bool dialDefault();
    bool dial(ConnectionProfile profile);
    void wentUp(const ConnectionProfile &profile);
    ConnectionStatus ended(ConnectionEnd end) const;
    void isOver(const LinkOutcome &outcome);
    void tellOrRedial(const LinkOutcome &outcome, bool wasUp);
    void autoReConnWhenAbnormalDisconn();
    void slotAutoRedial();
    void tellUntold();
    void tellNotPutBack(const QString &sentence);
    void noteToldLoss(const QString &loss);
    void tellOfLoss();
    void endUndialled();
    void missCard();
    bool dialUnasked();
    void beginRow(const Redial::Row &row);
    void endRow();
    void autoConnect(const CardState &card);
    void takeCard(const CardState &card);
    void endLeftDataCall(const CardState &card);
    void becameIdle();
    void refresh();
    void takeFacts(ConnectionStatus &status) const;
    void refuse(ConnectionEnd end, const QString &message);

    /// Changes the status and tells it, if there is a difference.
    template <typename Change> void update(Change change);
    void tellChange(const ConnectionStatus &before, const ConnectionStatus &now);

    ConnectionService *q;
    CardMonitor *monitor;
    ProfileStore *profiles;
    ConnectionParts parts;
    DataLink *link = nullptr; ///< a child of the service; null while nothing is dialled
    Redial redial;
    IdleMonitor idle;
    QTimer refreshTimer;
    DialPermission given;
    bool isCallUp = false;
    bool wasReady = false;
    int leftCallTries = 0;            ///< to end a call that the card does not speak of
    std::optional<QString> knownImei; ///< of the card; empty while it does not tell it
    bool wasAbroad = false;           ///< and ready otherwise
    QString untold;                   ///< why a link broke, while a row of redials may mend it
    QString lossBefore;               ///< on record when the system's files were taken in hand
    bool hasToldOfCard = false;       ///< in this row of redials
    bool isShutDown = false;
};

template <typename Change> void ConnectionService::Private::update(Change change)
{
    ConnectionStatus status = q->m_status;
    change(status);
    status.redial = redial.number();
    status.redials = redial.times();
    if (status == q->m_status)
        return;
    const ConnectionStatus before = std::exchange(q->m_status, status);
    connecting = status.state == ConnectionState::Connecting;
    Q_EMIT q->sigStatusChanged(status);
    tellChange(before, status);
}

void ConnectionService::Private::tellChange(const ConnectionStatus &before, const ConnectionStatus &now)
{
    const auto isNow = [&](ConnectionState state) { return now.state == state; };
    const auto differs = [&](ConnectionState state) { return isNow(state) != (before.state == state); };
    if (differs(ConnectionState::Connecting))
        isNow(ConnectionState::Connecting) ? Q_EMIT q->sigConnectingStart() : Q_EMIT q->sigConnectingEnd();
    if (differs(ConnectionState::Connected))
        Q_EMIT q->sigUpdateConnectPixmap(isNow(ConnectionState::Connected));
    if (isNow(ConnectionState::NotConnected) && before.since.isValid())
        Q_EMIT q->sigUpdateHis();
}

ConnectionService::Private::Private(ConnectionService *service, CardMonitor *cardMonitor, ProfileStore *store,
                                    ConnectionParts theParts)
    : q(service), monitor(cardMonitor), profiles(store), parts(std::move(theParts))
{
    refreshTimer.setInterval(refreshPeriod);
    connect(&refreshTimer, &QTimer::timeout, q, [this] { refresh(); });
    connect(&redial, &Redial::sigDial, q, [this] { slotAutoRedial(); });
    connect(&idle, &IdleMonitor::sigIdle, q, [this] { becameIdle(); });
    connect(monitor, &CardMonitor::sigStateChanged, q, [this](const CardState &card) { takeCard(card); });
}

/// Whether nothing runs and nothing stands in the way but roaming; tells what does.
bool ConnectionService::Private::mayDial()
{
    switch (q->obstacle()) {
    case ConnectObstacle::CallOnOtherNetwork:
        Q_EMIT q->sigMessage(tr("Only UMTS network can connect while calling!"));
        return false;
    case ConnectObstacle::CardGone:
        Q_EMIT q->sigMessage(tr("The device has been disconnected or is unavailable."));
        return false;
    case ConnectObstacle::Roaming:
    case ConnectObstacle::None: return true;
    }
    return true;
}

bool ConnectionService::Private::dialDefault()
{
    const auto profile = profiles->defaultProfile();
    if (!profile) {
        refuse(ConnectionEnd::FilesFailed, tr("Can't open deault config file!"));
        return false;
    }
    return dial(*profile);
}

bool ConnectionService::Private::dial(ConnectionProfile profile)
{
    given.fillIn(profile);
    const DiallerOptions options = DiallerOptions::fromConfiguration();
    const PlannedLink planned = planLink(profile, monitor->state(), options);
    if (!planned.refusal.isEmpty()) {
        refuse(ConnectionEnd::DiallerFailed, planned.refusal);
        return false;
    }
    lossBefore = parts.latestLoss();
    link = makeLink(planned, options, *monitor, *parts.backend, parts.facts, q);
    connect(link, &DataLink::sigUp, q, [this, profile] { wentUp(profile); });
    connect(link, &DataLink::sigPDPSetCommand, q, &ConnectionService::sigPDPSetCommand);
    connect(link, &DataLink::sigMessage, q, &ConnectionService::sigMessage);
    connect(link, &DataLink::sigOver, q, [this](const LinkOutcome &outcome) { isOver(outcome); });
    connect(link, &DataLink::sigEnding, q, [this] {
        idle.stopAutoDisconnectMonitor();
        refreshTimer.stop();
        update([](ConnectionStatus &status) { status.state = ConnectionState::Disconnecting; });
    });
    update([&](ConnectionStatus &status) {
        status = {};
        status.state = ConnectionState::Connecting;
        status.kind = planned.kind;
        status.profileName = profile.name();
        status.apn = profile.isOn(ProfileField::UsesApn) ? profile.text(ProfileField::Apn) : QString();
        status.isRoaming = isRoaming(monitor->state());
    });
    link->start();
    return true;
}

/// A dial that does not even begin.
void ConnectionService::Private::refuse(ConnectionEnd end, const QString &message)
{
    redial.stop();
    given = {};
    update([&](ConnectionStatus &status) {
        status = {};
        status.end = end;
        status.endSentence = message;
    });
    Q_EMIT q->sigMessage(message);
}

void ConnectionService::Private::wentUp(const ConnectionProfile &profile)
{
    const DiallerOptions options = DiallerOptions::fromConfiguration();
    redial.stop();
    untold.clear();
    update([this](ConnectionStatus &status) {
        status.state = ConnectionState::Connected;
        status.since = QDateTime::currentDateTime();
        takeFacts(status); // who counts begins with the interface's name
    });
    if (!link || !link->isUp())
        return; // whoever heard of it has ended it
    refreshTimer.start();
    if (options.idleLimit)
        idle.launchAutoDisconnectMonitor(*options.idleLimit);
    if (const QUrl url = pageOf(profile); options.opensUrl && !url.isEmpty())
        Q_EMIT q->sigOpenUrl(url);
}

void ConnectionService::Private::refresh()
{
    if (link)
        update([this](ConnectionStatus &status) { takeFacts(status); });
}

void ConnectionService::Private::takeFacts(ConnectionStatus &status) const
{
    const LinkFacts facts = link->facts();
    status.interfaceName = facts.interfaceName;
    status.localAddress = facts.localAddress;
    status.peerAddress = facts.peerAddress;
    status.nameServers = facts.nameServers;
    status.hasDefaultRoute = facts.hasDefaultRoute;
    status.isRoaming = isRoaming(monitor->state());
}

void ConnectionService::Private::isOver(const LinkOutcome &outcome)
{
    const bool wasUp = q->m_status.since.isValid();
    link->deleteLater();
    link = nullptr;
    if (DataCall::isNoted()) // the card has not said that it has ended the call
        knownImei.reset();
    tellOrRedial(outcome, wasUp);
}

/// A box of the outcome only where no further dial follows; the status first, so that who reads the box sees
/// it.
void ConnectionService::Private::tellOrRedial(const LinkOutcome &outcome, bool wasUp)
{
    const QString sentence = outcome.sentence.isEmpty() ? endSentence(outcome.end) : outcome.sentence;
    const bool isWorthIt = isWorthAnotherDial(outcome.end);
    bool dialsAgain = false;
    if (redial.isActive() && isWorthIt)
        dialsAgain = redial.next();
    else
        redial.stop();
    if (wasUp && isWorthIt)
        autoReConnWhenAbnormalDisconn();
    dialsAgain = dialsAgain || redial.isActive();
    if (!dialsAgain)
        given = {};

    update([&](ConnectionStatus &status) {
        status = ended(outcome.end);
        status.exitCode = outcome.exitCode;
        status.endSentence = sentence;
    });
    const QString message = outcome.message.isEmpty() && wasUp && isWorthIt ? sentence : outcome.message;
    untold = message;
    if (!dialsAgain)
        tellUntold();
    // A file of the system's own: told whatever follows. Nobody sees it when the program ends; the next start
    // finds it on record.
    if (!outcome.notPutBack.isEmpty() && outcome.end != ConnectionEnd::ByProgram)
        tellNotPutBack(outcome.notPutBack);
}

void ConnectionService::Private::tellUntold()
{
    if (const QString message = std::exchange(untold, {}); !message.isEmpty())
        Q_EMIT q->sigMessage(message);
}

/// The sentence is about a loss only where there was one: an earlier one is still to be told.
void ConnectionService::Private::tellNotPutBack(const QString &sentence)
{
    if (const QString loss = parts.latestLoss(); loss != lossBefore)
        noteToldLoss(loss);
    Q_EMIT q->sigMessage(sentence);
}

void ConnectionService::Private::noteToldLoss(const QString &loss)
{
    if (!loss.isEmpty())
        writeFileSafely(toldLossFile(), loss.toUtf8());
}

/// What a run lost that could not say so any more: it ended just then, or was killed.
void ConnectionService::Private::tellOfLoss()
{
    constexpr qint64 longest = 64;
    const QString loss = parts.latestLoss();
    if (loss.isEmpty() || readAtMost(toldLossFile(), longest) == loss.toUtf8())
        return;
    noteToldLoss(loss);
    Q_EMIT q->sigMessage(QCoreApplication::translate("DiallerFiles", "Recover wvdial config data failed!"));
}

/// What stays known of a link that is over.
ConnectionStatus ConnectionService::Private::ended(ConnectionEnd end) const
{
    ConnectionStatus status;
    status.kind = q->m_status.kind;
    status.profileName = q->m_status.profileName;
    status.apn = q->m_status.apn;
    status.end = end;
    return status;
}

void ConnectionService::Private::autoReConnWhenAbnormalDisconn()
{
    const DiallerOptions options = DiallerOptions::fromConfiguration();
    if (options.redials)
        beginRow(options.redial);
}

/// One dial of a row that nobody pressed a button for.
void ConnectionService::Private::slotAutoRedial()
{
    if (link)
        return;
    if (q->obstacle() == ConnectObstacle::CardGone)
        missCard();
    else if (!dialUnasked())
        endUndialled();
    update([](ConnectionStatus &) {});
}

/// The row is over before its links have said all: what broke the last one is told now.
void ConnectionService::Private::endUndialled()
{
    const bool asks = isRoaming(monitor->state()) && !given.mayRoam;
    endRow();
    update([](ConnectionStatus &) {}); // who is asked or told sees that nothing is under way
    tellUntold();
    if (asks)
        Q_EMIT q->sigRoamingAsked();
}

/// A dial of the row that has no card to go by: one box for the row, and the next dial.
void ConnectionService::Private::missCard()
{
    const QString message = tr("The device has been disconnected or is unavailable.");
    if (untold == message)
        untold.clear();
    if (!std::exchange(hasToldOfCard, true))
        Q_EMIT q->sigMessage(message);
    if (redial.next())
        return;
    given = {};
    tellUntold();
}

/// Roaming costs, and a password has to be entered: there a person decides.
bool ConnectionService::Private::dialUnasked()
{
    if ((isRoaming(monitor->state()) && !given.mayRoam) || !mayDial())
        return false;
    const auto profile = profileForSim(*profiles, monitor->state().identity.imsi);
    if (profile) {
        if (const auto chosen = profiles->defaultProfile(); !chosen || chosen->name() != profile->name())
            profiles->setDefault(profile->name()); // as a press on Connect does
        return given.mayDialUnasked(*profile) && dial(*profile);
    }
    return !profiles->defaultProfile() && dialDefault(); // which says that there is none
}

void ConnectionService::Private::beginRow(const Redial::Row &row)
{
    hasToldOfCard = false;
    redial.autoRedialNetwork(row);
}

void ConnectionService::Private::endRow()
{
    redial.stop();
    given = {};
}

void ConnectionService::Private::takeCard(const CardState &card)
{
    const bool isGone = card.presence == CardPresence::Absent || card.presence == CardPresence::StorageMode;
    if (isGone && link)
        link->end(
            {ConnectionEnd::CardGone, -1, tr("The device has been disconnected or is unavailable."), {}});
    endLeftDataCall(card);
    autoConnect(card);
}

/// A killed run, or a card that was gone, leaves a data call up that nobody uses. Whose it is only the IMEI
/// tells, which may come later than the rest, or never.
void ConnectionService::Private::endLeftDataCall(const CardState &card)
{
    const QString &imei = card.identity.imei;
    const bool isKnown = card.modemReady && !(imei.isEmpty() && card.identity.model.isEmpty());
    const auto known = isKnown ? std::optional(imei) : std::nullopt;
    const bool isNews = known != std::exchange(knownImei, known);
    if (!known)
        leftCallTries = 0;
    if (!known || !isNews || link || !DataCall::isNoted())
        return;
    const auto job =
        monitor->worker().submit([imei](SerialThread &port) { return DataCall::endNoted(port, imei); });
    whenDone(job, q, [this](std::optional<bool> wasAnswered) {
        if (!wasAnswered.value_or(false) && ++leftCallTries < mostLeftCallTries)
            knownImei.reset(); // again with the card's next sign of life
    });
}

/// Dials once for each time that a card becomes ready. Abroad it would cost: there the person is asked, once
/// for that card as well.
void ConnectionService::Private::autoConnect(const CardState &card)
{
    const bool isReady = card.presence == CardPresence::Ready && card.modemReady && hasNetwork(card) &&
                         isSimKnown(*profiles, card.identity.imsi);
    const bool isAbroad = isReady && isRoaming(card);
    const bool isHome = isReady && !isAbroad;
    const bool becameHome = isHome && !wasReady;
    const bool becameAbroad = isAbroad && !wasAbroad && !wasReady;
    wasReady = isHome || (wasReady && card.presence == CardPresence::Ready);
    wasAbroad = isAbroad || (wasAbroad && card.presence == CardPresence::Ready);
    const DiallerOptions options = DiallerOptions::fromConfiguration();
    if (!(becameHome || becameAbroad) || !options.connectsByItself || link || redial.isActive())
        return;
    if (isAbroad) {
        Q_EMIT q->sigRoamingAsked();
        return;
    }
    given = {};
    beginRow(options.automatic);
    update([](ConnectionStatus &) {});
}

void ConnectionService::Private::becameIdle()
{
    if (!link || !link->isUp())
        return;
    Q_EMIT q->sigMessage(
        tr("There is no data transported recently. Auto Disconnect will close your internet link."));
    link->end({ConnectionEnd::Idle, -1, {}, {}});
}

ConnectionService::ConnectionService(CardMonitor *monitor, ProfileStore *profiles, QObject *parent)
    : ConnectionService(monitor, profiles, ConnectionParts(), parent)
{
}

ConnectionService::ConnectionService(CardMonitor *monitor, ProfileStore *profiles, ConnectionParts parts,
                                     QObject *parent)
    : QObject(parent), d(std::make_unique<Private>(this, monitor, profiles, std::move(parts)))
{
}

ConnectionService::~ConnectionService()
{
    shutDown();
}

ProfileStore &ConnectionService::profiles()
{
    return *d->profiles;
}

void ConnectionService::shutDown()
{
    if (std::exchange(d->isShutDown, true))
        return;
    d->redial.stop();
    d->idle.stopAutoDisconnectMonitor();
    d->refreshTimer.stop();
    const bool hadLink = d->link;
    if (hadLink) {
        // While the interface is there: who counts reads it for the last time.
        d->update([](ConnectionStatus &status) { status.state = ConnectionState::Disconnecting; });
        d->link->abandon();
    }
    d->parts.backend->shutDown();
    delete std::exchange(d->link, nullptr);
    d->update([&](ConnectionStatus &status) {
        if (hadLink)
            status = d->ended(ConnectionEnd::ByProgram);
    });
}

void ConnectionService::recoverLeftovers()
{
    if (!d->parts.hasLeftovers()) {
        d->tellOfLoss();
        return;
    }
    d->lossBefore = d->parts.latestLoss();
    d->parts.backend->ask({.verb = DialVerb::Recover}, [this](const DialResult &result) {
        if (result.kind == DialResult::Kind::NoRights)
            Q_EMIT sigMessage(
                tr("An earlier connection was cut off and has left its own settings in files of "
                   "the system. Start Corva again and enter the password: it puts them back."));
        else if (!result.isDone())
            d->tellNotPutBack(result.error);
        else
            d->tellOfLoss();
    });
}

ConnectObstacle ConnectionService::obstacle() const
{
    return obstacleOf(d->monitor->state(), d->isCallUp);
}

bool ConnectionService::connectNow(const std::optional<DialCredentials> &credentials)
{
    if (d->link || d->isShutDown) {
        qCDebug(lcConnection).noquote() << logTime() + u"======= exit startwvdial false ======"_s;
        return false;
    }
    d->redial.stop();
    d->untold.clear();
    d->given = {credentials, isRoaming(d->monitor->state())};
    const bool isDialling = d->mayDial() && d->dialDefault();
    d->update([](ConnectionStatus &) {}); // a row of redials may have ended
    return isDialling;
}

void ConnectionService::disconnectNow(ConnectionEnd why)
{
    d->untold.clear();
    d->endRow();
    if (d->link)
        d->link->end({why, -1, {}, {}});
    d->update([](ConnectionStatus &) {});
}

void ConnectionService::setByteCounter(std::function<std::optional<quint64>()> counter)
{
    d->idle.setCounter(std::move(counter));
}

void ConnectionService::setCallUp(bool isUp)
{
    d->isCallUp = isUp;
}

} // namespace corva
