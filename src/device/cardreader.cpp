// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardreader.h"

#include "link/serialthread.h"
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

/// The raw reply; empty when there is none. A command that the card does not know is not asked again.
QByteArray CardReader::ask(TextQuery query, const char *name)
{
    if (m_isSilent || !isKnown(name))
        return {};
    const int result = (m_link.*query)(m_buffer.data());
    const QByteArray reply(m_buffer.data());
    if (result == -1) {
        m_isSilent = true;
        return {};
    }
    const auto refused = refusal(reply);
    if (result == 0 || (refused && isUnknownCommand(*refused)))
        m_refused.insert(name);
    return reply;
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
    const int code = m_link.getSignalQuality();
    if (code == NoReply) {
        m_isSilent = true;
        return;
    }
    m_state.signalCode = code >= SignalLevel1 && code <= SignalNone ? code : int(SignalNone);
    m_state.signalDbm = parseSignalQuality(m_link.lastReply()).valueOr({}).dbm;
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
    const auto voice = parseRegistration(ask(&SerialThread::get_CREG_Res_Str, "CREG"), "+CREG:");
    const auto data = parseRegistration(ask(&SerialThread::get_CGREG_Res_Str, "CGREG"), "+CGREG:");
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
    if (const auto system = parseSysInfo(ask(&SerialThread::get_SYSINFO_Res_Str, "SYSINFO")))
        information = *system;
    if (information.networkType == NetworkType::Unknown) {
        if (const auto access = parseJpas(ask(&SerialThread::get_JPAS_Res_Str, "JPAS"))) {
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
    if (const auto time = parseNetworkTime(ask(&SerialThread::get_JTIME_Res_Str, "JTIME"), "+JTIME:"))
        m_state.networkTime = *time;
}

void CardReader::readOperator()
{
    const QByteArray reply = ask(&SerialThread::get_COPS_Res_Str, "COPS");
    if (!m_isSilent) {
        const OperatorSelection selection = parseOperator(reply).valueOr({});
        m_state.operatorName = selection.name;
        m_state.operatorCode = selection.code;
        if (m_state.networkType == NetworkType::Unknown)
            m_state.networkType = selection.networkType;
        const int level = m_link.getOnlineStatus();
        m_state.functionality = level >= 0 ? std::optional(level) : std::nullopt;
    }
}

void CardReader::settle()
{
    const bool simSettled =
        m_state.sim == SimState::Ready || m_state.sim == SimState::Absent || m_state.sim == SimState::Failure;
    m_state.modemReady = m_state.presence == CardPresence::Ready && simSettled;
}

void CardReader::readIdentity()
{
    m_isSilent = false;
    CardIdentity &who = m_state.identity;
    const auto text = [this](TextQuery query, const char *name) {
        return QString::fromLatin1(ask(query, name));
    };
    who.manufacturer = text(&SerialThread::getCGMI, "CGMI");
    who.model = text(&SerialThread::getCGMM, "CGMM");
    who.imei = text(&SerialThread::getIMEI, "CGSN");
    who.firmware = text(&SerialThread::getCgmr, "CGMR");
    if (who.firmware.isEmpty())
        who.firmware = text(&SerialThread::getGMR, "GMR");
    who.internalVersion = text(&SerialThread::getJvn, "JVN");
    if (m_state.sim != SimState::Ready)
        return;
    who.imsi = parseImsi(ask(&SerialThread::getCIMI, "CIMI")).valueOr({});
    who.ownNumber = text(&SerialThread::getISDN, "CNUM");
    if (m_link.getICCID(m_buffer.data()) == 1)
        who.iccid = parseIccid(m_buffer.data()).valueOr({});
}

} // namespace corva
