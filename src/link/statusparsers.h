// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "atfields.h"
#include "cardstate.h"

namespace corva
{

// One pure function per reply form: the reply's text in, a value or the reason why there is none out.

/// "+CSQ: <rssi>,<ber>". 3GPP TS 27.007 8.5.
struct SignalQuality {
    std::optional<int> dbm; ///< -113..-51; nullopt for rssi 99 and values outside 0..31
    int rssi = 99;          ///< as the card said it
    bool operator==(const SignalQuality &) const = default;
};
ReplyResult<SignalQuality> parseSignalQuality(const QByteArray &reply);

/// "+JRSSI: <rssi>,<ecio>,<rscp>", integers with a sign.
struct RadioQuality {
    int rssi = 0;
    int ecio = 0;
    int rscp = 0;
    bool operator==(const RadioQuality &) const = default;
};
ReplyResult<RadioQuality> parseRadioQuality(const QByteArray &reply);

/// "+COPS: <mode>[,<format>,<oper>[,<AcT>]]". 3GPP TS 27.007 7.3. A name in UCS2 hexadecimal text is decoded.
struct OperatorSelection {
    int mode = 0; ///< 0 automatic, 1 manual, 2 deregistered
    QString name; ///< formats 0 and 1; empty when there is none
    QString code; ///< format 2: MCC and MNC, 5 or 6 digits
    NetworkType networkType = NetworkType::Unknown;
    bool operator==(const OperatorSelection &) const = default;
};
ReplyResult<OperatorSelection> parseOperator(const QByteArray &reply);

/// "+CREG: <n>,<stat>[,<lac>,<ci>[,<AcT>]]" and the report "+CREG: <stat>[,<lac>,<ci>[,<AcT>]]", for "+CREG:"
/// and
/// "+CGREG:". 3GPP TS 27.007 7.2 and 10.1.20.
struct RegistrationState {
    Registration stat = Registration::Unknown;
    std::optional<int> lac;
    std::optional<int> cellId;
    NetworkType networkType = NetworkType::Unknown;
    bool operator==(const RegistrationState &) const = default;
};
ReplyResult<RegistrationState> parseRegistration(const QByteArray &reply, QByteArrayView prefix);

/// "^SYSINFO:<service>,<domain>,<roaming>,<mode>,<sim>[,<lock>,<submode>]" and
/// "+JPAS: <mode>,<service>[,<submode>]".
struct SystemInformation {
    ServiceState service = ServiceState::Unknown;
    std::optional<bool> roaming;
    NetworkType networkType = NetworkType::Unknown;
    bool operator==(const SystemInformation &) const = default;
};
ReplyResult<SystemInformation> parseSysInfo(const QByteArray &reply);
ReplyResult<SystemInformation> parseJpas(const QByteArray &reply);

/// "+JTIME: "yy/MM/dd,hh:mm:ss+zz"" and "+CCLK:" alike; zz in quarters of an hour. 3GPP TS 27.007 8.15.
ReplyResult<QDateTime> parseNetworkTime(const QByteArray &reply, QByteArrayView prefix);

/// "+CFUN: <fun>". 3GPP TS 27.007 8.2.
ReplyResult<int> parseFunctionality(const QByteArray &reply);
/// "+JANT: <n>": true when an antenna is plugged in.
ReplyResult<bool> parseAntenna(const QByteArray &reply);
/// "+JPINPUK: <pin>,<puk>": attempts left, 0..10 each.
struct AttemptsLeft {
    int pin = 0;
    int puk = 0;
    bool operator==(const AttemptsLeft &) const = default;
};
ReplyResult<AttemptsLeft> parseAttempts(const QByteArray &reply);
/// The SIM's state from "+CPIN: <code>", "^CPIN: <code>" or a "+CME ERROR", in words or
/// numbers. 27.007 8.3, 9.2.
ReplyResult<SimState> parseSimState(const QByteArray &reply);

/// The text of an identity reply (model, IMEI, firmware): the first line that is neither the echo, nor a
/// report, nor the final result; `prefix` ("+CGMM:") and quotes are taken off.
ReplyResult<QString> parseIdentity(const QByteArray &reply, QByteArrayView prefix);
/// "+CIMI": 6 to 15 digits. 3GPP TS 27.007 5.6.
ReplyResult<QString> parseImsi(const QByteArray &reply);
/// "+CRSM: 144,0,<hex>": the ICCID, digits in swapped halves, padded with F. ETSI TS 102 221 13.2.
ReplyResult<QString> parseIccid(const QByteArray &reply);
/// "+CNUM: [<alpha>],<number>,<type>": the first number; type 145 gets its plus sign. 3GPP TS 27.007 7.1.
ReplyResult<QString> parseOwnNumber(const QByteArray &reply);
/// "+CPBR: (1-250),40,14": the upper bound. 3GPP TS 27.007 8.12.
ReplyResult<int> parsePhonebookCapacity(const QByteArray &reply);

/// A text that may be UCS2 in hexadecimal, four digits a character: decoded when it is, without the
/// characters that nobody can see; unchanged when it is not.
QString decodeCardText(const QByteArray &text);

} // namespace corva
