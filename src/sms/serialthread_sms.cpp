// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/serialthread.h"

#include "link/replyreader.h"
#include "shell/commoncfg.h"
#include "shell/logging.h"
#include "sms/cmserrors.h"
#include "sms/smparam.h"
#include "sms/smsreplies.h"

#include <QScopeGuard>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using corva::StoreFill;

namespace
{

constexpr auto shortWait = 3s;
constexpr auto listWait = 15s;
constexpr auto escapeWait = 1s;
/// The network's acceptance of a message. "send_atcommand_timer" does not shorten it.
constexpr auto sendWait = 30s;
constexpr std::size_t pduTextSize = 1024; ///< the longest PDU has 360 characters
constexpr char endOfPdu = '\x1a';

/// Where new messages go, "newsmsLocation".
enum NewSmsLocation { OnSim = 1, OnComputer = 2, OnCard = 3 };

int newSmsLocation()
{
    return cmcfg.getNumber(u"sms"_s, u"newsmsLocation"_s);
}

bool isCardStorageOffered()
{
    return cmcfg.getNumber(u"function"_s, u"modemSide_enabled"_s) == 1;
}

/// 1 for "OK", 0 for a plain "ERROR", -1 for anything else.
int outcome(const std::optional<QByteArray> &reply)
{
    if (!reply)
        return -1;
    if (reply->contains("OK\r\n"))
        return 1;
    return reply->startsWith("ERROR\r\n") || reply->contains("\nERROR\r\n") ? 0 : -1;
}

const char *storeName(int storage)
{
    constexpr std::array<const char *, 3> names = {"SM", "ME", "SR"};
    return storage == 1 || storage == 2 ? names[std::size_t(storage)] : names[0];
}

/// Whether the text is a number, as a service centre has one.
bool isPlainNumber(const QString &number)
{
    return std::ranges::all_of(number, [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'+'; });
}

} // namespace

// --- Stores
// ------------------------------------------------------------------------------------------------------

int SerialThread::setShortMsgStorageMode(int storage)
{
    const QByteArray name = storeName(storage);
    return outcome(transactMessage("AT+CPMS=\"" + name + "\",\"" + name + "\"\r\n", shortWait));
}

int SerialThread::setNewSmsPreferNetworkStorage()
{
    return outcome(transactMessage("AT+JSMSD=0\r\n", shortWait));
}

int SerialThread::setNewSmsPreferSIMStorage()
{
    return outcome(transactMessage("AT+JSMSD=1\r\n", shortWait));
}

int SerialThread::setNewSmsPreferNVStorage()
{
    return outcome(transactMessage("AT+JSMSD=2\r\n", shortWait));
}

int SerialThread::setNewSmsPreferMEStorage()
{
    return outcome(transactMessage("AT+JSMSD=3\r\n", shortWait));
}

int SerialThread::getNewSmsPreferStorage()
{
    const auto reply = transactMessage("AT+JSMSD?\r\n", shortWait);
    for (int storage = 0; reply && storage <= 2; ++storage) {
        if (reply->contains("+JSMSD: " + QByteArray::number(storage) + '\r'))
            return storage;
    }
    return -1;
}

int SerialThread::setNewSmsStorageLocation()
{
    const int location = newSmsLocation();
    if (location == OnSim)
        return setNewSmsPreferSIMStorage();
    if (isCardStorageOffered() && location == OnCard)
        return setNewSmsPreferMEStorage();
    if (!isCardStorageOffered() && location == 0)
        return setNewSmsPreferNetworkStorage();
    return setNewSmsPreferNVStorage();
}

std::optional<StoreFill> SerialThread::getSmsMem()
{
    return corva::parseNamedFill(transactMessage("AT+CPMS?\r\n", shortWait).value_or(QByteArray()), "SM");
}

std::optional<StoreFill> SerialThread::getModemSmsMem()
{
    return corva::parseNamedFill(transactMessage("AT+CPMS?\r\n", shortWait).value_or(QByteArray()), "ME");
}

