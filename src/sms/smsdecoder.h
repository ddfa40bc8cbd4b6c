// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/smparam.h"

#include <QDateTime>
#include <QString>

/// The decoder of the message page: text and buffers in the card's own forms. The work is done by
/// `corva::decodeSms` and its neighbours. A buffer that receives text has room for it and a terminating NUL.
class SmsDecoder
{
public:
    /// `n` hex characters into octets, either case; half an octet at the end is left out. Octets written.
    static int gsmString2Bytes(const char *src, char *dst, int n);
    /// `n` octets into upper-case hex. Characters written.
    static int gsmBytes2String(const unsigned char *src, char *dst, int n);
    /// Swaps the semi-octets of `n` characters; one "F" at the end is dropped. Characters written.
    static int gsmSerializeNumbers(const char *src, char *dst, int n);
    /// Unpacks `n` octets into septets, one a byte. Septets written.
    static int gsmDecode7bit(const unsigned char *src, char *dst, int n);
    /// Copies `n` octets.
    static int gsmDecode8bit(const unsigned char *src, char *dst, int n);
    /// `n` octets into hex text, four lower-case digits a code unit. Characters written.
    static int gsmDecodeUcs2(const unsigned char *src, char *dst, int n);

    /// `n` septets of the default alphabet into at most `room` characters. Characters written.
    static int SMS7toUcs2(QChar *dst, int room, char *src, int n);
    /// The same with the locking table of the configured language (`getNationLangExtCode`).
    static int SMS7toUcs2LockingShift(QChar *dst, int room, const unsigned char *src, int n);
    /// What stands for `code` behind an escape; the default table's character where the extension has none,
    /// a space for what is no septet.
    static int oneCharExtGsm7ToUcs2(int code);
    /// The septet of the default table, or -1.
    static int oneCharUcs2ToDftGsm7(int character);
    /// `n` characters into at most `room` septets with the tables that the text needs; "?" where there is
    /// none. Septets written; an escape is never left alone at the end.
    static int Ucs2toSMS7(char *dst, int room, wchar_t *src, int n);
    /// Whether the text can go out in septets only with the tables of the configured language.
    static bool needNationalLanguageSupport(wchar_t *text, int n);
    /// Language identifier of the key "specialcode": 2 Spanish, 3 Portuguese, anything else 1.
    static int getNationLangExtCode();

    /// A DELIVER or SUBMIT, told apart by its type bits. Characters of the text, -1 for what cannot be read.
    static int gsmDecodePdu(const char *pdu, SM_PARAM_DECODE *record);
    /// The same, for a message that is read to be copied or moved.
    static int gsmDecodePdu4Move(const char *pdu, SM_PARAM_DECODE *record);
    /// 1, or -1 for what cannot be read.
    static int STATUS_REPORT_PDU(const char *pdu, SM_PARAM_DECODE *record);
    /// As `gsmDecodePdu`.
    static int Decode_Class0_PDU(const char *pdu, SM_PARAM_DECODE *record);
    /// Unpacks a broadcast page into `TP_UD`, at most 160 septets, as 7-bit text whatever its coding scheme
    /// says: `corva::decodeBroadcast` reads it properly. Septets, or -1 without a page, its header or a
    /// record.
    static int Decode_BroadCast_PDU(const char *page, SM_PARAM *record);

    /// Whether a number fits into the records of a message: 15 characters at most, a leading "+" among them.
    static bool checkLengthofPhoneNumber(const QString &number);

    /// The local time of a year-first stamp in 20yy, its zone not applied. Invalid when the digits are no
    /// time.
    static QDateTime fromSctsToDatetime(const QString &scts);
    /// A stamp for people: "2024-05-31 23:59", with seconds if asked; empty when it is no time.
    /// `isMonthFirst` for the stamps of status reports.
    static QString GetDataTime(QString stamp, bool isMonthFirst, bool withSeconds);

protected:
    ~SmsDecoder() = default;
};
