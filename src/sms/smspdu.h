// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/pduerror.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <optional>
#include <variant>

namespace corva
{

enum class Alphabet { Gsm7, EightBit, Ucs2 };

/// Where a PDU comes from: what is delivered is never a SUBMIT, what lies on the card may be one.
enum class SmsDirection { FromNetwork, OnCard };

/// Which part of a long message this is. 3GPP TS 23.040 9.2.3.24.1, 9.2.3.24.8.
struct Concatenation {
    int reference = 0; ///< 0..255, or 0..65535 when `is16Bit`
    int total = 0;     ///< 1..255
    int sequence = 0;  ///< 1..total
    bool is16Bit = false;
    bool operator==(const Concatenation &) const = default;
};

/// "Messages wait elsewhere", as the coding scheme says it. 3GPP TS 23.038 4, groups 1100 to 1110.
struct MessageWaiting {
    enum Kind { VoiceMail, Fax, Email, Other };
    Kind kind = VoiceMail;
    bool isActive = false; ///< false: nothing waits any more
    bool isKept = false;   ///< the notice itself may be stored; otherwise it need only be shown
    bool operator==(const MessageWaiting &) const = default;
};

/// One message as its PDU tells it. 3GPP TS 23.040 9.2.2.
struct DecodedSms {
    enum Kind { Deliver, Submit, StatusReport };
    Kind kind = Deliver;
    QString serviceCentre; ///< digits, never with "+"; empty: none named
    QString address;       ///< sender or recipient: digits with "+" where international, or the sender's text
    bool isAlphanumeric = false;
    int pid = 0;
    int dcs = 0;
    int messageClass = -1; ///< 0..3, -1 none
    Alphabet alphabet = Alphabet::Gsm7;
    /// Service centre time stamp, 14 digits: year first, in a status report month, day, year.
    QString scts;
    std::optional<QDateTime> time; ///< the same with its offset from UTC; nullopt when it is no time
    int reference = 0;             ///< TP-MR of a SUBMIT or STATUS-REPORT
    QString discharge;             ///< of a status report, digits in the order of `scts`
    std::optional<QDateTime> dischargeTime;
    int status = 0;             ///< TP-ST of a status report
    bool hasMmsBit = false;     ///< TP-MMS: set when the service centre has nothing more to send
    int userDataLength = 0;     ///< TP-UDL as it stands
    QString text;               ///< code units as they came: a pair may be torn between two parts
    QByteArray data;            ///< what is no text: 8-bit data, or compressed text as it came
    bool hasCompressed = false; ///< the text is compressed: `text` is empty, `data` holds it
    bool asksReport = false;    ///< TP-SRI or TP-SRR
    int singleShift = 0;        ///< national language identifiers of the header, 0 none
    int lockingShift = 0;
    bool hasHeader = false; ///< TP-UDHI
    std::optional<Concatenation> concatenation;
    std::optional<MessageWaiting> waiting;
    int tpduLength = 0; ///< octets behind the service centre part, as AT+CMGW and AT+CMGS count them

    bool operator==(const DecodedSms &) const = default;
};

using SmsResult = std::variant<DecodedSms, PduError>;

/// A DELIVER, SUBMIT or STATUS-REPORT in hex, service centre part first. Malformed in any way: the error.
SmsResult decodeSms(QByteArrayView hex, SmsDirection direction);

/// A STATUS-REPORT, whatever its type bits say. 3GPP TS 23.040 9.2.2.3.
SmsResult decodeStatusReport(QByteArrayView hex);

/// One page of a cell broadcast message. 3GPP TS 23.041 9.4.1.2.
struct BroadcastPage {
    int scope = 0;   ///< geographical scope, 0..3: the cell at once, the network, the area, the cell
    int code = 0;    ///< message code, 0..1023
    int update = 0;  ///< update number, 0..15
    int channel = 0; ///< message identifier, 0..65535
    int dcs = 0;
    int page = 1;          ///< 1..15
    int pages = 1;         ///< 1..15
    int messageClass = -1; ///< 0..3, -1 none
    Alphabet alphabet = Alphabet::Gsm7;
    QString language; ///< two letters of ISO 639, empty when not named
    QString text;     ///< without the padding behind it
    QByteArray data;  ///< what is no text
    bool operator==(const BroadcastPage &) const = default;
};

/// A page as the card reports it in PDU mode, read by its coding scheme.
std::variant<BroadcastPage, PduError> decodeBroadcast(QByteArrayView hex);

} // namespace corva
