// SPDX-License-Identifier: GPL-3.0-or-later
#include "card/card.h"

#include "at/errors.h"

#include <array>
#include <cstdlib>
#include <utility>

namespace cardemu
{

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

namespace
{

constexpr int allPinAttempts = 3;

bool isPin(const QByteArray &pin)
{
    return pin.size() >= 4 && pin.size() <= 8 &&
           std::ranges::all_of(pin, [](char c) { return c >= '0' && c <= '9'; });
}

struct ConditionError {
    SimCondition condition;
    int error;
};

constexpr std::array conditionErrors = {
    ConditionError{SimCondition::Absent, cme::simNotInserted},
    ConditionError{SimCondition::Busy, cme::simBusy},
    ConditionError{SimCondition::Failure, cme::simFailure},
};

struct ServiceRegistration {
    Service service;
    int stat;
};

constexpr std::array serviceRegistrations = {
    ServiceRegistration{Service::Full, 1},      ServiceRegistration{Service::Restricted, 3},
    ServiceRegistration{Service::Searching, 2}, ServiceRegistration{Service::Denied, 3},
    ServiceRegistration{Service::Unknown, 4},   ServiceRegistration{Service::None, 2},
};

using OperatorName = QString Operator::*;
constexpr std::array<OperatorName, 3> operatorNames = {&Operator::longName, &Operator::shortName,
                                                       &Operator::plmn};

} // namespace

Card::Card(const Profile &profile, Scheduler &scheduler)
    : m_state(profile.card), m_scheduler(scheduler), m_registering(scheduler), m_ringing(scheduler),
      m_simBack(scheduler), m_restart(scheduler), m_ussd(scheduler), m_silence(scheduler),
      m_packetData(*this), m_mailbox(*this), m_messageCentre(*this)
{
    m_functionalityAtPowerUp = m_state.radio.functionality;
    for (const Fault &fault : profile.faults)
        m_faults.add(fault);
    powerUp();
}

void Card::powerUp()
{
    m_ringing.stop();
    m_registering.stop();
    speak();
    m_state.sim.verified = false;
    m_state.call = {};
    m_state.radio.functionality = m_functionalityAtPowerUp;
    m_packetData.deactivateAll(false);
    m_mailbox.powerUp();
    m_couldRegister = mayRegister();
    m_reportedRegistration = registration();
    Q_EMIT restarted();
    m_mailbox.deliverWaiting();
}

void Card::restartSoon()
{
    m_restart.start(milliseconds(0), [this] { powerUp(); });
}

void Card::review()
{
    const bool may = mayRegister();
    if (may && !m_couldRegister)
        m_registering.start(milliseconds(m_state.network.registerDelay), [this] { review(); });
    if (!may)
        m_registering.stop();
    m_couldRegister = may;
    if (std::exchange(m_reportedRegistration, registration()) != m_reportedRegistration)
        Q_EMIT registrationChanged();
    if (!isRegistered())
        m_packetData.deactivateAll(true);
    m_mailbox.deliverWaiting();
}

std::optional<int> Card::simError() const
{
    const auto *const row =
        std::ranges::find(conditionErrors, m_state.sim.condition, &ConditionError::condition);
    if (row != conditionErrors.end())
        return row->error;
    if (m_state.sim.pukAttempts == 0)
        return cme::simFailure;
    const QByteArray wanted = pinState();
    if (wanted == "SIM PUK")
        return cme::simPukRequired;
    return wanted == "SIM PIN" ? std::optional(cme::simPinRequired) : std::nullopt;
}

QByteArray Card::pinState() const
{
    if (m_state.sim.pinAttempts == 0)
        return "SIM PUK";
    return m_state.sim.pinLock && !m_state.sim.verified ? "SIM PIN" : "READY";
}

Answer Card::checkPin(const QByteArray &pin)
{
    Sim &sim = m_state.sim;
    if (sim.pinAttempts == 0)
        return cmeError(cme::simPukRequired);
    if (!isPin(pin))
        return cmeError(cme::incorrectParameters);
    if (pin == sim.pin.toLatin1()) {
        sim.pinAttempts = allPinAttempts;
        return ok();
    }
    --sim.pinAttempts;
    if (sim.pinAttempts > 0)
        return cmeError(cme::incorrectPassword);
    sim.verified = false;
    review();
    return cmeError(cme::simPukRequired);
}

Answer Card::enterPin(const QByteArray &pin)
{
    if (pinState() == "READY")
        return cmeError(cme::notAllowed);
    Answer answer = checkPin(pin);
    if (answer.final.isSuccess()) {
        m_state.sim.verified = true;
        review();
    }
    return answer;
}

Answer Card::enterPuk(const QByteArray &puk, const QByteArray &newPin)
{
    Sim &sim = m_state.sim;
    if (pinState() != "SIM PUK")
        return cmeError(cme::notAllowed);
    if (!isPin(newPin) || !isPin(puk))
        return cmeError(cme::incorrectParameters);
    if (puk != sim.puk.toLatin1()) {
        --sim.pukAttempts;
        return cmeError(sim.pukAttempts > 0 ? cme::incorrectPassword : cme::simFailure);
    }
    sim.pin = QString::fromLatin1(newPin);
    sim.pinAttempts = allPinAttempts;
    sim.pukAttempts = 10;
    sim.verified = true;
    review();
    return ok();
}

Answer Card::setPinLock(bool on, const QByteArray &pin)
{
    Answer answer = checkPin(pin);
    if (answer.final.isSuccess()) {
        m_state.sim.pinLock = on;
        m_state.sim.verified = true;
    }
    return answer;
}

// A SIM whose PIN is not asked for does not let it be changed. 3GPP TS 31.101 11.1.10.
Answer Card::changePin(const QByteArray &oldPin, const QByteArray &newPin)
{
    if (!m_state.sim.pinLock)
        return cmeError(cme::notAllowed);
    if (!isPin(newPin))
        return cmeError(cme::incorrectParameters);
    Answer answer = checkPin(oldPin);
    if (answer.final.isSuccess())
        m_state.sim.pin = QString::fromLatin1(newPin);
    return answer;
}

void Card::setSimCondition(SimCondition condition, milliseconds duration)
{
    m_simBack.stop();
    m_state.sim.condition = condition;
    if (duration.count() > 0)
        m_simBack.start(duration, [this] { setSimCondition(SimCondition::Ready); });
    review();
}

void Card::setFunctionality(int level)
{
    m_state.radio.functionality = level;
    if (!isRadioOn())
        hangUp();
    review();
}

bool Card::mayRegister() const
{
    return isRadioOn() && !simError() && m_state.network.selection != 2;
}

int Card::registration() const
{
    if (!mayRegister())
        return 0;
    if (m_registering.isActive())
        return 2;
    const int stat =
        std::ranges::find(serviceRegistrations, m_state.network.service, &ServiceRegistration::service)->stat;
    return stat == 1 && m_state.network.roaming ? 5 : stat;
}

const Operator *Card::currentOperator() const
{
    const auto row = std::ranges::find(m_state.network.operators, m_state.network.current, &Operator::plmn);
    return row == m_state.network.operators.end() ? nullptr : &*row;
}

void Card::selectAutomatically()
{
    Network &network = m_state.network;
    const auto isHome = [this](const Operator &candidate) {
        return m_state.sim.imsi.startsWith(candidate.plmn);
    };
    auto choice = std::ranges::find_if(network.operators, isHome);
    if (choice == network.operators.end())
        choice = std::ranges::find(network.operators, false, &Operator::forbidden);
    network.selection = 0;
    if (choice != network.operators.end()) {
        network.current = choice->plmn;
        network.roaming = !isHome(*choice);
    }
    review();
}

Answer Card::selectOperator(int format, const QString &name)
{
    Network &network = m_state.network;
    const auto choice =
        std::ranges::find(network.operators, name, operatorNames[static_cast<size_t>(format)]);
    if (choice == network.operators.end())
        return cmeError(cme::noNetworkService);
    if (choice->forbidden)
        return cmeError(cme::networkNotAllowed);
    network.selection = 1;
    network.current = choice->plmn;
    network.roaming = !m_state.sim.imsi.startsWith(choice->plmn);
    review();
    return ok();
}

void Card::deregister()
{
    m_state.network.selection = 2;
    review();
}

void Card::signalChanged()
{
    const Radio &radio = m_state.radio;
    if (radio.signalReports && m_state.makerCommands)
        report("+JRSSI: " + QByteArray::number(radio.rssi) + ',' + QByteArray::number(radio.ecio) + ',' +
               QByteArray::number(radio.rscp));
}

void Card::ring(const QString &number)
{
    m_state.call = {CallState::Ringing, number};
    ringAgain();
}

void Card::ringAgain()
{
    m_ringing.start(milliseconds(m_state.line.ringInterval), [this] { ringAgain(); });
    Q_EMIT rang();
}

void Card::answer()
{
    m_ringing.stop();
    m_state.call.state = CallState::Active;
}

void Card::hangUp()
{
    m_ringing.stop();
    m_state.call = {};
}

void Card::requestUssd(const QString &code, Charset charset)
{
    constexpr milliseconds networkTime{500};
    m_ussd.start(networkTime, [this, code, charset] {
        const auto answer = m_state.ussd.constFind(code);
        if (answer == m_state.ussd.constEnd())
            report("+CUSD: 4");
        else
            report("+CUSD: 0,\"" + toWire(*answer, charset) + "\",15");
    });
}

milliseconds Card::delayOf(const Command &command) const
{
    const Line &line = m_state.line;
    const QString text = QString::fromLatin1(command.text).toUpper();
    qsizetype best = -1;
    int delay = line.delay;
    for (auto row = line.delays.begin(); row != line.delays.end(); ++row) {
        const QString wanted = row.key().startsWith(u"AT"_s) ? row.key().mid(2) : row.key();
        if (text.startsWith(wanted) && wanted.size() > best) {
            best = wanted.size();
            delay = row.value();
        }
    }
    return milliseconds(command.name == "D" ? delay + line.dialDelay : delay);
}

void Card::fallSilent(milliseconds duration)
{
    m_silence.stop();
    m_silent = true;
    if (duration.count() > 0)
        m_silence.start(duration, [this] { m_silent = false; });
    Q_EMIT fellSilent();
}

void Card::speak()
{
    m_silence.stop();
    m_silent = false;
}

QByteArray Card::timeText() const
{
    const int zone = m_state.network.timeZone;
    const QDateTime local = m_scheduler.now().addSecs(zone * 15LL * 60);
    return local.toString(u"yy/MM/dd,hh:mm:ss"_s).toLatin1() + (zone < 0 ? '-' : '+') +
           QByteArray::number(std::abs(zone)).rightJustified(2, '0');
}

} // namespace cardemu
