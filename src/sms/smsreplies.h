// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

namespace corva
{

/// A message as the card lists it. 3GPP TS 27.005 3.4.2.
struct ListedSms {
    int index;      ///< up to 65535; -1 where the reply names none: in "+CMGR", and in an unreadable line
    int status;     ///< 0 received unread, 1 received read, 2 stored unsent, 3 stored sent; else as it came,
                    ///< -1 in a line that cannot be read
    int length;     ///< octets without the service centre, -1 when the card's figure is none
    QByteArray pdu; ///< hexadecimal text as it came, damaged perhaps; empty when no PDU line followed
    bool operator==(const ListedSms &) const = default;
};

/// Every "+CMGL: <index>,<stat>,[<alpha>],<length>" with the line behind it. Reports that came between the
/// lines, those with a PDU line of their own too, are left out: the report table has them. A line without
/// a usable index or status is a message all the same, one without a place.
std::vector<ListedSms> parseSmsList(const QByteArray &reply);

/// "+CMGR: <stat>,[<alpha>],<length>" with its PDU; nothing without such a line. 3GPP TS 27.005 3.4.3.
std::optional<ListedSms> parseReadSms(const QByteArray &reply);

/// Reports that bring a PDU along: `mark` is "+CMT:", "+CDS:", "+CBM:" or "+JCLAS:".
struct ReportedPdu {
    int length;     ///< octets that the card announces, without the service centre; -1 when it announces none
    QByteArray pdu; ///< as in `ListedSms`
    bool operator==(const ReportedPdu &) const = default;
};
/// All of them in the text, in order, those too whose PDU did not come: a message that was delivered directly
/// is nowhere else.
std::vector<ReportedPdu> parseReportedPdus(const QByteArray &text, const QByteArray &mark);

/// "+CMTI: <mem>,<index>" and "+CDSI: <mem>,<index>". 3GPP TS 27.005 3.4.1.
struct StoredReport {
    QString store; ///< "SM", "ME", "MT", "SR", ...
    int index;     ///< up to 65535; -1 when it cannot be read
    bool operator==(const StoredReport &) const = default;
};
std::vector<StoredReport> parseStoredReports(const QByteArray &text, const QByteArray &mark);

/// How full a store is. 3GPP TS 27.005 3.2.2.
struct StoreFill {
    int used;
    int total;
    int spare() const { return total > used ? total - used : 0; }
    bool operator==(const StoreFill &) const = default;
};
/// The figures of "+CPMS:" that belong to the store `name` ("SM"); nothing when the reply names others.
std::optional<StoreFill> parseNamedFill(const QByteArray &reply, const QByteArray &name);
/// The same; a reply without names, the answer to selecting, tells of the selected store first.
std::optional<StoreFill> parseFill(const QByteArray &reply, const QByteArray &name);

/// "+CSCA: "<number>",<type>", also where the number comes as UCS2 in hexadecimal digits: the number, with
/// its "+". Empty when there is none. 3GPP TS 27.005 3.3.1.
QString parseServiceCentre(const QByteArray &reply);

/// The message reference of "+CMGS: <mr>", 0..255; -1 when there is none. 3GPP TS 27.005 3.5.1.
int parseMessageReference(const QByteArray &reply);

/// Where "+CMGW: <index>" put the message; -1 when it does not say. 3GPP TS 27.005 3.5.3.
int parseWrittenIndex(const QByteArray &reply);

/// The values nearest to `wanted` ("3,1,0,2,0") that the reply of "AT+CNMI=?" offers, or the wanted ones
/// where it says nothing. 3GPP TS 27.005 3.4.1.
QByteArray nearestNoticeModes(const QByteArray &wanted, const QByteArray &testReply);

} // namespace corva
