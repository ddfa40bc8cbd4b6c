// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

namespace cardemu
{

enum class Family { Wcdma = 1, TdScdma = 2, Cdma = 4 };

/// Who the card says it is.
struct Identity {
    QString manufacturer;
    QString model;
    QString revision;        ///< the firmware: "+CGMR", "+GMR"
    QString internalVersion; ///< the maker's own version: "+JVN"
    QString hardware;        ///< the circuit board's version: "+JPCB"
    QString serial;          ///< 15 digits with their check digit (IMEI); a CDMA card's MEID, 14 hex digits
};

enum class SimCondition { Ready, Absent, Busy, Failure };
enum class SimType { Sim, Usim, Uim };

struct Sim {
    SimCondition condition = SimCondition::Ready;
    SimType type = SimType::Usim;
    QString imsi;
    QString iccid;    ///< 19 or 20 digits
    QString number;   ///< the subscriber's own number, as "+CNUM" gives it
    QString provider; ///< the name in file 28486 (EF SPN)
    QString pin;
    QString puk;
    bool pinLock = false;  ///< the SIM asks for its PIN after power-up
    bool verified = false; ///< the PIN was given since power-up
    int pinAttempts = 3;   ///< left
    int pukAttempts = 10;  ///< left
};

/// "+COPS=?" <stat>. 3GPP TS 27.007 7.3.
enum class OperatorStatus { Unknown = 0, Available = 1, Current = 2, Forbidden = 3 };

struct Operator {
    QString plmn; ///< MCC and MNC, five or six digits
    QString longName;
    QString shortName;
    bool forbidden = false;
    int access = 2; ///< <AcT>: 0 GSM, 1 GSM compact, 2 UTRAN
};

/// What the air offers, whatever the card makes of it.
enum class Service { Full, Restricted, Searching, Denied, Unknown, None };

struct Network {
    QList<Operator> operators;
    QString current; ///< the serving (or chosen) operator's PLMN
    Service service = Service::Full;
    bool roaming = false;
    int selection = 0; ///< "+COPS" <mode>: 0 automatic, 1 manual, 2 deregistered
    int areaCode = 0x1234;
    int cellId = 0x00ABCD;
    int systemMode = 5;    ///< "^SYSINFO" <sys_mode>
    int systemSubmode = 4; ///< "^SYSINFO" <sys_submode>
    int serviceDomain = 3; ///< "^SYSINFO" <srv_domain>: 0 none, 1 CS, 2 PS, 3 both, 255 CDMA
    int registerDelay = 0; ///< ms from "may register" to "registered"
    int timeZone = 0;      ///< quarters of an hour east of UTC
    bool attached = true;  ///< "+CGATT"
};

struct Radio {
    int rssi = 20; ///< 0..31, 99 unknown. 3GPP TS 27.007 8.5
    int bitErrors = 99;
    int ecio = -6;  ///< dB
    int rscp = -75; ///< dBm
    int evdo = 80;  ///< "^HDRCSQ", 0..100
    int antenna = 1;
    int functionality = 1;      ///< "+CFUN": 0 minimum, 1 full, 4 radio off
    bool signalReports = false; ///< "+JRSSI" is sent when the signal changes
};

/// What becomes of a dialled number. ConnectThenSilence: CONNECT, and nobody on the other side.
enum class DialResult { Connect, NoCarrier, Busy, NoAnswer, NoDialtone, Error, Silence, ConnectThenSilence };

/// How the card's serial ports behave.
struct Line {
    bool echo = true;
    int errorMode = 0;         ///< "+CMEE" at power-up: 0 plain ERROR, 1 numbers, 2 words
    int bytesPerSecond = 0;    ///< 0: as fast as the port takes them
    int delay = 0;             ///< ms that every command takes
    QMap<QString, int> delays; ///< ms by beginning of the command ("+COPS=?"); the longest that fits counts
    DialResult dialResult = DialResult::NoCarrier;
    int dialDelay = 0;       ///< ms before the dial result
    int ringInterval = 3000; ///< ms between two RINGs
};

struct StoredMessage {
    int status = 0; ///< 0 received unread, 1 received read, 2 stored unsent, 3 stored sent
    QByteArray pdu; ///< hex digits, with the service centre's address in front
};

struct MessageStore {
    int capacity = 20;
    bool full = false;                ///< refuses messages whatever it holds
    QMap<int, StoredMessage> entries; ///< by index, from 1
};

/// How the network treats messages. Times in ms.
struct MessageNetwork {
    int delay = 0;          ///< until a message that is sent has its answer
    int transit = 0;        ///< until one to the card's own number comes in
    int reportDelay = 1000; ///< until the delivery report
    int reportStatus = 0;   ///< TP-ST of reports: 0 delivered. 3GPP TS 23.040 9.2.3.15
    int refuse = 0;         ///< the "+CMS ERROR" number of refused messages; 0: none is refused
    int nth = 1;            ///< the next message is 1; those before this one are taken
    int count = 1;          ///< so many are refused; 0: all from there on
    int reorder = 0;        ///< so many messages wait for one another and come in backwards
    int patience = 15000;   ///< for "+CNMA"
};

/// "+CSCB": the channels of which pages are shown, or with `except` are not. 3GPP TS 27.005 3.3.4.
struct BroadcastChannels {
    bool except = true; ///< none excepted: every page is shown
    QString channels;   ///< "0,1,320-478"
    QString codings;
};

struct Messages {
    QMap<QString, MessageStore> stores; ///< "SM", "ME", "SR"
    QString serviceCentre;
    QList<int> indications{2, 1, 0, 0, 0};       ///< "+CNMI": mode, mt, bm, ds, bfr
    QString receiveStore = QStringLiteral("SM"); ///< the third of "+CPMS"
    int preferred = 0;                           ///< "+JSMSD": 0 as "+CPMS" says, 1 the SIM, 2 and 3 the card
    bool blankLine = false;                      ///< behind PDUs that come unasked
    int service = 0;                             ///< "+CSMS": 1 wants "+CNMA" for what is handed over
    int lastReference = 0;                       ///< TP-MR of the last message sent
    BroadcastChannels broadcast;
    MessageNetwork network;
};

struct PhonebookEntry {
    QString number;
    int type = 129;
    QString name;
};

struct PhonebookStore {
    int capacity = 250;
    QMap<int, PhonebookEntry> entries; ///< by index, from 1
};

struct Phonebook {
    QMap<QString, PhonebookStore> stores; ///< "SM", "ME"
};

enum class CallState { Idle, Ringing, Active };

struct Call {
    CallState state = CallState::Idle;
    QString number;
};

/// "+JPDPACT" <state>.
enum class ContextState { Down = 0, Up = 1, BeingMade = 2, Refused = 3 };

/// A packet data context as "+CGDCONT" defines it.
struct PacketContext {
    QString type;
    QString accessPoint;
    ContextState state = ContextState::Down;
};

/// What becomes of a context that the card brings up. Silence: it is being made for ever.
enum class ActivationResult { Up, Refused, Silence };

/// The network's data service, and what stands for it on this computer. Command lines are the shell's.
struct DataService {
    QString accessPoint; ///< the only one that the network lets in; empty: any
    QString peer;        ///< speaks for the network in a data call, on its standard input and output
    QString hook;        ///< runs with "up" or "down", the context's number and its access point behind it
    ActivationResult activation = ActivationResult::Up;
    int activationDelay = 0; ///< ms
    QString address;         ///< of contexts that are up; empty: 192.0.2.<context>
};

/// Everything the card knows. A plain value; the rules of how it changes are Card's.
struct CardState {
    Family family = Family::Wcdma;
    bool makerCommands = true; ///< false: only the standards' commands
    Identity identity;
    Sim sim;
    Network network;
    Radio radio;
    Line line;
    Messages messages;
    Phonebook phonebook;
    Call call;
    QMap<QString, QString> ussd; ///< the network's answers, by code ("*100#")
    QMap<int, PacketContext> contexts;
    DataService data;
};

} // namespace cardemu
