// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/submit.h"

#include <algorithm>
#include <cstring>

namespace corva
{

namespace
{

constexpr quint8 international = 0x91;
constexpr quint8 unknownType = 0x81;
/// SUBMIT with a relative validity period.
constexpr quint8 submitRelative = 0x11;
constexpr quint8 reportBit = 0x20;
constexpr quint8 headerBit = 0x40;
constexpr quint8 gsm7 = 0x00;
constexpr quint8 ucs2 = 0x08;
constexpr int partHeaderSize = 6;
constexpr int mostUserData = int(sizeof(SM_PARAM::TP_UD)) - 1;

/// An octet as two characters.
void put(QByteArray &pdu, int octet)
{
    pdu += hexDigit(octet >> 4);
    pdu += hexDigit(octet);
}

void put(QByteArray &pdu, OctetView octets)
{
    for (const quint8 octet : octets)
        put(pdu, octet);
}

template <std::size_t size> QByteArrayView textOf(const char (&field)[size])
{
    return {field, qsizetype(qstrnlen(field, size))};
}

template <std::size_t size> void setText(char (&field)[size], const QByteArray &text)
{
    qstrncpy(field, text.constData(), size);
}

quint8 typeOf(QByteArrayView number)
{
    return number.startsWith('+') || number.startsWith("00") ? international : unknownType;
}

void putServiceCentre(QByteArray &pdu, QByteArrayView number)
{
    put(pdu, int((number.size() + 1) / 2 + 1));
    put(pdu, typeOf(number));
    pdu += swappedPairs(number);
}

void putDestination(QByteArray &pdu, SM_PARAM &record)
{
    QByteArray number = textOf(record.TPA).toByteArray();
    const quint8 type = typeOf(number);
    if (number.startsWith('+'))
        setText(record.TPA, number.remove(0, 1));
    put(pdu, int(number.size()));
    put(pdu, type);
    pdu += swappedPairs(number);
}

/// UCS2 has the header with an 8-bit reference only.
int ucs2HeaderSize(const SM_PARAM &record)
{
    return record.concatenated || record.ucs2Header ? partHeaderSize : 0;
}

bool hasHeader(const SM_PARAM &record, const SubmitSettings &settings)
{
    return settings.isUcs2 ? ucs2HeaderSize(record) > 0 : record.concatenated;
}

quint8 firstOctet(const SM_PARAM &record, const SubmitSettings &settings)
{
    const bool isLong = hasHeader(record, settings);
    quint8 octet = submitRelative;
    if (isLong)
        octet |= headerBit;
    const bool asksReport =
        record.report == ReportWish::AsConfigured ? settings.asksReport : record.report == ReportWish::Yes;
    if (asksReport && (!isLong || record.reportPart))
        octet |= reportBit;
    return octet;
}

/// Relative TP-VP: 12 hours, a day, a week, the maximum. 3GPP TS 23.040 9.2.3.12.1.
quint8 validity(int index)
{
    constexpr std::array<quint8, 3> periods = {143, 167, 173};
    return index >= 0 && index < int(periods.size()) ? periods[std::size_t(index)] : quint8(255);
}

/// The used part of `TP_UD`.
OctetView userData(const SM_PARAM &record)
{
    return {record.TP_UD, std::size_t(std::clamp(record.tp_udlength, 0, mostUserData))};
}

/// The septets behind the last whole octet go out in one of their own, as if the terminating zero were packed
/// too.
void putSeptets(QByteArray &pdu, const SM_PARAM &record)
{
    const OctetView data = userData(record);
    Octets packed;
    packSeptets(data, 0, packed);
    put(pdu, int(data.size()));
    put(pdu, packed);
}

/// A header, the fill bits behind it and the text. Whatever the header, the text begins at the next septet
/// boundary; one byte of `TP_UD` stands for the fill bits where there are any.
void putSeptetsBehindHeader(QByteArray &pdu, const SM_PARAM &record)
{
    const OctetView data = userData(record);
    const std::size_t headerSize = std::min<std::size_t>(record.TP_UD[0] + std::size_t(1), data.size());
    const int fillBits = fillBitsBehind(qsizetype(headerSize));
    const std::size_t textAt = std::min(headerSize + (fillBits > 0 ? 1 : 0), data.size());
    const OctetView text = data.subspan(textAt);
    Octets packed;
    packSeptets(text, fillBits, packed);
    put(pdu, int((headerSize * 8 + std::size_t(fillBits)) / 7 + text.size()));
    put(pdu, data.first(headerSize));
    put(pdu, packed);
}

void putUcs2(QByteArray &pdu, QStringView text, const SM_PARAM &record)
{
    const OctetView header{record.TP_UD, std::size_t(ucs2HeaderSize(record))};
    const QByteArray hex = hexOfUcs2(text, ucs2Units(record));
    put(pdu, int(hex.size() / 2) + int(header.size()));
    put(pdu, header);
    pdu += hex;
}

} // namespace

qsizetype ucs2Units(const SM_PARAM &record)
{
    const int header = ucs2HeaderSize(record);
    return std::clamp(record.tp_udlength - header, 0, (mostUserData - header) / 2);
}

QByteArray swappedPairs(QByteArrayView digits)
{
    QByteArray swapped;
    swapped.reserve(digits.size() + 1);
    for (qsizetype i = 0; i < digits.size(); i += 2) {
        swapped += i + 1 < digits.size() ? digits[i + 1] : 'F';
        swapped += digits[i];
    }
    return swapped;
}

QByteArray hexOfUcs2(QStringView text, qsizetype count)
{
    QByteArray hex;
    for (const QChar unit : text.first(std::clamp<qsizetype>(count, 0, text.size())))
        hex += QByteArray::number(unit.unicode(), 16).rightJustified(4, '0');
    return hex;
}

QByteArray encodeSubmit(SM_PARAM &record, QStringView text, const SubmitSettings &settings)
{
    QByteArray pdu;
    putServiceCentre(pdu, textOf(record.SCA));
    put(pdu, firstOctet(record, settings));
    put(pdu, 0); // TP-MR is the card's to fill
    putDestination(pdu, record);
    put(pdu, record.TP_PID);
    put(pdu, settings.isUcs2 ? ucs2 : gsm7);
    put(pdu, validity(settings.validPeriod));
    if (settings.isUcs2)
        putUcs2(pdu, text, record);
    else if (hasHeader(record, settings))
        putSeptetsBehindHeader(pdu, record);
    else
        putSeptets(pdu, record);
    return pdu;
}

} // namespace corva
