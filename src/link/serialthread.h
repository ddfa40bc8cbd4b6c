// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/cardstate.h"
#include "link/parseatres.h"

#include <QByteArray>
#include <QString>
#include <QThread>
#include <atomic>
#include <chrono>
#include <optional>

class LinkOwner;
struct SM_PARAM;

namespace corva
{
class ReplyReader;
struct StoreFill;
} // namespace corva

/// True once the search has found and confirmed the AT port. Cleared by whoever notices that the card has
/// gone.
extern std::atomic<bool> foundPortFlag;
/// True while `SerialThread::resAtStr` collects a reply: the re-entry guard of the reply reader.
extern std::atomic<bool> receive_flag;

/// Reply time-out in seconds that replaces the callers' own when it is 4 or more. 1..60.
extern std::atomic<int> send_atcommand_timer;
/// The "AT" probe's time-out: seconds, and tenths of a second beside them.
extern std::atomic<int> send_nullatcommand_timer_s;
extern std::atomic<int> send_nullatcommand_timer_100ms;

/// A network search and a manual selection requested for the thread's start, "done", and their results.
extern std::atomic<int> gManualSearch;
extern std::atomic<int> gManualSelect;
extern std::atomic<int> gWaitSearchOrSelectEnd;
extern std::atomic<int> gManualSearchResult;
extern std::atomic<int> gManualSelectResult;
/// The network list of the start-up search, terminated. Read it after `gWaitSearchOrSelectEnd` is 1.
extern char gSearchStr[1024];
/// Arguments of the pending manual selection. Written before the thread starts.
extern QString gAct;
extern QString gOpt;
extern QString gFormat;
extern QString gMode;

/// The one object through which the program talks to one port of the card: one command at a time, its reply,
/// and the reports found in the traffic. All card operations are its methods; each runs on its caller's
/// thread, which is the card worker and never the GUI thread. The object's own thread only looks for the card
/// while none is known.
///
/// Unless said otherwise an operation returns 1 for success, 0 for a plain "ERROR" and -1 for no or an
/// unexpected reply, and a `char *` is a buffer of `replyBufferSize` bytes that receives terminated text.
class SerialThread : public QThread
{
    Q_OBJECT

public:
    static constexpr int replyBufferSize = 102400;

    explicit SerialThread(LinkOwner *owner);
    /// Stops the thread. The port is closed by the owner.
    ~SerialThread() override;

    /// Ends the thread's loop and every wait on the card, now and from now on. Any thread.
    void requestStop();

    // --- Port
    // ----------------------------------------------------------------------------------------------------

    /// Opens `name` as 115200 8N1 raw with RTS/CTS and XON/XOFF. Returns the descriptor, or -1 with `errno`
    /// of the failing step (ENOTTY for what is not a character device, which is not opened at all).
    int openPort(const QString &name);
    /// Takes an open port for this program; 0, or errno. See `corva::claimPort`.
    using Claim = int (*)(int fd);
    /// As `openPort`, for this program alone: a port that `claim` is refused is closed as it was, neither its
    /// settings nor the bytes that wait there touched.
    int openPort(const QString &name, Claim claim);
    /// The same with the input flags left as the device had them.
    int openPortWithoutSoftFlowControl(const QString &name);
    /// False for a negative descriptor. Does not reset the stored one: see `forgetPort`.
    bool closePortNormal(int fd);
    /// Closes `fd` if it is open and sets `errno` to `err`. Returns -1. `step` names what failed.
    int closePortAbnormal(int fd, const char *step, int err);
    /// The stored descriptor is no longer a port: -1, and what was read from it is dropped.
    void forgetPort();
    int descriptor() const { return m_fd; }
    /// True after a read or write met the end of the device; cleared by the next open.
    bool isPortLost() const { return m_portLost; }

    /// Waits without limit until `fd` is writable, then one `write`. Bytes written or -1.
    int writePort(int fd, const char *data, int len);
    int sendData(void *data, int len);
    /// Bytes waiting on the port; 1 if that cannot be told.
    int readDataWaiting();
    /// Whether bytes behind the last reply wait here already, where no wait on the descriptor sees them.
    bool hasReadAhead() const { return !m_ahead.isEmpty(); }
    /// Reads until `len` bytes are in, or end of file. Bytes read or -1.
    int readData(void *buf, int len);
    int readAll(int fd, char *buf, int len);
    /// As `readAll`, but stops before a chunk that begins with the letter "n".
    int readLine(int fd, char *buf, int len);

