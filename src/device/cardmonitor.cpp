// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardmonitor.h"

#include "cardfinder.h"
#include "cardreader.h"
#include "hotplugmonitor.h"
#include "link/cardworker.h"
#include "link/serialthread.h"
#include "link/statusparsers.h"
#include "modeswitch.h"
#include "portclaim.h"
#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "shell/logging.h"

#include <QTimer>
#include <cerrno>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

const QString deviceSection = u"device"_s;
const QString lastCardKey = u"last_card"_s;
constexpr auto statusInterval = 4000ms;
constexpr auto echoDelay = 2000ms;
constexpr int silentRoundsUntilGivenUp = 3;
constexpr int mostIdentityTries = 10; // some SIMs have no identity to tell

/// A period of section "network_dialer_setting", in seconds there; `otherwise` when the key is not above 0.
std::chrono::milliseconds interval(const QString &key, std::chrono::milliseconds otherwise)
{
    const int seconds = std::min(cmcfg.getNumber(u"network_dialer_setting"_s, key), 24 * 3600);
    return seconds > 0 ? std::chrono::seconds(seconds) : otherwise;
}

/// The time between two looks at the card, or for it.
std::chrono::milliseconds statusPeriod(bool isThere)
{
    return interval(isThere ? u"slottimer_interval"_s : u"slottimer_interval_iscardoffline"_s,
                    statusInterval);
}

/// What a reply means that is none of the results of an entry.
PinOutcome pinOutcome(const QByteArray &reply)
{
    const SimState sim = parseSimState(reply).valueOr(SimState::Unknown);
    if (sim == SimState::Busy)
        return PinOutcome::SimBusy;
    if (sim == SimState::Failure)
        return PinOutcome::SimFailure;
    return refusal(reply) ? PinOutcome::Refused : PinOutcome::NoAnswer;
}

/// `result` is that of `SerialThread::enterPin`.
PinOutcome pinOutcome(int result, const QByteArray &reply)
{
    switch (result) {
    case 1: return PinOutcome::Accepted;
    case 0: return PinOutcome::Wrong;
    case 2: return PinOutcome::PukNeeded;
    case 3: return PinOutcome::SimFailure;
    default: return pinOutcome(reply);
    }
}

/// Opens the port for this program alone. 0, or the error.
int openClaimed(SerialThread &link, const QString &port)
{
    return link.openPort(port, claimPort) < 0 ? errno : 0;
}

} // namespace

/// What lives behind the monitor. Members marked (worker) belong to the card worker alone.
class CardMonitor::Private
{
public:
    Private(CardMonitor *monitor, LinkOwner *owner);

    void search(bool newWay);
    ProbeResult probe(const QString &port);
    void useCard(const FoundCard &card);
    void readAll();
    void identify();
    void poll();
    void setEcho();
    void checkPort();
    void loseCard();
    void closePorts();
    void wokeUp();
    void rememberCard();
    void publish();
    void publish(const CardState &state);
    void say(const QString &sentence);

    CardMonitor *q;
    SerialThread link;
    std::unique_ptr<SerialThread> voiceLink; ///< the voice port, when calls are on; its thread has no work
    CardWorker worker;
    HotplugMonitor hotplug;
    QTimer echoTimer;
    QTimer statusTimer;
    QTimer keepAliveTimer;
    CardFinder finder;      // (worker)
    CardReader reader;      // (worker)
    UsbIdentity stick;      // (worker) the stick that waits for its switching
    QString openPort;       // (worker)
    int silentRounds = 0;   // (worker)
    int identityTries = 0;  // (worker) how often an incomplete identity is read again
    bool echoIsDue = false; // (worker)
    bool newWay = false;    // (worker)
    bool isStopped = false;
};

CardMonitor::Private::Private(CardMonitor *monitor, LinkOwner *owner)
    : q(monitor), link(owner), worker(link),
      finder(ModemTypes::load(basePath + u"/Data/modem_types.xml"_s), DeviceSettings::fromConfiguration()),
      reader(link)
{
    finder.preferCard(cmcfg.getValue(deviceSection, lastCardKey));
    if (cmcfg.getNumber(u"call"_s, u"enable"_s) == 1)
        voiceLink = std::make_unique<SerialThread>(owner);
    worker.setAfterEach([this](SerialThread &) { checkPort(); });
}

// --- On the card worker
// ----------------------------------------------------------------------------------------------

void CardMonitor::Private::search(bool byFixedNames)
{
    if (foundPortFlag)
        return;
    newWay = byFixedNames;
    const auto ask = [this](const QString &port) { return probe(port); };
    const FoundCard card = newWay ? finder.findByFixedNames(ask) : finder.find(ask);
    rememberCard();
    if (card.presence == CardPresence::Ready)
        useCard(card);
    else
        closePorts();

    CardState state;
    state.presence = card.presence;
    state.deviceName = card.deviceName;
    state.portName = card.port.isEmpty() ? card.ports.at : card.port;
    state.modemPortName = card.ports.modem;
    state.portHolder = card.holder.name;
    state.portHolderPid = card.holder.pid;
    state.portGroup = card.group;
    state.portFault = card.fault;
    state.family = link.family();
    stick = card.usb;
    if (card.presence == CardPresence::Ready && !foundPortFlag)
        state.presence = CardPresence::Silent;
    reader.begin(state);
    publish();
    if (foundPortFlag)
        readAll();
}

