// SPDX-License-Identifier: GPL-3.0-or-later
#include "serialthread.h"

#include "shell/commoncfg.h"
#include "shell/logging.h"
#include "shell/updatecfg.h"
#include "statusparsers.h"

#include <cstring>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

void copyText(char *to, const QByteArray &text)
{
    const auto length = std::min<qsizetype>(text.size(), SerialThread::replyBufferSize - 1);
    std::memcpy(to, text.constData(), std::size_t(length));
    to[length] = '\0';
}

} // namespace

/// The reply as it came. 0 for "+CME ERROR" where the query looks for it.
int SerialThread::rawText(const QByteArray &cmd, char *text, std::chrono::microseconds timeout,
                          bool failsOnCmeError)
{
    text[0] = '\0';
    const auto reply = transact(cmd, timeout);
    if (!reply || reply->isEmpty())
        return -1;
    if (failsOnCmeError && corva::refusal(*reply))
        return 0;
    copyText(text, *reply);
    return 1;
}

/// The one line that an identity query is about.
int SerialThread::identityText(const QByteArray &cmd, const QByteArray &prefix, char *text,
                               std::chrono::microseconds timeout)
{
    text[0] = '\0';
    const auto reply = transact(cmd, timeout);
    if (!reply)
        return -1;
    const auto identity = corva::parseIdentity(*reply, prefix);
    if (!identity)
        return identity.error().kind == corva::ReplyError::Refused ? 0 : -1;
    copyText(text, identity->toLatin1());
    return 1;
}

/// The reply to reading a SIM file, where the reading went well: 1 or 0.
int SerialThread::simFile(const QByteArray &cmd, char *text)
{
    text[0] = '\0';
    const auto reply = transact(cmd, 1s);
    if (!reply || !reply->contains("+CRSM: 144,0,"))
        return 0;
    copyText(text, *reply);
    return 1;
}

int SerialThread::getCGMI(char *text)
{
    return identityText("AT+CGMI\r\n", "+CGMI:", text, 1s);
}

int SerialThread::getCGMM(char *text)
{
    return identityText("AT+CGMM\r\n", "+CGMM:", text, 1s);
}

int SerialThread::getIMEI(char *text)
{
    return identityText("AT+CGSN\r\n", "+CGSN:", text, 1s);
}

int SerialThread::getGMR(char *text)
{
    return identityText("AT+GMR\r\n", "+GMR:", text, 1s);
}

int SerialThread::getCgmr(char *text)
{
    return identityText("AT+CGMR\r\n", "+CGMR:", text, 3s);
}

int SerialThread::getJvn(char *text)
{
    return identityText("AT+JVN\r\n", "+JVN:", text, 1s);
}

int SerialThread::getCIMI(char *text)
{
    return identityText("AT+CIMI\r\n", "+CIMI:", text, 1s);
}

int SerialThread::getISDN(char *text)
{
    text[0] = '\0';
    const auto reply = transact("AT+CNUM\r\n", 1s);
    const auto number = corva::parseOwnNumber(reply.value_or(QByteArray()));
    if (!number)
        return number.error().kind == corva::ReplyError::Refused ? 0 : -1;
    copyText(text, number->toLatin1());
    return 1;
}

int SerialThread::getICCID(char *text)
{
    return simFile("AT+CRSM=176,12258,0,0,10\r\n", text);
}

int SerialThread::getSPN(char *text)
{
    return simFile("AT+CRSM=176,28486,0,0,17\r\n", text);
}

int SerialThread::getSignalQuality()
{
    return sendCmdAndRec("AT+CSQ\r\n", 1, 0);
}

int SerialThread::getEvdoSignalQuality()
{
    return sendCmdAndRec("AT^HDRCSQ\r\n", 1, 0);
}

/// No drain beforehand and nothing written: what waits on the port is read, and its other reports are
/// dispatched. A report that an earlier drain met counts as pending, too.
int SerialThread::getSignalQualityR(int count, int *values)
{
    findUpReportAtCmd(QString::fromLatin1(drain().value_or(QByteArray())));
    const auto quality = corva::parseRadioQuality(std::exchange(m_radioReport, {}));
    if (!quality)
        return -1;
    const int all[] = {quality->rssi, quality->ecio, quality->rscp};
    std::copy_n(all, std::clamp(count, 0, 3), values);
    qCDebug(lcLink).noquote().nospace()
        << corva::logTime() << u"rssi is %1.ecio is %2.rscp is %3"_s.arg(all[0]).arg(all[1]).arg(all[2]);
    return 1;
}

int SerialThread::get_SYSINFO_Res_Str(char *text)
{
    return rawText("AT^SYSINFO\r\n", text, 1s, false);
}

int SerialThread::get_JPAS_Res_Str(char *text)
{
    return rawText("AT+JPAS?\r\n", text, 1s, false);
}

int SerialThread::get_COPS_Res_Str(char *text)
{
    return rawText("AT+COPS?\r\n", text, 1s, false);
}

int SerialThread::getCOPS(char *text)
{
    const int result = rawText("AT+COPS?\r\n", text, 10s, true);
    if (result != 1)
        return result;
    const QByteArray reply(text);
    const qsizetype at = reply.indexOf("+COPS:");
    copyText(text, at < 0 ? QByteArray() : reply.sliced(at + 6));
    return at < 0 ? -1 : 1;
}

int SerialThread::getOperatorCode(char *text)
{
    text[0] = '\0';
    transact("AT+COPS=3,2\r\n", 1s);
    const auto selection = corva::parseOperator(transact("AT+COPS?\r\n", 1s).value_or(QByteArray()));
    transact("AT+COPS=3,0\r\n", 1s);
    if (!selection)
        return selection.error().kind == corva::ReplyError::Refused ? 0 : -1;
    copyText(text, selection->code.toLatin1());
    return 1;
}