    void atLock() { m_locked = true; }
    void atUnlock() { m_locked = false; }
    bool atLocked() const { return m_locked; }

    // --- Transaction
    static constexpr int ceilingFactor = 5;
    static constexpr std::chrono::seconds lowestCeiling{10};
    // ---------------------------------------------------------------------------------------------

    /// Writes one command with its line end. False when a gate refused it or the write failed.
    bool excuteAtStr(const char *cmd);
    /// Collects one reply. 1 when it is complete, -1 on time-out or error, 0 (and no text) while another read
    /// runs. Only silence spends the time-out: a reply may come as slowly as it likes. A card that goes on
    /// sending and never ends its reply is given up after `ceilingFactor` times the time-out, and not before
    /// `lowestCeiling`.
    int resAtStr(int fd, char *reply, int seconds, int microseconds);
    /// Drains what the card sent since the last transaction, and dispatches the reports in it.
    void purgeComData();
    /// The whole transaction; a `corva::ResultCode`: 103 not written, 102 no reply, else the classifier's.
    int sendCmdAndRec(const char *cmd, int seconds, int microseconds);
    /// The "AT" probe: 1 if any reply came, -1 otherwise.
    int sendNULL_ATCmd();
    /// Drain, write and read with the caller's own time-out; nullopt when any of them failed.
    std::optional<QByteArray> transact(const QByteArray &cmd, std::chrono::microseconds timeout);
    /// The same for the message operations: a line "+CMS ERROR: <code>" ends the reply as well.
    std::optional<QByteArray> transactMessage(const QByteArray &cmd, std::chrono::microseconds timeout);
    /// The reply of the last `sendCmdAndRec` or `transact`; empty when there was none.
    const QByteArray &lastReply() const { return m_lastReply; }

    // --- Reports
    // -------------------------------------------------------------------------------------------------

    void findUpReportAtCmd(QString text);
    void findAtiveMsg(QString &text, const QString &mark);
    void findSmsStatusReport(const QString &text);
    void receiveClass0Sms(const QString &text);
    void handleCellBoard(const QString &text);
    /// The last state of "+JPDPACT: 1,<state>", 0..3.
    int dataCallState() const { return m_dataCallState; }
    /// The same by the order in which reports came, where several came together: "being made" and "up" do.
    int latestDataCallState() const { return m_latestDataCallState; }

    // --- Identity and status
    // ---------------------------------------------------------------------------------------

