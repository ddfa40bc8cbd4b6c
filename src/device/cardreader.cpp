// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardreader.h"

#include "link/serialthread.h"
#include "link/simprovider.h"
#include "link/statusparsers.h"
#include "shell/commoncfg.h"

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

bool isRegistered(Registration stat)
{
    return stat == Registration::Home || stat == Registration::Roaming;
}

/// A refusal that will not change by waiting: the command itself is unknown. 3GPP TS 27.007 9.2.
bool isUnknownCommand(const ReplyError &error)
{
    return error.kind == ReplyError::Refused &&
           (error.detail.isEmpty() || error.detail == "4" || error.detail == "operation not supported");
}

} // namespace

CardReader::CardReader(SerialThread &link) : m_link(link), m_buffer(SerialThread::replyBufferSize) {}

void CardReader::begin(const CardState &state)
{
    m_state = state;
    m_refused.clear();
    m_simAttempts = 0;
}

void CardReader::prepare()
{
    m_link.setErrorReporting(2);
    m_link.setRegistrationReporting("CREG", 2);
    m_link.setRegistrationReporting("CGREG", 2);
}

/// The query's text; empty when there is none.
QByteArray CardReader::ask(TextQuery query)
{
    if (m_isSilent)
        return {};
    m_isSilent = (m_link.*query)(m_buffer.data()) == -1 && m_link.lastReply().isEmpty();
    return m_isSilent ? QByteArray() : QByteArray(m_buffer.data());
}

/// The same for one of the maker's own commands.
QByteArray CardReader::askMaker(TextQuery query, const char *name)
{
    if (!isKnown(name))
        return {};
    QByteArray text = ask(query);
    const auto refused = refusal(m_link.lastReply());
    if (!m_isSilent && refused && isUnknownCommand(*refused))
        m_refused.insert(name);
    return text;
}

bool CardReader::readStatus()
{
    m_isSilent = false;
    const SimState before = m_state.sim;
    readSim();
    if (m_state.sim != before)
        m_refused.clear(); // much is refused while the SIM is locked
    readSignal();
    readRegistration();
    readService();
    readOperator();
    settle();
    return !m_isSilent;
}

void CardReader::readSim()
{
    const int result = m_link.connectDeviceNeedInputPIN();
    if (m_link.lastReply().isEmpty()) {
        m_isSilent = true;
        return;
    }
    static constexpr SimState states[] = {SimState::Ready, SimState::PukNeeded, SimState::PinNeeded,
                                          SimState::Busy, SimState::Failure};
    m_state.sim = result >= 0 && result < 5 ? states[result]
                                            : parseSimState(m_link.lastReply()).valueOr(SimState::Unknown);

    // A SIM that stays busy is broken: it is asked so often, then counted as a failure.
    const int most = cmcfg.getNumber(u"network_dialer_setting"_s, u"sim_detect_count"_s);
    m_simAttempts = m_state.sim == SimState::Busy ? m_simAttempts + 1 : 0;
    if (most > 0 && m_simAttempts > most)
        m_state.sim = SimState::Failure;

    if (m_state.sim != SimState::Ready && m_state.sim != SimState::Unknown)
        forgetSubscriber();
    m_state.pinAttempts.reset();
    m_state.pukAttempts.reset();
    const bool isLocked = m_state.sim == SimState::PinNeeded || m_state.sim == SimState::PukNeeded;
    if (isLocked && m_state.family != CardFamily::Cdma && isKnown("JPINPUK")) {
        const QByteArray attempts = "+JPINPUK: " + m_link.get_JPINJPUK_Res_Str().toLatin1();
        if (const auto left = parseAttempts(attempts)) {
            m_state.pinAttempts = left->pin;
            m_state.pukAttempts = left->puk;
        } else {
            m_refused.insert("JPINPUK");
        }
    }
}

void CardReader::readSignal()
{
    if (m_isSilent)
        return;
    if (m_link.getSignalQuality() == NoReply) {
        m_isSilent = true;
        return;
    }
    const SignalQuality quality = parseSignalQuality(m_link.lastReply()).valueOr({});
    m_state.signalCode = signalLevelCode(quality.rssi);
    m_state.signalDbm = quality.dbm;
    if (m_state.networkType != NetworkType::Evdo || !isKnown("HDRCSQ"))
        return;
    const int evdo = m_link.getEvdoSignalQuality();
    if (evdo >= EvdoLevel1 && evdo < int(EvdoNone))
        m_state.signalCode = SignalLevel1 + evdo - EvdoLevel1;
    else if (evdo == NotWritten)
        m_refused.insert("HDRCSQ");
}