std::optional<StoreFill> SerialThread::getSimSmsMem2()
{
    return corva::parseFill(transactMessage("AT+CPMS?\r\n", shortWait).value_or(QByteArray()), "SM");
}

std::optional<StoreFill> SerialThread::getModemSmsMem2()
{
    return corva::parseFill(transactMessage("AT+CPMS?\r\n", shortWait).value_or(QByteArray()), "ME");
}

// --- Routing
// -----------------------------------------------------------------------------------------------------

int SerialThread::setNewMsgNoticeMode()
{
    // 0 does not mean the same in both: stored on the card with cell broadcast, delivered directly without.
    const int location = newSmsLocation();
    const bool wantsBroadcast = cmcfg.getNumber(u"function"_s, u"cell_board_enabled"_s) == 1;
    const bool isForComputer =
        wantsBroadcast ? location == OnComputer : location != OnSim && location != OnCard;
    const bool isDirect = isForComputer && isCardStorageOffered();
    return setNewMsgNoticeMode(QByteArray(isDirect ? "1,2," : "3,1,") + (wantsBroadcast ? "2,2,0" : "0,2,0"));
}

int SerialThread::setNewMsgNoticeMode(const QByteArray &values)
{
    const int result = outcome(transactMessage("AT+CNMI=" + values + "\r\n", shortWait));
    constexpr qsizetype newMessages = 1; // <mt>: from 2 on they are handed over
    if (result == 1)
        m_deliversDirectly = values.split(',').value(newMessages).toInt() >= 2;
    return result;
}

QByteArray SerialThread::getNewMsgNoticeModes()
{
    return transactMessage("AT+CNMI=?\r\n", shortWait).value_or(QByteArray());
}

int SerialThread::setBroadcastChannels(const QByteArray &channels)
{
    return outcome(transactMessage("AT+CSCB=0,\"" + channels + "\"\r\n", shortWait));
}

int SerialThread::getMsgFormat()
{
    const auto reply = transactMessage("AT+CMGF?\r\n", shortWait);
    if (!reply)
        return -1;
    if (reply->contains("+CMGF: 0"))
        return 0;
    return reply->contains("+CMGF: 1") ? 1 : -1;
}

int SerialThread::setMsgFormat(int)
{
    return outcome(transactMessage("AT+CMGF=", shortWait));
}

int SerialThread::setPduMode()
{
    return outcome(transactMessage("AT+CMGF=0\r\n", shortWait));
}

// --- Reading
// -----------------------------------------------------------------------------------------------------

QByteArray SerialThread::getSmsContent(int stat, int storage)
{
    if (setShortMsgStorageMode(storage) != 1)
        return {}; // a list of the store that happens to be selected would be worse than none
    return transactMessage("AT+CMGL=" + QByteArray::number(stat) + "\r\n", listWait).value_or(QByteArray());
}

QByteArray SerialThread::getIndexSms(const char *index)
{
    return transactMessage(QByteArray("AT+CMGR=") + index + "\r\n", shortWait).value_or(QByteArray());
}

// --- Writing
// -----------------------------------------------------------------------------------------------------

int SerialThread::gsmSendMessage(SM_PARAM *message, QString text, int *tpduLength, QString *pdu)
{
    if (m_isSending.exchange(true))
        return 0;
    const auto free = qScopeGuard([this] { m_isSending = false; });
    m_mayHaveSent = false;

    std::array<char, pduTextSize> whole{};
    std::array<char, pduTextSize> ucs2{};
    if (gsmEncodePdu(message, whole.data(), text, ucs2.data()) <= 0)
        return 0;
    QByteArray hex(whole.data());
    const int centreOctets = hex.first(2).toInt(nullptr, 16) + 1;
    const int length = int(hex.size()) / 2 - centreOctets;
    hex.append(endOfPdu);
    if (tpduLength)
        *tpduLength = length;
    if (pdu)
        *pdu = QString::fromLatin1(hex);
    return sendMsgCMGSCmd(length, hex.constData()) == 1 ? 1 : 0;
}

