// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakecardmonitor.h"

#include "link/cardworker.h"
#include "link/serialthread.h"

#include <QPromise>
#include <functional>
#include <map>
#include <optional>

using namespace Qt::StringLiterals;

namespace
{

/// What a test sees and moves of the monitor that lives now.
struct Strings {
    std::function<void(const corva::CardState &)> put;
    QStringList calls;
    std::optional<QPromise<corva::PinOutcome>> pin;
    std::optional<QPromise<bool>> radio;
    std::optional<QPromise<corva::SwitchResult>> mode;
};

Strings &strings()
{
    static Strings living;
    return living;
}

template <typename Result> QFuture<Result> ask(std::optional<QPromise<Result>> &place)
{
    place.emplace();
    place->start();
    return place->future();
}

template <typename Result> void answer(std::optional<QPromise<Result>> &place, const Result &result)
{
    Q_ASSERT(place);
    place->addResult(result);
    place->finish();
}

} // namespace

namespace corva
{

/// A worker that has ended: it drops what it is given.
class CardMonitor::Private
{
public:
    SerialThread link{nullptr};
    CardWorker worker{link};
};

CardMonitor::CardMonitor(LinkOwner *, QObject *parent) : QObject(parent), d(new Private)
{
    d->worker.stop();
    strings() = {};
    strings().put = [this](const CardState &state) {
        m_state = state;
        Q_EMIT sigStateChanged(state);
    };
}

CardMonitor::~CardMonitor() = default;

void CardMonitor::start()
{
    strings().calls += u"start"_s;
}

void CardMonitor::stop()
{
    strings().calls += u"stop"_s;
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
    strings().calls += newWay ? u"findPorts new"_s : u"findPorts"_s;
}

void CardMonitor::searchNow()
{
    strings().calls += u"searchNow"_s;
}

void CardMonitor::refreshNow()
{
    strings().calls += u"refreshNow"_s;
}

QFuture<PinOutcome> CardMonitor::enterPin(const QString &pin)
{
    strings().calls += u"enterPin "_s + pin;
    return ask(strings().pin);
}

QFuture<PinOutcome> CardMonitor::enterPuk(const QString &puk, const QString &newPin)
{
    strings().calls += u"enterPuk %1 %2"_s.arg(puk, newPin);
    return ask(strings().pin);
}

QFuture<bool> CardMonitor::switchRadioOn()
{
    strings().calls += u"switchRadioOn"_s;
    return ask(strings().radio);
}

QFuture<SwitchResult> CardMonitor::switchMode()
{
    strings().calls += u"switchMode"_s;
    return ask(strings().mode);
}

} // namespace corva

namespace fakecard
{

using namespace corva;

namespace
{

using Change = void (*)(CardState &);

void loseNetwork(CardState &state, Registration registration)
{
    state.registration = registration;
    state.operatorName.clear();
    state.operatorCode.clear();
    state.networkType = NetworkType::None;
    state.service = ServiceState::None;
    state.roaming.reset();
    state.locationArea.reset();
    state.cellId.reset();
}

void lock(CardState &state, SimState sim, std::optional<int> pinAttempts = std::nullopt)
{
    loseNetwork(state, Registration::NotSearching);
    state.sim = sim;
    if (pinAttempts)
        state.pinAttempts = *pinAttempts;
    state.identity.imsi.clear();
    state.identity.ownNumber.clear();
}

CardState withoutAnswer(CardPresence presence, const QString &port = u"/dev/ttyUSB2"_s)
{
    CardState state;
    state.presence = presence;
    state.portName = port;
    return state;
}

const std::map<QString, Change> &changes()
{
    static const std::map<QString, Change> byName{
        {u"registered"_s, [](CardState &) {}},
        {u"absent"_s, [](CardState &state) { state = {}; }},
        {u"storage"_s,
         [](CardState &state) {
             state = withoutAnswer(CardPresence::StorageMode, {});
             state.deviceName = u"Data Stick"_s;
         }},
        {u"noport"_s,
         [](CardState &state) {
             state = {};
             state.deviceName = u"Data Stick"_s;
         }},
        {u"wrongport"_s,
         [](CardState &state) {
             state = withoutAnswer(CardPresence::Absent, u"/dev/null"_s);
             state.portFault = PortFault::NotSerial;
         }},
        {u"norights"_s,
         [](CardState &state) {
             state = withoutAnswer(CardPresence::NoRights);
             state.portGroup = u"dialout"_s;
         }},
        {u"busy"_s,
         [](CardState &state) {
             state = withoutAnswer(CardPresence::PortBusy);
             state.portHolder = u"ModemManager"_s;
             state.portHolderPid = 812;
         }},
        {u"silent"_s, [](CardState &state) { state = withoutAnswer(CardPresence::Silent); }},
        {u"nosim"_s, [](CardState &state) { lock(state, SimState::Absent); }},
        {u"pin"_s, [](CardState &state) { lock(state, SimState::PinNeeded, 3); }},
        {u"puk"_s,
         [](CardState &state) {
             lock(state, SimState::PukNeeded, 0);
             state.pukAttempts = 10;
         }},
        {u"radiooff"_s,
         [](CardState &state) {
             loseNetwork(state, Registration::NotSearching);
             state.functionality = 0;
         }},
        {u"searching"_s, [](CardState &state) { loseNetwork(state, Registration::Searching); }},
        {u"denied"_s, [](CardState &state) { loseNetwork(state, Registration::Denied); }},
        {u"roaming"_s,
         [](CardState &state) {
             state.registration = Registration::Roaming;
             state.roaming = true;
             state.operatorName = u"Küstennetz & Söhne Funk"_s;
             state.networkType = NetworkType::HspaPlus;
         }},
        {u"noservice"_s, [](CardState &state) { state.service = ServiceState::Limited; }},
    };
    return byName;
}

} // namespace

QStringList takeCalls()
{
    return std::exchange(strings().calls, {});
}

void put(const CardState &state)
{
    strings().put(state);
}

void answerPin(PinOutcome outcome)
{
    answer(strings().pin, outcome);
}

void answerSwitch(const SwitchResult &result)
{
    answer(strings().mode, result);
}

CardState registeredCard()
{
    CardState state;
    state.presence = CardPresence::Ready;
    state.deviceName = u"Data Stick"_s;
    state.portName = u"/dev/ttyUSB2"_s;
    state.identity = {
        u"Example"_s,         u"E3120"_s,           u"490154203237518"_s,     u"11.126.03.01.00"_s,
        u"E3120-11.126.03"_s, u"262011234567890"_s, u"8949012345678901234"_s, u"+491701234567"_s};
    state.sim = SimState::Ready;
    state.functionality = 1;
    state.registration = Registration::Home;
    state.roaming = false;
    state.service = ServiceState::Full;
    state.networkType = NetworkType::Hspa;
    state.operatorName = u"Testnetz"_s;
    state.operatorCode = u"26201"_s;
    state.signalCode = 33;
    state.signalDbm = -67;
    state.locationArea = 4711;
    state.cellId = 815;
    state.networkTime = QDateTime(QDate(2026, 11, 21), QTime(12, 34));
    state.modemReady = true;
    return state;
}

CardState namedState(const QString &name)
{
    CardState state = registeredCard();
    const auto change = changes().find(name);
    if (change != changes().end())
        change->second(state);
    return state;
}

QStringList stateNames()
{
    QStringList names;
    for (const auto &[name, change] : changes())
        names += name;
    return names;
}

} // namespace fakecard