    int getCGMI(char *text);
    int getCGMM(char *text);
    int getIMEI(char *text);
    int getGMR(char *text);
    int getCgmr(char *text);
    int getJvn(char *text);
    /// The raw reply of reading the SIM's ICCID file. 1 or 0.
    int getICCID(char *text);
    /// The raw reply of reading the SIM's file with its provider's name. 1 or 0.
    int getSPN(char *text);
    /// The subscriber's identity, digits. 3GPP TS 27.007 5.6.
    int getCIMI(char *text);
    /// The SIM's own number. 3GPP TS 27.007 7.1.
    int getISDN(char *text);
    /// 30..35, or a transaction code.
    int getSignalQuality();
    /// EvdoLevel1..EvdoLevel1 + 4, EvdoNone, or a transaction code.
    int getEvdoSignalQuality();
    /// Reads a pending "+JRSSI:" report without asking for it. `values` receives rssi, ecio and rscp; `count`
    /// is its room.
    int getSignalQualityR(int count, int *values);
    int get_SYSINFO_Res_Str(char *text);
    int get_JPAS_Res_Str(char *text);
    int get_COPS_Res_Str(char *text);
    /// The text behind "+COPS:".
    int getCOPS(char *text);
    /// The operator's MCC and MNC, digits. Switches to the numeric form and back to the long name.
    int getOperatorCode(char *text);
    int get_JTIME_Res_Str(char *text);
    int getJPCB(char *text);
    /// Raw replies of "AT+CREG?" and "AT+CGREG?".
    int get_CREG_Res_Str(char *text);
    int get_CGREG_Res_Str(char *text);
    /// Location area code and cell identity from "+CREG: 2,...", or -1.
    int getLac();
    int getCellID();
    /// Raw reply of "AT+JAIRINFO?".
    int getResultForJAIRINFO(char *text);
    /// The functionality level of "+CFUN:", or -1.
    int getOnlineStatus();
    bool setModemFullFun();
    bool setTDModemFullFun();
    bool setModemOffFun();
    int netCardStatus();
    bool netCardPowOn(bool on);
    /// 1 plugged in, 0 not, -1 unknown.
    int getAntennaStatus();
    /// 1 USIM, 0 SIM, -1 unknown.
    int getUSIM();
    int setATE0();
    /// "AT+CMEE=<mode>", 2 for errors in words. 3GPP TS 27.007 9.1.
    int setErrorReporting(int mode);
    /// "AT+CREG=<n>" or "AT+CGREG=<n>": 2 adds the cell to the registration.
    int setRegistrationReporting(const char *name, int n);
    /// 1 when the card is on a WCDMA network by "AT^SYSINFO", 0 when it is not, -1 unknown.
    int isWcdmaNetwork();
    /// 1 when the card knows the maker's version command, 0 when it refuses it, -1 without an answer.
    int isNewPlatform();
    /// Entries that the SIM's or the card's phonebook can hold, or -1.
    int simCapacity();
    int modemSideCapacity();
    /// Hands model, IMEI and firmware to the updater's exchange file; null says there that the card is gone.
    static bool writeUpdateHardwareCfg(const corva::CardIdentity *identity);
    /// What the card is; decides which of two commands some operations send.
    void setFamily(corva::CardFamily family) { m_family = family; }
    corva::CardFamily family() const { return m_family; }

    // --- SIM
    // -----------------------------------------------------------------------------------------------------

    /// 0 ready, 1 PUK needed, 2 PIN needed, 3 SIM busy, 4 SIM failure, -1 anything else.
    int connectDeviceNeedInputPIN();
    /// 1 PIN request on, 0 off, -1 unknown.
    int PINSetStatus();
    /// 1 done, 0 wrong PIN, 2 PUK now required, 3 SIM failure, -1 other. The dialogs check the PIN's form.
    int lockPIN(const char *pin);
    int unLockPIN(const char *pin);
    /// 1 done, 0 refused, -2 PUK required, -1 other.
    int changePWD(const char *oldPin, const char *newPin);
    /// Attempts left as "<pin>,<puk>"; an empty text when the card does not say.
    QString get_JPINJPUK_Res_Str();
    /// Results as `lockPIN`.
    int enterPin(const QString &pin);
    int enterPuk(const QString &puk, const QString &newPin);

    // --- Network selection
    // ---------------------------------------------------------------------------------------

    /// "AT+COPS=?": the raw list of networks. Up to three minutes.
    int getNetworkList(char *text);
    /// "AT+COPS=<mode>,<format>,"<operator>"[,<act>]".
    int setManualNetworkMode(const QString &act, const QString &opt, const QString &format,
                             const QString &mode);
    void setCOPSCmdSendingStatus(bool sending) { m_searching = sending; }

    // --- Data connection
    // ---------------------------------------------------------------------------------------------

    /// "AT+CGDCONT=<cid>,"<type>","<apn>"[,"<address>"]"; an empty address is the network's to choose. -1 as
    /// well for a text that would break out of its quotes. 3GPP TS 27.007 10.1.1.
    int setPdpContext(int cid, const QString &type, const QString &apn, const QString &address);
    /// "AT+JPDPACT=<cid>,<1|0>": the maker's data call over the network interface. `latestDataCallState`
    /// is 2 until the card reports the outcome.
    int setDataCall(int cid, bool up);
    /// "AT+CGACT=<1|0>,<cid>". 3GPP TS 27.007 10.1.10.
    int activatePdpContext(int cid, bool up);

    // --- Messages: 3GPP TS 27.005, PDU mode
    // ------------------------------------------------------------------------