int SerialThread::get_JTIME_Res_Str(char *text)
{
    return rawText("AT+JTIME?\r\n", text, 1s, false);
}

int SerialThread::getJPCB(char *text)
{
    return rawText("AT+JPCB?\r\n", text, 1s, true);
}

int SerialThread::get_CREG_Res_Str(char *text)
{
    return rawText("AT+CREG?\r\n", text, 1s, false);
}

int SerialThread::get_CGREG_Res_Str(char *text)
{
    return rawText("AT+CGREG?\r\n", text, 1s, false);
}

int SerialThread::getResultForJAIRINFO(char *text)
{
    return rawText("AT+JAIRINFO?\r\n", text, 1s, true);
}

int SerialThread::getLac()
{
    const auto state =
        corva::parseRegistration(transact("AT+CREG?\r\n", 1s).value_or(QByteArray()), "+CREG:");
    return state ? state->lac.value_or(-1) : -1;
}

int SerialThread::getCellID()
{
    const auto state =
        corva::parseRegistration(transact("AT+CREG?\r\n", 1s).value_or(QByteArray()), "+CREG:");
    return state ? state->cellId.value_or(-1) : -1;
}

int SerialThread::getOnlineStatus()
{
    return corva::parseFunctionality(transact("AT+CFUN?\r\n", 1s).value_or(QByteArray())).valueOr(-1);
}

/// 0.1 s is what this card family gets: a slow "OK" counts as a failure, and the next drain takes it.
bool SerialThread::setModemFullFun()
{
    return transact("AT+CFUN=1\r\n", 100ms).value_or(QByteArray()).contains("OK\r\n");
}

bool SerialThread::setTDModemFullFun()
{
    return transact("AT+CFUN=1\r\n", 3s).value_or(QByteArray()).contains("OK\r\n");
}

/// Written only: the reply is left to the next drain.
bool SerialThread::setModemOffFun()
{
    purgeComData();
    return excuteAtStr("AT+CFUN=0\r\n");
}

int SerialThread::netCardStatus()
{
    if (m_family != corva::CardFamily::Wcdma)
        return 1;
    switch (sendCmdAndRec("AT+JOPRT?\r\n", 3, 0)) {
    case corva::CardOnline: return 1;
    case corva::CardOffline: return 0;
    default: return -1;
    }
}

bool SerialThread::netCardPowOn(bool on)
{
    return sendCmdAndRec(on ? "AT+JOPRT=5\r\n" : "AT+JOPRT=6\r\n", 3, 0) == corva::CardPowered;
}

int SerialThread::getAntennaStatus()
{
    const auto antenna = corva::parseAntenna(transact("AT+JANT?\r\n", 3s).value_or(QByteArray()));
    return antenna ? int(*antenna) : -1;
}

int SerialThread::getUSIM()
{
    if (m_family == corva::CardFamily::Cdma)
        return -1;
    switch (sendCmdAndRec("AT+JUSIM=?\r\n", 3, 0)) {
    case corva::SimIsUsim: return 1;
    case corva::SimIsNotUsim: return 0;
    default: return -1;
    }
}

int SerialThread::setATE0()
{
    const auto reply = transact("ATE0\r\n", 1s);
    return !reply ? -1 : int(reply->contains("OK\r\n"));
}

int SerialThread::setErrorReporting(int mode)
{
    const QByteArray cmd = "AT+CMEE=" + QByteArray::number(mode) + "\r\n";
    switch (sendCmdAndRec(cmd.constData(), 1, 0)) {
    case corva::PlainOk: return 1;
    case corva::PlainError: return 0;
    default: return -1;
    }
}

int SerialThread::setRegistrationReporting(const char *name, int n)
{
    const auto reply = transact(QByteArray("AT+") + name + '=' + QByteArray::number(n) + "\r\n", 1s);
    return !reply ? -1 : int(reply->contains("OK\r\n"));
}

int SerialThread::isWcdmaNetwork()
{
    using corva::NetworkType;
    const auto information = corva::parseSysInfo(transact("AT^SYSINFO\r\n", 1s).value_or(QByteArray()));
    if (!information || information->networkType == NetworkType::Unknown)
        return -1;
    return int(information->networkType >= NetworkType::Umts &&
               information->networkType <= NetworkType::HspaPlus);
}

int SerialThread::isNewPlatform()
{
    const auto reply = transact("AT+JVN\r\n", 1s);
    return !reply ? -1 : int(!corva::refusal(*reply));
}

int SerialThread::simCapacity()
{
    return phonebookCapacity("AT+CPBS=\"SM\"\r\n");
}

int SerialThread::modemSideCapacity()
{
    return phonebookCapacity("AT+CPBS=\"ME\"\r\n");
}

int SerialThread::phonebookCapacity(const char *store)
{
    if (sendCmdAndRec(store, 3, 0) != corva::PlainOk)
        return -1;
    return corva::parsePhonebookCapacity(transact("AT+CPBR=?\r\n", 3s).value_or(QByteArray())).valueOr(-1);
}

bool SerialThread::writeUpdateHardwareCfg(const corva::CardIdentity *identity)
{
    using corva::UpdateCfg;
    using corva::UpdateKey;
    if (!identity)
        return UpdateCfg::setValue(UpdateKey::DeviceReady, u"0"_s);
    return UpdateCfg::setValues({{UpdateKey::Device, identity->model},
                                 {UpdateKey::ImeiId, identity->imei},
                                 {UpdateKey::FirmwareVersion, identity->firmware},
                                 {UpdateKey::ClintGroup, cmcfg.getValue(u"setting"_s, u"operator"_s)},
                                 {UpdateKey::DeviceReady, u"1"_s}});
}