/// Opens the port and asks "AT". A port that answers stays open: the search ends with it.
ProbeResult CardMonitor::Private::probe(const QString &port)
{
    closePorts();
    if (const int error = openClaimed(link, port))
        return {ProbeResult::Verdict::CannotOpen, error};
    openPort = port;
    if (link.sendNULL_ATCmd() == 1)
        return {ProbeResult::Verdict::Answered, 0};
    closePorts();
    return {ProbeResult::Verdict::Silent, 0};
}

void CardMonitor::Private::useCard(const FoundCard &card)
{
    if (openPort != card.ports.at) {
        closePorts();
        if (openClaimed(link, card.ports.at) != 0)
            return; // the next search says why
        openPort = card.ports.at;
    }
    const CardFamily family = card.family.value_or(link.family());
    link.setFamily(family);
    if (voiceLink && !card.ports.voice.isEmpty()) {
        voiceLink->setFamily(family);
        if (const int error = openClaimed(*voiceLink, card.ports.voice))
            qCWarning(lcDevice).noquote().nospace()
                << logTime() << "the voice port " << card.ports.voice << ": " << qt_error_string(error);
    }
    silentRounds = 0;
    identityTries = mostIdentityTries;
    foundPortFlag = true;
}

void CardMonitor::Private::readAll()
{
    say(CardMonitor::tr("Reading the card"));
    if (echoIsDue)
        setEcho();
    reader.prepare();
    reader.readStatus();
    publish();
    identify();
    say({});
}

void CardMonitor::Private::identify()
{
    --identityTries;
    reader.readIdentity();
    publish();
    if (!link.isPortLost())
        SerialThread::writeUpdateHardwareCfg(&reader.state().identity);
}

/// By the card's family: a CDMA card keeps its echo, the others lose it. What a reply means does not hang on
/// it, since replies are judged by the command that was sent.
void CardMonitor::Private::setEcho()
{
    echoIsDue = true;
    if (foundPortFlag && link.family() != CardFamily::Cdma)
        link.setATE0();
}

void CardMonitor::Private::poll()
{
    if (!foundPortFlag)
        return;
    const SimState simBefore = reader.state().sim;
    if (silentRounds >= silentRoundsUntilGivenUp && link.sendNULL_ATCmd() != 1)
        return;
    silentRounds = reader.readStatus() ? 0 : silentRounds + 1;
    const bool isSimChanged = reader.state().sim != simBefore;
    if (isSimChanged)
        identityTries = mostIdentityTries;
    CardState state = reader.state();
    if (silentRounds >= silentRoundsUntilGivenUp) {
        state.presence = CardPresence::Silent;
        state.modemReady = false;
    }
    publish(state);
    if (silentRounds == 0 && identityTries > 0 && (isSimChanged || !reader.isIdentified()))
        identify();
}

/// After each job and each drain: a port that has come to its end is closed, and looked for again.
void CardMonitor::Private::checkPort()
{
    if (!foundPortFlag || !link.isPortLost())
        return;
    qCInfo(lcDevice).noquote().nospace() << logTime() << "the port " << openPort << " is gone";
    loseCard();
    CardState state;
    state.family = link.family();
    reader.begin(state);
    publish();
}

void CardMonitor::Private::loseCard()
{
    closePorts();
    SerialThread::writeUpdateHardwareCfg(nullptr);
}

void CardMonitor::Private::closePorts()
{
    foundPortFlag = false;
    openPort.clear();
    for (SerialThread *each : {&link, voiceLink.get()}) {
        if (!each)
            continue;
        each->closePortNormal(each->descriptor());
        each->forgetPort();
    }
}

/// USB may have been without power: a port that does not answer now is closed, however open it looks.
void CardMonitor::Private::wokeUp()
{
    if (foundPortFlag && link.sendNULL_ATCmd() != 1 && link.sendNULL_ATCmd() != 1) {
        loseCard();
        search(newWay);
    } else if (foundPortFlag) {
        poll();
    }
}

/// Keeps the card used last for the next start; settings are written on the GUI thread.
void CardMonitor::Private::rememberCard()
{
    QMetaObject::invokeMethod(
        q,
        [key = finder.preferredCard()] {
            if (cmcfg.getValue(deviceSection, lastCardKey) != key)
                cmcfg.setValue(deviceSection, lastCardKey, key);
        },
        Qt::QueuedConnection);
}

void CardMonitor::Private::say(const QString &sentence)
{
    QMetaObject::invokeMethod(
        q, [this, sentence] { Q_EMIT q->sigActivity(sentence); }, Qt::QueuedConnection);
}

void CardMonitor::Private::publish()
{
    publish(reader.state());
}