    /// Selects the store that is read, written and deleted from: 1 the card's own memory, 2 the delivery
    /// reports, anything else the SIM.
    int setShortMsgStorageMode(int storage);
    /// Where the card keeps new messages: the maker's "AT+JSMSD=<0..3>".
    int setNewSmsPreferNetworkStorage();
    int setNewSmsPreferSIMStorage();
    int setNewSmsPreferNVStorage();
    int setNewSmsPreferMEStorage();
    /// 0, 1, 2, or -1 for anything else.
    int getNewSmsPreferStorage();
    /// Chooses one of the four by "newsmsLocation" and "modemSide_enabled".
    int setNewSmsStorageLocation();
    /// "AT+CNMI" by "newsmsLocation", "modemSide_enabled" and "cell_board_enabled".
    int setNewMsgNoticeMode();
    /// The modes that the card knows, the raw reply of "AT+CNMI=?"; empty without one.
    QByteArray getNewMsgNoticeModes();
    /// "AT+CNMI=<mode>,<mt>,<bm>,<ds>,<bfr>".
    int setNewMsgNoticeMode(const QByteArray &values);
    /// Whether the card took one under which it hands new messages over and keeps none of them.
    bool deliversDirectly() const { return m_deliversDirectly; }
    /// "AT+CSCB=0,"<channels>"": the cell broadcast channels that are wanted; none of them for an empty text.
    int setBroadcastChannels(const QByteArray &channels);

    /// 0 PDU mode, 1 text mode, -1 unknown.
    int getMsgFormat();
    /// Sends "AT+CMGF=" as it stands, without value and line end: nothing relies on it. See `setPduMode`.
    int setMsgFormat(int format);
    /// Makes sure that messages travel as PDUs.
    int setPduMode();

    /// The raw reply with every message of `storage` (numbers as above) that has the status `stat`: 0
    /// received unread, 1 received read, 2 stored unsent, 3 stored sent, 4 all. Empty when the store could
    /// not be selected or no reply came.
    QByteArray getSmsContent(int stat, int storage);
    /// The raw reply with one message of the store that is selected; empty when no reply came.
    QByteArray getIndexSms(const char *index);

    /// Builds the PDU of a part and sends it. 1 sent, 0 not, also at once while another is being sent.
    /// `tpduLength` receives the octets without the service centre, `pdu` the hexadecimal text with Ctrl-Z;
    /// both may be null.
    int gsmSendMessage(SM_PARAM *message, QString text, int *tpduLength, QString *pdu);
    /// Whether the last `gsmSendMessage` that returned 0 had handed its PDU over and heard neither acceptance
    /// nor refusal: the message may be out.
    bool mayHaveSent() const { return m_mayHaveSent; }
    /// Asks for the prompt and sends `pdu`, which ends in Ctrl-Z. 1 sent, -1 not; `lastReply` says why. A
    /// card that does not prompt in time gets ESC: 3GPP TS 27.005 3.5.1.
    int sendMsgCMGSCmd(int length, const char *pdu);
    /// Writes the PDU behind the prompt and waits for "+CMGS: <mr>". 1 or -1.
    int sendPDU(const char *pdu);
    /// Writes a message with that status into the selected store, as it was listed or encoded; Ctrl-Z is
    /// added where it lacks. Whether it is there.
    bool moveMsgCMGWCmd(int length, int stat, const char *pdu);
    /// Select the store, then delete. -1 and nothing deleted when the store cannot be selected.
    int deleteSimSMS(int index);
    int deleteMeSMS(int index);
    int deleteSmsStatusReport(int index);

    /// The raw reply of "AT+CSCA?". 1, or -1 without one.
    int get_sms_number(char *text);
    /// Stores the service centre's number on the SIM. -1 and nothing sent for a text that could break out of
    /// its quotes. Afterwards the character set is "UCS2", whatever came of it.
    int set_sms_number(QString number);
    /// Room on the SIM and in the card's memory, where "AT+CPMS?" names that store. See
    /// `setShortMsgStorageMode`: the card only tells of those that are selected.
    std::optional<corva::StoreFill> getSmsMem();
    std::optional<corva::StoreFill> getModemSmsMem();
    /// The same from cards that leave the stores' names out: the figures of the store that is read.
    std::optional<corva::StoreFill> getSimSmsMem2();
    std::optional<corva::StoreFill> getModemSmsMem2();
    // --- Message PDUs
    // --------------------------------------------------------------------------------------------

