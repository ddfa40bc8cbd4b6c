// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/smspdu.h"

#include "sms/address.h"
#include "sms/codingscheme.h"
#include "sms/timestamp.h"
#include "sms/userdata.h"

#include <array>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr auto typeField = "TP-MTI"_L1;
constexpr quint8 mmsBit = 0x04;
constexpr quint8 reportBit = 0x20;
constexpr quint8 headerBit = 0x40;

/// TP-MTI. 3GPP TS 23.040 9.2.3.1.
enum TypeBits { DeliverBits, SubmitBits, ReportBits, ReservedBits };

void takeScheme(quint8 dcs, const CodingScheme &scheme, DecodedSms &sms)
{
    sms.dcs = dcs;
    sms.alphabet = scheme.alphabet;
    sms.messageClass = scheme.messageClass;
    sms.waiting = scheme.waiting;
}

void takeAddress(Address address, DecodedSms &sms)
{
    sms.address = std::move(address.text);
    sms.isAlphanumeric = address.isAlphanumeric;
}

void takeTime(TimeStamp stamp, DecodedSms &sms)
{
    sms.scts = std::move(stamp.digits);
    sms.time = std::move(stamp.time);
}

/// TP-PID, TP-DCS, what stands between them and the text, and the text.
template <typename Between>
void readContent(OctetReader &reader, quint8 first, DecodedSms &sms, Between between)
{
    sms.pid = reader.octet("TP-PID"_L1);
    const quint8 dcs = reader.octet("TP-DCS"_L1);
    const CodingScheme scheme = codingScheme(dcs);
    takeScheme(dcs, scheme, sms);
    between();
    sms.hasHeader = first & headerBit;
    readUserData(reader, scheme, sms);
}

/// 3GPP TS 23.040 9.2.2.1.
void readDeliver(OctetReader &reader, quint8 first, DecodedSms &sms)
{
    sms.kind = DecodedSms::Deliver;
    sms.hasMmsBit = first & mmsBit;
    takeAddress(readAddress(reader, "TP-OA"_L1, PlusRule::ExactType), sms);
    readContent(reader, first, sms,
                [&] { takeTime(readTimeStamp(reader, "TP-SCTS"_L1, StampOrder::YearFirst), sms); });
}

/// Octets of the validity period: none, enhanced, relative or absolute. 3GPP TS 23.040 9.2.3.3.
qsizetype validitySize(quint8 first)
{
    constexpr std::array<qsizetype, 4> sizes = {0, 7, 1, 7};
    return sizes[(first >> 3) & 0x03];
}

/// 3GPP TS 23.040 9.2.2.2.
void readSubmit(OctetReader &reader, quint8 first, DecodedSms &sms)
{
    sms.kind = DecodedSms::Submit;
    sms.reference = reader.octet("TP-MR"_L1);
    takeAddress(readAddress(reader, "TP-DA"_L1, PlusRule::ExactType), sms);
    readContent(reader, first, sms, [&] { reader.octets("TP-VP"_L1, validitySize(first)); });
}

/// 3GPP TS 23.040 9.2.2.3.
void readReport(OctetReader &reader, quint8 first, DecodedSms &sms)
{
    sms.kind = DecodedSms::StatusReport;
    sms.hasMmsBit = first & mmsBit;
    sms.reference = reader.octet("TP-MR"_L1);
    takeAddress(readAddress(reader, "TP-RA"_L1, PlusRule::TypeOfNumber), sms);
    takeTime(readTimeStamp(reader, "TP-SCTS"_L1, StampOrder::MonthFirst), sms);
    TimeStamp discharge = readTimeStamp(reader, "TP-DT"_L1, StampOrder::MonthFirst);
    sms.discharge = std::move(discharge.digits);
    sms.dischargeTime = std::move(discharge.time);
    sms.status = reader.octet("TP-ST"_L1);
}

void readByType(OctetReader &reader, quint8 first, SmsDirection direction, DecodedSms &sms)
{
    const auto type = TypeBits(first & 0x03);
    // The standard has a reserved type processed as a DELIVER.
    if (type == DeliverBits || type == ReservedBits)
        return readDeliver(reader, first, sms);
    if (type == ReportBits)
        return readReport(reader, first, sms);
    if (direction == SmsDirection::FromNetwork)
        return reader.fail(typeField, reader.offset() - 1, PduFault::WrongType);
    readSubmit(reader, first, sms);
}

/// The part that every PDU begins with, then what `body` reads.
template <typename Body> SmsResult decode(QByteArrayView hex, Body body)
{
    Octets octets;
    if (auto error = readHex(hex, octets))
        return *error;
    OctetReader reader(octets);
    SmsResult result;
    auto &sms = std::get<DecodedSms>(result);
    sms.serviceCentre = readServiceCentre(reader);
    sms.tpduLength = int(reader.left());
    const quint8 first = reader.octet(typeField);
    sms.asksReport = first & reportBit;
    body(reader, first, sms);
    if (reader.hasFailed())
        return *reader.error();
    return result;
}

} // namespace

SmsResult decodeSms(QByteArrayView hex, SmsDirection direction)
{
    return decode(hex, [direction](OctetReader &reader, quint8 first, DecodedSms &sms) {
        readByType(reader, first, direction, sms);
    });
}

SmsResult decodeStatusReport(QByteArrayView hex)
{
    return decode(hex, readReport);
}

} // namespace corva