void CardMonitor::Private::publish(const CardState &state)
{
    QMetaObject::invokeMethod(
        q,
        [this, state] {
            if (state == q->m_state)
                return;
            const bool wasThere = q->m_state.presence == CardPresence::Ready;
            q->m_state = state;
            const bool isThere = state.presence == CardPresence::Ready;
            if (wasThere != isThere && statusTimer.isActive())
                statusTimer.start(statusPeriod(isThere));
            Q_EMIT q->sigStateChanged(q->m_state);
        },
        Qt::QueuedConnection);
}

// --- On the GUI thread
// -----------------------------------------------------------------------------------------------

CardMonitor::CardMonitor(LinkOwner *owner, QObject *parent)
    : QObject(parent), d(std::make_unique<Private>(this, owner))
{
    m_state.family = d->link.family();
    d->echoTimer.setSingleShot(true);
    connect(&d->echoTimer, &QTimer::timeout, this, [this] {
        d->worker.submit([this](SerialThread &) { d->setEcho(); });
        d->statusTimer.start(statusPeriod(m_state.presence == CardPresence::Ready));
        const auto keepAlive = interval(u"send_nullatcommand_interval"_s, 0ms);
        if (keepAlive > 0ms)
            d->keepAliveTimer.start(keepAlive);
    });
    connect(&d->statusTimer, &QTimer::timeout, this, &CardMonitor::refreshNow);
    connect(&d->keepAliveTimer, &QTimer::timeout, this, [this] {
        d->worker.submitOnce("keep alive", [](SerialThread &link) {
            if (foundPortFlag)
                link.sendNULL_ATCmd();
        });
    });
    connect(&d->hotplug, &HotplugMonitor::sigUsbChanged, this, &CardMonitor::searchNow);
    connect(&d->hotplug, &HotplugMonitor::sigPortAppeared, this, &CardMonitor::searchNow);
    connect(&d->hotplug, &HotplugMonitor::sigResumed, this,
            [this] { d->worker.submitOnce("resume", [this](SerialThread &) { d->wokeUp(); }); });
}

CardMonitor::~CardMonitor()
{
    stop();
}

void CardMonitor::start()
{
    const bool newWay = cmcfg.getNumber(u"function"_s, u"findAtAndModemNewWay"_s) != 0;
    d->hotplug.watchPorts(d->finder.portsToWatch(newWay));
    // What an earlier run left there may be a card that is gone.
    d->worker.submit([](SerialThread &) { SerialThread::writeUpdateHardwareCfg(nullptr); });
    d->worker.start();
    d->link.start();
    d->echoTimer.start(echoDelay);
}

void CardMonitor::stop()
{
    if (d->isStopped)
        return;
    d->isStopped = true;
    d->echoTimer.stop();
    d->statusTimer.stop();
    d->keepAliveTimer.stop();
    d->hotplug.disconnect(this);
    d->link.requestStop();
    if (d->voiceLink)
        d->voiceLink->requestStop();
    d->worker.stop();
    d->link.wait();
    if (foundPortFlag)
        SerialThread::writeUpdateHardwareCfg(nullptr);
    d->closePorts();
}

SerialThread &CardMonitor::link()
{
    return d->link;
}

CardWorker &CardMonitor::worker()
{
    return d->worker;
}

void CardMonitor::findPorts(bool newWay)
{
    d->worker.submit([this, newWay](SerialThread &) { d->search(newWay); }).waitForFinished();
}

void CardMonitor::searchNow()
{
    const bool newWay = cmcfg.getNumber(u"function"_s, u"findAtAndModemNewWay"_s) != 0;
    d->worker.submitOnce("search", [this, newWay](SerialThread &) {
        if (d->silentRounds >= silentRoundsUntilGivenUp)
            d->closePorts(); // another port may answer in its place
        d->search(newWay);
    });
}

void CardMonitor::refreshNow()
{
    d->worker.submitOnce("poll", [this](SerialThread &) { d->poll(); });
}

QFuture<PinOutcome> CardMonitor::enterPin(const QString &pin)
{
    return d->worker.submit([this, pin](SerialThread &link) {
        const PinOutcome outcome = pinOutcome(link.enterPin(pin), link.lastReply());
        d->poll();
        return outcome;
    });
}

QFuture<PinOutcome> CardMonitor::enterPuk(const QString &puk, const QString &newPin)
{
    return d->worker.submit([this, puk, newPin](SerialThread &link) {
        const PinOutcome outcome = pinOutcome(link.enterPuk(puk, newPin), link.lastReply());
        d->poll();
        return outcome;
    });
}

QFuture<bool> CardMonitor::switchRadioOn()
{
    return d->worker.submit([this](SerialThread &link) {
        const bool isOn =
            link.family() == CardFamily::TdScdma ? link.setTDModemFullFun() : link.setModemFullFun();
        d->poll(); // a slow "OK" is told by the level itself
        return isOn || d->reader.state().functionality == 1;
    });
}

QFuture<SwitchResult> CardMonitor::switchMode()
{
    return d->worker.submit([this](SerialThread &) { return corva::switchMode(d->stick); });
}

} // namespace corva