    // Text in, text out: what is written, without the NUL that follows it, is what is returned.

    /// `n` octets as upper-case hex.
    static int gsmBytes2String(const unsigned char *src, char *dst, int n);
    /// `n` hex characters of either case as octets; half an octet at the end is left out.
    static int gsmString2Bytes(const char *src, char *dst, int n);
    /// Swaps each pair of `n` digits, an odd one at the end with "F".
    static int gsmInvertNumbers(const char *src, char *dst, int n);
    /// Packs `n` septets into as many octets as their bits need. 3GPP TS 23.038 6.1.2.1.
    static int gsmEncode7bit(const char *src, unsigned char *dst, int n);
    /// The first `n` code units of `text`: as lower-case hex in `hex`, as octets in `dst`. Octets, 2n.
    static int gsmEncodeUcs2(const char *src, char *dst, int n, QString text, char *hex);
    /// The SUBMIT of `src`, in UCS2 of `text` while `gUnicodeFlag` is set; its text's hex in `hex` then. Both
    /// need room for 1024 characters. Takes a leading "+" off `src->TPA`: fill it anew for each call.
    static int gsmEncodePdu(SM_PARAM *src, char *dst, QString text, char *hex);

protected:
    void run() override;

private:
    enum class Wait { Ready, Silent, Failed };
    /// The time that one reply may take.
    struct Budget {
        qint64 rounds; ///< silent ones of 100 ms that are left
        std::chrono::steady_clock::time_point end;
    };

    Wait waitFor(int fd, short events, int milliseconds);
    int readFrom(int fd, char *buf, int len);
    bool fillBuffer(int fd);
    int readSome(int fd, char *buf, int len);
    int openWith(const QString &name, bool softFlowControl, Claim claim = nullptr);
    bool mayWrite(const char *cmd);
    bool writeCommand(const char *cmd, bool isLogged);
    bool waitForLockAndWrite(const char *cmd);
    int collectReply(int fd, QByteArray &reply, std::chrono::seconds whole, std::chrono::microseconds rest);
    int collectReply(int fd, QByteArray &reply, std::chrono::seconds whole, std::chrono::microseconds rest,
                     corva::ReplyReader reader);
    std::optional<QByteArray> writeAndCollect(const QByteArray &cmd, std::chrono::microseconds timeout,
                                              corva::ReplyReader reader);
    void dispatchLeftOver(QByteArray text, bool mayGoOn);
    QString readReply(int fd, corva::ReplyReader &reader, Budget &budget);
    QString waitForBytes(int fd, Budget &budget);
    std::optional<QByteArray> drain();
    void runStartJobs();
    bool sleepTwoSeconds();
    int rawText(const QByteArray &cmd, char *text, std::chrono::microseconds timeout, bool failsOnCmeError);
    int identityText(const QByteArray &cmd, const QByteArray &prefix, char *text,
                     std::chrono::microseconds timeout);
    int simFile(const QByteArray &cmd, char *text);
    int phonebookCapacity(const char *store);
    bool isPrompted(const QByteArray &command);
    void giveUpPrompt();
    int deleteMessage(int storage, int index, const char *what);

    LinkOwner *const m_owner;
    std::atomic<int> m_fd = -1;
    std::atomic<bool> m_locked = false;
    std::atomic<bool> m_searching = false;
    std::atomic<bool> m_selectionGate = true;
    std::atomic<bool> m_probing = false;
    std::atomic<bool> m_portLost = false;
    std::atomic<bool> m_stop = false;
    std::atomic<bool> m_isSending = false;
    bool m_wasWritten = false; ///< the last command of a transaction went out
    bool m_mayHaveSent = false;
    bool m_deliversDirectly = false;
    std::atomic<int> m_dataCallState = 0;
    std::atomic<int> m_latestDataCallState = 0;
    std::atomic<corva::CardFamily> m_family;
    int m_stopEvent = -1; ///< becomes readable at `requestStop`
    QByteArray m_ahead;   ///< bytes read from the port that no reply has taken yet
    QByteArray m_lastReply;
    QByteArray m_radioReport; ///< text with the last "+JRSSI:" that nobody has read
};
