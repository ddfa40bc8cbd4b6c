// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/userdata.h"

#include "sms/gsmtext.h"

#include <QtEndian>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr auto lengthField = "TP-UDL"_L1;
constexpr auto dataField = "TP-UD"_L1;
constexpr auto headerField = "TP-UDHL"_L1;

/// Information element identifiers. 3GPP TS 23.040 9.2.3.24.
enum Element : quint8 {
    Concatenated8Bit = 0x00,
    Concatenated16Bit = 0x08,
    NationalSingleShift = 0x24,
    NationalLockingShift = 0x25,
};

std::optional<Concatenation> partOf(OctetView element, bool is16Bit)
{
    const std::size_t referenceSize = is16Bit ? 2 : 1;
    if (element.size() != referenceSize + 2)
        return std::nullopt;
    Concatenation part;
    part.is16Bit = is16Bit;
    part.reference = is16Bit ? element[0] << 8 | element[1] : element[0];
    part.total = element[referenceSize];
    part.sequence = element[referenceSize + 1];
    if (part.sequence < 1 || part.sequence > part.total)
        return std::nullopt;
    return part;
}

/// Takes what the element says; false for a part that cannot be.
bool takeElement(quint8 identifier, OctetView element, UserDataHeader &header)
{
    const bool isPart = identifier == Concatenated8Bit || identifier == Concatenated16Bit;
    if (isPart)
        header.concatenation = partOf(element, identifier == Concatenated16Bit);
    else if (identifier == NationalSingleShift && element.size() == 1)
        header.singleShift = element[0];
    else if (identifier == NationalLockingShift && element.size() == 1)
        header.lockingShift = element[0];
    return !isPart || header.concatenation;
}

void takeText(OctetView data, qsizetype length, const UserDataHeader &header, DecodedSms &sms)
{
    const OctetView packed = data.subspan(std::size_t(header.size));
    const int fillBits = fillBitsBehind(header.size);
    const qsizetype headerSeptets = (header.size * 8 + fillBits) / 7;
    Septets septets;
    unpackSeptets(packed, fillBits, length - headerSeptets, septets);
    sms.text = textOfSeptets(septets, GsmCoding::forLanguages(header.lockingShift, header.singleShift));
}

bool isPlain(const CodingScheme &scheme, Alphabet alphabet)
{
    return scheme.alphabet == alphabet && !scheme.isCompressed;
}

void takeData(OctetView data, const UserDataHeader &header, DecodedSms &sms)
{
    const OctetView body = data.subspan(std::size_t(header.size));
    sms.data = QByteArray(reinterpret_cast<const char *>(body.data()), qsizetype(body.size()));
}

} // namespace

QString textOfUcs2(OctetView octets)
{
    const qsizetype size = qsizetype(octets.size() / 2);
    QString text(size, Qt::Uninitialized);
    qFromBigEndian<char16_t>(octets.data(), size, text.data());
    return text;
}

UserDataHeader readHeader(OctetReader &reader, OctetView data, qsizetype offset)
{
    UserDataHeader header;
    if (data.empty() || data[0] >= data.size()) {
        reader.fail(headerField, offset, PduFault::HeaderPastData);
        return header;
    }
    header.size = data[0] + 1;
    OctetReader elements(data.subspan(1, data[0]));
    while (elements.left() > 0 && !reader.hasFailed()) {
        const qsizetype start = offset + 1 + elements.offset();
        const quint8 identifier = elements.octet(headerField);
        const OctetView element = elements.octets(headerField, elements.octet(headerField));
        if (elements.hasFailed())
            reader.fail(headerField, start, PduFault::ElementPastHeader);
        else if (!takeElement(identifier, element, header))
            reader.fail(headerField, start, PduFault::NoSuchPart);
    }
    return header;
}

void readUserData(OctetReader &reader, const CodingScheme &scheme, DecodedSms &sms)
{
    const qsizetype lengthAt = reader.offset();
    const qsizetype length = reader.octet(lengthField);
    const bool isSeptets = isPlain(scheme, Alphabet::Gsm7);
    const qsizetype size = isSeptets ? packedSize(length) : length;
    if (size > reader.left())
        reader.fail(lengthField, lengthAt, PduFault::LengthPastEnd);
    const qsizetype dataAt = reader.offset();
    const OctetView data = reader.octets(dataField, size);
    const UserDataHeader header = sms.hasHeader ? readHeader(reader, data, dataAt) : UserDataHeader();
    if (reader.hasFailed())
        return;
    sms.userDataLength = int(length);
    sms.hasCompressed = scheme.isCompressed;
    sms.concatenation = header.concatenation;
    sms.singleShift = header.singleShift;
    sms.lockingShift = header.lockingShift;
    if (isSeptets)
        takeText(data, length, header, sms);
    else if (!isPlain(scheme, Alphabet::Ucs2))
        takeData(data, header, sms);
    else if ((size - header.size) % 2 != 0)
        reader.fail(dataField, dataAt + size - 1, PduFault::HalfCharacter);
    else
        sms.text = textOfUcs2(data.subspan(std::size_t(header.size)));
}

} // namespace corva