void CardReader::readRegistration()
{
    const auto voice = parseRegistration(ask(&SerialThread::get_CREG_Res_Str), "+CREG:");
    const auto data = parseRegistration(ask(&SerialThread::get_CGREG_Res_Str), "+CGREG:");
    if (m_isSilent)
        return;
    // A card may be registered for data alone.
    const bool useData = data && (!voice || (!isRegistered(voice->stat) && isRegistered(data->stat)));
    const RegistrationState state = useData ? *data : voice.valueOr({});
    m_state.registration = state.stat;
    m_state.locationArea = state.lac;
    m_state.cellId = state.cellId;
    m_state.networkType = state.networkType;
    if (m_state.networkType == NetworkType::Unknown && data)
        m_state.networkType = data->networkType;
    m_state.roaming.reset();
    if (isRegistered(state.stat))
        m_state.roaming = state.stat == Registration::Roaming;
}

void CardReader::readService()
{
    SystemInformation information;
    if (const auto system = parseSysInfo(askMaker(&SerialThread::get_SYSINFO_Res_Str, "SYSINFO")))
        information = *system;
    if (information.networkType == NetworkType::Unknown) {
        if (const auto access = parseJpas(askMaker(&SerialThread::get_JPAS_Res_Str, "JPAS"))) {
            information.networkType = access->networkType;
            if (information.service == ServiceState::Unknown)
                information.service = access->service;
        }
    }
    if (m_isSilent)
        return;
    m_state.service = information.service;
    if (m_state.service == ServiceState::Unknown && m_state.registration != Registration::Unknown)
        m_state.service = isRegistered(m_state.registration)             ? ServiceState::Full
                          : m_state.registration == Registration::Denied ? ServiceState::Limited
                                                                         : ServiceState::None;
    if (information.networkType != NetworkType::Unknown)
        m_state.networkType = information.networkType;
    if (information.roaming && m_state.registration == Registration::Unknown)
        m_state.roaming = information.roaming; // a CDMA card's only word on it
    if (const auto time = parseNetworkTime(askMaker(&SerialThread::get_JTIME_Res_Str, "JTIME"), "+JTIME:"))
        m_state.networkTime = *time;
}

void CardReader::readOperator()
{
    const QByteArray reply = ask(&SerialThread::get_COPS_Res_Str);
    if (m_isSilent)
        return;
    const OperatorSelection selection = parseOperator(reply).valueOr({});
    if (selection.name.isEmpty() || selection.name != m_state.operatorName)
        m_state.operatorCode = selection.code;
    m_state.operatorName = selection.name;
    // The code costs three commands: it is asked for once per operator.
    if (!selection.name.isEmpty() && m_state.operatorCode.isEmpty())
        m_state.operatorCode = QString::fromLatin1(ask(&SerialThread::getOperatorCode));
    if (m_state.networkType == NetworkType::Unknown)
        m_state.networkType = selection.networkType;
    const int level = m_link.getOnlineStatus();
    m_state.functionality = level >= 0 ? std::optional(level) : std::nullopt;
}

void CardReader::settle()
{
    const bool simSettled =
        m_state.sim == SimState::Ready || m_state.sim == SimState::Absent || m_state.sim == SimState::Failure;
    m_state.modemReady = m_state.presence == CardPresence::Ready && simSettled;
}

/// The SIM that is ready next may be another one, and what waits for this one must not go out with it.
void CardReader::forgetSubscriber()
{
    CardIdentity &who = m_state.identity;
    who.imsi.clear();
    who.iccid.clear();
    who.ownNumber.clear();
    who.provider = {};
}

void CardReader::readIdentity()
{
    m_isSilent = false;
    CardIdentity &who = m_state.identity;
    const auto text = [this](TextQuery query) { return QString::fromLatin1(ask(query)); };
    who.manufacturer = text(&SerialThread::getCGMI);
    who.model = text(&SerialThread::getCGMM);
    who.imei = text(&SerialThread::getIMEI);
    who.firmware = text(&SerialThread::getCgmr);
    if (who.firmware.isEmpty())
        who.firmware = text(&SerialThread::getGMR);
    who.internalVersion = QString::fromLatin1(askMaker(&SerialThread::getJvn, "JVN"));
    if (m_state.sim != SimState::Ready)
        return;
    who.imsi = parseImsi(ask(&SerialThread::getCIMI)).valueOr({});
    who.ownNumber = text(&SerialThread::getISDN);
    if (!m_isSilent && m_link.getICCID(m_buffer.data()) == 1)
        who.iccid = parseIccid(m_buffer.data()).valueOr({});
    if (!m_isSilent && m_link.getSPN(m_buffer.data()) == 1)
        who.provider = parseProvider(m_buffer.data()).valueOr({});
}

bool CardReader::isIdentified() const
{
    const CardIdentity &who = m_state.identity;
    return !who.model.isEmpty() && !who.imei.isEmpty() &&
           (m_state.sim != SimState::Ready || !who.imsi.isEmpty());
}

} // namespace corva