/// Without the prompt the card is in command mode, and would take the PDU for commands.
bool SerialThread::isPrompted(const QByteArray &command)
{
    const auto prompt = transactMessage(command, shortWait);
    if (prompt && prompt->endsWith("> "))
        return true;
    if (!prompt || !corva::cmsErrorIn(*prompt))
        giveUpPrompt();
    return false;
}

/// A card whose prompt comes late would take the next command for the text.
void SerialThread::giveUpPrompt()
{
    const QByteArray reply = m_lastReply;
    transactMessage("\x1b", escapeWait);
    m_lastReply = reply;
}

int SerialThread::sendMsgCMGSCmd(int length, const char *pdu)
{
    return isPrompted("AT+CMGS=" + QByteArray::number(length) + "\r\n") ? sendPDU(pdu) : -1;
}

int SerialThread::sendPDU(const char *pdu)
{
    const auto reply = transactMessage(pdu, sendWait);
    // With its reference the network has taken it, whatever ended the reply.
    const bool isTaken = reply && corva::parseMessageReference(*reply) >= 0;
    m_mayHaveSent = m_wasWritten && !isTaken && !(reply && corva::cmsErrorIn(*reply));
    return isTaken ? 1 : -1;
}

bool SerialThread::moveMsgCMGWCmd(int length, int stat, const char *pdu)
{
    const QByteArray command =
        "AT+CMGW=" + QByteArray::number(length) + ',' + QByteArray::number(stat) + "\r\n";
    if (!isPrompted(command))
        return false;
    QByteArray text(pdu);
    if (!text.endsWith(endOfPdu))
        text.append(endOfPdu);
    const auto reply = transactMessage(text, sendWait);
    return reply && reply->contains("+CMGW:") && reply->contains("OK\r\n");
}

int SerialThread::deleteMessage(int storage, int index, const char *what)
{
    // The index means another message in another store.
    const int result =
        setShortMsgStorageMode(storage) != 1
            ? -1
            : outcome(transactMessage("AT+CMGD=" + QByteArray::number(index) + "\r\n", shortWait));
    qCDebug(lcSms).noquote() << u"=====Delete %1 %2====="_s.arg(QLatin1StringView(what),
                                                                result == 1 ? "OK"_L1 : "ERROR"_L1);
    return result;
}

int SerialThread::deleteSimSMS(int index)
{
    return deleteMessage(0, index, "SMS from SIM");
}

int SerialThread::deleteMeSMS(int index)
{
    return deleteMessage(1, index, "SMS from ME");
}

int SerialThread::deleteSmsStatusReport(int index)
{
    return deleteMessage(2, index, "Status Report");
}

// --- The service centre
// ------------------------------------------------------------------------------------------

int SerialThread::get_sms_number(char *text)
{
    const QByteArray reply = transactMessage("AT+CSCA?\r\n", shortWait).value_or(QByteArray());
    const qsizetype length = std::min<qsizetype>(reply.size(), replyBufferSize - 1);
    std::copy_n(reply.constData(), length, text);
    text[length] = '\0';
    return reply.isEmpty() ? -1 : 1;
}

int SerialThread::set_sms_number(QString number)
{
    if (number.isEmpty() || !isPlainNumber(number))
        return -1;
    // The number is digits in this character set; the phonebook relies on the other one, so it is put back
    // in any case.
    transactMessage("AT+CSCS=\"IRA\"\r\n", shortWait);
    const int result = outcome(transactMessage("AT+CSCA=\"" + number.toLatin1() + "\"\r\n", shortWait));
    const QByteArray reply = m_lastReply;
    transactMessage("AT+CSCS=\"UCS2\"\r\n", shortWait);
    m_lastReply = reply;
    return result;
}
