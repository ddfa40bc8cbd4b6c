// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/smspdu.h"

#include <atomic>

/// Whether a delivery report is asked for.
enum class ReportWish : unsigned char { AsConfigured, Yes, No };

/// One outgoing message for the encoder. Zero-filled before use.
struct SM_PARAM {
    char SCA[16] = {};        ///< service centre number, digits
    char TPA[16] = {};        ///< destination; the encoder takes a leading "+" away
    unsigned char TP_PID = 0; ///< protocol identifier
    unsigned char TP_DCS = 0; ///< not read by the encoder
    char TP_SCTS[16] = {};    ///< not read by the encoder
    /// One septet a byte, behind the user data header where there is one. A header that does not end on a
    /// septet boundary is followed by one byte that is not sent. Room for what TP-UDL can count and a
    /// terminating zero.
    unsigned char TP_UD[256] = {};
    unsigned char concatenated = 0; ///< 1: `TP_UD` begins with a user data header
    unsigned char ucs2Header = 0;   ///< 1: a UCS2 message with a header; set both
    unsigned char national = 0;     ///< 1: the header names a national table
    unsigned char reportPart = 0;   ///< 1: the part on which a report may be asked for
    int tp_udlength = 0;            ///< used bytes of `TP_UD`; UCS2: characters, and 6 for a header
    ReportWish report = ReportWish::AsConfigured; ///< of this message, whatever the settings say
};

/// One decoded message.
struct SM_PARAM_DECODE {
    QString SCA; ///< service centre, at most 32 digits
    QString TPA; ///< sender or recipient, "+" first where international
    unsigned char TP_PID = 0;
    unsigned char TP_DCS = 0;
    QString TP_SCTS; ///< time stamp digits: year first, in a status report month, day, year
    unsigned char TP_UDL = 0;
    QString contentStr;
    int concatReference = 0;
    int concatTotal = 0; ///< 0: not a part of a long message
    int concatSequence = 0;
    int index = 0;  ///< place in the card's store
    int status = 0; ///< 0 unread, 1 read, 2 unsent, 3 sent
    // Of a status report:
    unsigned char TP_MMS = 0; ///< 1 when the bit is set
    unsigned char TP_MR = 0;
    QString recipient;
    QString dischargeTime; ///< digits: month, day, year, hour, minute, second, zone
    unsigned char TP_ST = 0;
};

/// Zeroes the record.
void initSM_PARAM_DECODE(SM_PARAM_DECODE *record);

/// The message that is encoded next goes out as UCS2. Set by whoever sends, on the card's thread.
extern std::atomic<bool> gUnicodeFlag;
