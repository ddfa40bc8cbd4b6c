// SPDX-License-Identifier: GPL-3.0-or-later
#include "parseatres.h"

#include <algorithm>
#include <array>
#include <span>

namespace corva
{

namespace
{

/// A text looked for in a reply, and the code that it earns.
struct Outcome {
    const char *text;
    int code;
};

using Judge = int (*)(const QByteArray &reply);

/// One operation's replies. A rule is selected by the command, as it was sent or as the card echoes it;
/// `mark` selects it in a reply to nobody knows what. `outcomes` are tested in order, then `judge` where
/// there is one; `otherwise` is the code for none of them.
struct Rule {
    const char *command; ///< how the command begins; null when only the mark selects
    const char *mark;    ///< text of a bare reply; null when only the command selects
    std::span<const Outcome> outcomes;
    int otherwise;
    const char *serves; ///< the operation that compares the code
    Judge judge = nullptr;
};

constexpr auto plainProbe = std::to_array<Outcome>({{"\r\nOK", Acknowledged}});
constexpr auto dial = std::to_array<Outcome>(
    {{"NO CARRIER", NoCarrier}, {"BUSY", Busy}, {"NO ANSWER", NoAnswer}, {"CONNECT", Connected}});

// Error numbers stand beside the words: a card in its default error mode says the number (3GPP
// TS 27.007 9.2). A SIM that only wants PIN2 is not locked.
constexpr auto simState = std::to_array<Outcome>({
    {"CPIN: READY", SimReady},
    {"CPIN:READY", SimReady},
    {"SIM PIN2", SimReady},
    {"SIM PUK2", SimReady},
    {"CPIN: SIM PIN", SimPin},
    {"CPIN:SIM PIN", SimPin},
    {"CPIN: SIM PUK", SimPuk},
    {"CPIN:SIM PUK", SimPuk},
    {"CME ERROR: SIM PIN required", SimPin},
    {"CME ERROR: 11\r", SimPin},
    {"CME ERROR: SIM PUK required", SimPuk},
    {"CME ERROR: 12\r", SimPuk},
    {"CME ERROR: SIM busy", SimBusy},
    {"CME ERROR: 14\r", SimBusy},
    {"CME ERROR: SIM failure", SimFailure},
    {"CME ERROR: 13\r", SimFailure},
});
constexpr auto simError = std::to_array<Outcome>({{"CME ERROR: SIM busy", SimBusy},
                                                  {"CME ERROR: SIM failure", SimFailure},
                                                  {"CME ERROR: SIM PUK required", PukRequired}});
constexpr auto facilityState = std::to_array<Outcome>({
    {"\r\n+CLCK: 1", FacilityOn},
    {"\r\n+CLCK: 0", FacilityOff},
    {"CME ERROR: SIM PUK required", PukRequired},
    {"CME ERROR: 12\r", PukRequired},
});
/// The codes in which the operations with a PIN, a PUK or a password differ.
struct PasswordCodes {
    int done;
    int refused; ///< wrong, or "ERROR" without a reason
    int pukRequired = PukRequired;
    int simFailure = SimFailure;
    int otherError = NotWritten;
};
constexpr auto passwordOutcomes(const PasswordCodes &code)
{
    return std::to_array<Outcome>({
        {"OK\r\n", code.done},
        {"CME ERROR: SIM PUK required", code.pukRequired},
        {"CME ERROR: 12\r", code.pukRequired},
        {"CME ERROR: SIM failure", code.simFailure},
        {"CME ERROR: 13\r", code.simFailure},
        {"CME ERROR: incorrect password", code.refused},
        {"CME ERROR: 16\r", code.refused},
        {"CME ERROR", code.otherError},
        {"ERROR", code.refused},
    });
}
constexpr auto pinEntry = passwordOutcomes({.done = UnknownOk, .refused = UnknownError});
constexpr auto facilityLock = passwordOutcomes({.done = LockDone, .refused = LockRefused});
constexpr auto facilityUnlock = passwordOutcomes({.done = UnlockDone, .refused = UnlockRefused});
constexpr auto passwordChange = passwordOutcomes({.done = PasswordChanged,
                                                  .refused = PasswordRefused,
                                                  .pukRequired = PasswordPukRequired,
                                                  .simFailure = PasswordFailed,
                                                  .otherError = PasswordFailed});
constexpr auto plain = std::to_array<Outcome>({{"OK\r\n", PlainOk}, {"ERROR", PlainError}});
constexpr auto phonebookStore = std::to_array<Outcome>({{"OK", PlainOk}});
constexpr auto firmware = std::to_array<Outcome>({{"\r\nOK", FirmwareRead}});
constexpr auto storageSet = std::to_array<Outcome>({{"\r\nOK", StorageSet}});
constexpr auto storageRead = std::to_array<Outcome>({{"+CPMS: ", StorageRead}});
constexpr auto callWaiting = std::to_array<Outcome>({{"OK", CallWaitingOk}});
constexpr auto cardOnline = std::to_array<Outcome>({{"+JOPRT: 1", CardOnline}, {"+JOPRT: 0", CardOffline}});
constexpr auto cardPower = std::to_array<Outcome>({{"OK\r\n", CardPowered}});
constexpr auto functionality =
    std::to_array<Outcome>({{"\r\n+CFUN: 1", FullFunctionality}, {"\r\n+CFUN: 0", MinimumFunctionality}});
constexpr auto functionalitySet = std::to_array<Outcome>({{"OK\r\n", FunctionalitySet}});
constexpr auto testMode = std::to_array<Outcome>({{"ZPPDL: 1", TestModeOn}, {"ZPPDL: 0", TestModeOff}});
constexpr auto dataCall = std::to_array<Outcome>({{"+JPDPACT: 1,0", DataCallReport},
                                                  {"+JPDPACT: 1,1", DataCallReport + 1},
                                                  {"+JPDPACT: 1,2", DataCallReport + 2},
                                                  {"+JPDPACT: 1,3", DataCallReport + 3}});
constexpr auto profileSet = std::to_array<Outcome>({{"OK\r\n", ProfileSet}});
constexpr auto simFile = std::to_array<Outcome>({{"+CRSM: 144,0,", SimFileRead}});
constexpr auto security = std::to_array<Outcome>({{"+JSEC:", SecurityRead}});
constexpr auto tagSet = std::to_array<Outcome>({{"OK\r\n", TagSet}});
constexpr auto usim = std::to_array<Outcome>({{"+JUSIM: 1", SimIsUsim}, {"+JUSIM: 0", SimIsNotUsim}});
constexpr auto unknownCommand = std::to_array<Outcome>({{"OK\r\n", UnknownOk}, {"ERROR", UnknownError}});

/// The decimal number behind `mark`, at most five characters up to a comma; -1 when there is none.
int numberBehind(const QByteArray &reply, QByteArrayView mark)
{
    const qsizetype at = reply.indexOf(mark);
    if (at < 0)
        return -1;
    QByteArrayView digits = QByteArrayView(reply).sliced(at + mark.size());
    digits = digits.first(std::min<qsizetype>(digits.size(), 5));
    qsizetype length = 0;
    while (length < digits.size() && digits[length] >= '0' && digits[length] <= '9')
        ++length;
    return length > 0 ? digits.first(length).toInt() : -1;
}

int judgeSignal(const QByteArray &reply)
{
    const int rssi = numberBehind(reply, "\r\n+CSQ: ");
    return rssi < 0 ? NotWritten : signalLevelCode(rssi);
}

/// "^HDRCSQ: <0..100>" in five equal steps, 0 no signal.
int judgeEvdoSignal(const QByteArray &reply)
{
    const int percent = numberBehind(reply, "\r\n^HDRCSQ: ");
    if (percent < 0)
        return NotWritten;
    return percent == 0 || percent > 100 ? EvdoNone : EvdoLevel1 + (percent - 1) / 20;
}

/// "OK" behind the message reference or index.
int judgeMessageSent(const QByteArray &reply)
{
    const qsizetype at = std::max(reply.indexOf("+CMGS:"), reply.indexOf("+CMGW:"));
    return at >= 0 && reply.indexOf("OK", at) >= 0 ? Acknowledged : NotWritten;
}

/// The table, in the order in which it is tested. Rules of one command stand together, the longer beginning
/// first.
constexpr auto rules = std::to_array<Rule>({
    // command, mark of a bare reply, outcomes, otherwise, serves
    {"AT\r", nullptr, plainProbe, NotWritten, "sendNULL_ATCmd"},
    {"AT+CMGS", "+CMGS", {}, NotWritten, "message sending", judgeMessageSent},
    {"AT+CMGW", "+CMGW", {}, NotWritten, "message writing", judgeMessageSent},
    {"ATD", nullptr, dial, NotWritten, "dialling"},
    {"AT+CPIN?", "+CPIN:", simState, NotWritten, "connectDeviceNeedInputPIN"},
    {"AT^CPIN?", "^CPIN:", simState, NotWritten, "connectDeviceNeedInputPIN"},
    {"AT+CPIN=", nullptr, pinEntry, NotWritten, "enterPin, enterPuk"},
    {"AT^CPIN=", nullptr, pinEntry, NotWritten, "enterPin, enterPuk"},
    {"AT+CLCK=\"SC\",1,", nullptr, facilityLock, NotWritten, "lockPIN"},
    {"AT+CLCK=\"SC\",0,", nullptr, facilityUnlock, NotWritten, "unLockPIN"},
    {"AT+CLCK=", "+CLCK: ", facilityState, NotWritten, "PINSetStatus"},
    {"AT+CPWD=", nullptr, passwordChange, NotWritten, "changePWD"},
    {"AT+CGMR", "+CGMR", firmware, FirmwareNotRead, "getCgmr"},
    {"AT+CPBS=\"SM\"", nullptr, phonebookStore, PlainError, "selecting the SIM phonebook"},
    {"AT+CPBS=\"ME\"", nullptr, phonebookStore, PlainError, "selecting the card phonebook"},
    {"AT+CPMS=", nullptr, storageSet, StorageNotSet, "setting the message storage"},
    {"AT+CPMS?", nullptr, storageRead, StorageNotRead, "reading the message storage"},
    {nullptr, "+CPMS", storageSet, StorageNotSet, "setting the message storage"},
    {"AT+CSQ", "\r\n+CSQ: ", {}, NotWritten, "getSignalQuality", judgeSignal},
    {"AT^HDRCSQ", "\r\n^HDRCSQ: ", {}, NotWritten, "getEvdoSignalQuality", judgeEvdoSignal},
    {"AT+CFUN=1\r", nullptr, functionalitySet, FunctionalityNotSet, "setModemFullFun"},
    {"AT+CFUN?", "\r\n+CFUN: ", functionality, NotWritten, "getOnlineStatus"},
    {"AT+ZPPDL", "ZPPDL: ", testMode, NotWritten, "test mode"},
    {"AT+CCWA=", nullptr, callWaiting, CallWaitingFailed, "call waiting"},
    {"AT+JTAG=", nullptr, tagSet, TagNotSet, "module test"},
    {"AT+CGDCONT=1,", nullptr, profileSet, ProfileNotSet, "setting the PDP context"},
    {"AT+JOPRT?", "+JOPRT: ", cardOnline, NotWritten, "netCardStatus"},
    {"AT+JOPRT=", nullptr, cardPower, NotWritten, "netCardPowOn"},
    {"AT+CRSM=176,", nullptr, simFile, SimFileNotRead, "reading a SIM file"},
    {"AT+JSEC?", nullptr, security, SecurityNotRead, "security state"},
    {"AT+JUSIM=?", "+JUSIM: ", usim, NotWritten, "getUSIM"},
    {nullptr, "+JPDPACT", dataCall, NotWritten, "data-call reports"},
    {nullptr, "+CME ERROR: SIM ", simError, NotWritten, "SIM state without an echo"},
});

int judge(const QByteArray &text, const Rule &rule)
{
    for (const Outcome &outcome : rule.outcomes) {
        if (text.contains(outcome.text))
            return outcome.code;
    }
    return rule.judge ? rule.judge(text) : rule.otherwise;
}

/// For commands that end with a plain final result, which need no row of their own.
constexpr Rule plainCommand{"AT", nullptr, plain, NotWritten, "commands with a plain result"};
constexpr Rule unknownReply{nullptr, nullptr, unknownCommand, NotWritten, "a reply without a command"};

/// The command whose echo stands in a text, with its line end; empty when there is none.
QByteArray echoIn(const QByteArray &text)
{
    for (const char *beginning : {"AT+", "AT^", "ATD", "AT\r"}) {
        const qsizetype at = text.indexOf(beginning);
        const qsizetype end = text.indexOf('\r', at);
        if (at >= 0)
            return text.mid(at, end < 0 ? -1 : end - at) + '\r';
    }
    return {};
}

const Rule *ruleOf(const QByteArray &command)
{
    const auto *rule = std::ranges::find_if(
        rules, [&](const Rule &each) { return each.command && command.startsWith(each.command); });
    return rule == rules.end() ? nullptr : rule;
}

const Rule &ruleOfBareReply(const QByteArray &reply)
{
    const auto *rule =
        std::ranges::find_if(rules, [&](const Rule &each) { return each.mark && reply.contains(each.mark); });
    return rule == rules.end() ? unknownReply : *rule;
}

/// A text alone: its echo selects the rule, or else its own lines do.
int classify(const QByteArray &text)
{
    if (text.isEmpty())
        return NotWritten;
    const QByteArray echo = echoIn(text);
    if (echo.isEmpty())
        return judge(text, ruleOfBareReply(text));
    const Rule *rule = ruleOf(echo);
    return rule ? judge(text, *rule) : int(NotWritten);
}

} // namespace

int signalLevelCode(int rssi)
{
    struct Step {
        int upTo;
        int code;
    };
    static constexpr auto steps = std::to_array<Step>({{0, SignalNone},
                                                       {10, SignalLevel1},
                                                       {15, SignalLevel2},
                                                       {22, SignalLevel3},
                                                       {28, SignalLevel4},
                                                       {31, SignalLevel5}});
    for (const auto &[upTo, code] : steps) {
        if (rssi <= upTo)
            return code;
    }
    return SignalNone;
}

int classifyReply(const QByteArray &reply, const QByteArray &command)
{
    if (reply.isEmpty())
        return NotWritten;
    if (!command.startsWith("AT")) // what is typed behind a prompt
        return classify(reply);
    const Rule *rule = ruleOf(command.trimmed() + '\r');
    return judge(reply, rule ? *rule : plainCommand);
}

} // namespace corva

unsigned Parse_At_Res(char *reply)
{
    return unsigned(reply ? corva::classify(QByteArray::fromRawData(reply, qsizetype(qstrlen(reply))))
                          : corva::NotWritten);
}
