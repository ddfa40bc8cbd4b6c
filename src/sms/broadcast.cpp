// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/codingscheme.h"
#include "sms/gsmtext.h"
#include "sms/userdata.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr QChar padding = u'\r';
/// Two letters and a carriage return ahead of 7-bit text; two packed letters ahead of UCS2.
constexpr qsizetype languageSeptets = 3;
constexpr qsizetype languageOctets = 2;

QString withoutPadding(QString text)
{
    while (text.endsWith(padding) || text.endsWith(QChar::Null))
        text.chop(1);
    return text;
}

QString gsmText(OctetView packed, int fillBits = 0)
{
    Septets septets;
    unpackSeptets(packed, fillBits, (qsizetype(packed.size()) * 8 - fillBits) / 7, septets);
    return textOfSeptets(septets, GsmCoding::standard());
}

void takeSerialNumber(OctetReader &reader, BroadcastPage &page)
{
    const int high = reader.octet("serial number"_L1);
    const int serial = high << 8 | reader.octet("serial number"_L1);
    page.scope = serial >> 14;
    page.code = (serial >> 4) & 0x3ff;
    page.update = serial & 0x0f;
}

void takePages(OctetReader &reader, BroadcastPage &page)
{
    const quint8 parameter = reader.octet("page parameter"_L1);
    // A zero on either side stands for a single page. 3GPP TS 23.041 9.4.1.2.4.
    if ((parameter >> 4) == 0 || (parameter & 0x0f) == 0)
        return;
    page.page = parameter >> 4;
    page.pages = parameter & 0x0f;
}

void takeText(OctetView content, int fillBits, const BroadcastScheme &scheme, BroadcastPage &page)
{
    page.text = gsmText(content, fillBits);
    if (scheme.startsWithLanguage) {
        page.language = page.text.left(languageSeptets - 1);
        page.text.remove(0, languageSeptets);
    }
}

void takeUcs2(OctetView content, const BroadcastScheme &scheme, BroadcastPage &page)
{
    if (scheme.startsWithLanguage) {
        const OctetView letters = content.first(std::min<std::size_t>(content.size(), languageOctets));
        page.language = gsmText(letters);
        content = content.subspan(letters.size());
    }
    page.text = textOfUcs2(content);
}

void takeContent(OctetReader &reader, const BroadcastScheme &scheme, BroadcastPage &page)
{
    const qsizetype offset = reader.offset();
    OctetView content = reader.octets("content"_L1, reader.left());
    int fillBits = 0;
    if (scheme.hasHeader) {
        const UserDataHeader header = readHeader(reader, content, offset);
        content = content.subspan(std::size_t(header.size));
        fillBits = fillBitsBehind(header.size);
    }
    if (scheme.alphabet == Alphabet::EightBit || scheme.isCompressed)
        page.data = QByteArray(reinterpret_cast<const char *>(content.data()), qsizetype(content.size()));
    else if (scheme.alphabet == Alphabet::Ucs2)
        takeUcs2(content, scheme, page);
    else
        takeText(content, fillBits, scheme, page);
    page.text = withoutPadding(std::move(page.text));
}

} // namespace

std::variant<BroadcastPage, PduError> decodeBroadcast(QByteArrayView hex)
{
    Octets octets;
    if (auto error = readHex(hex, octets))
        return *error;
    OctetReader reader(octets);
    BroadcastPage page;
    takeSerialNumber(reader, page);
    const int high = reader.octet("message identifier"_L1);
    page.channel = high << 8 | reader.octet("message identifier"_L1);
    page.dcs = reader.octet("coding scheme"_L1);
    const BroadcastScheme scheme = broadcastScheme(quint8(page.dcs));
    page.alphabet = scheme.alphabet;
    page.messageClass = scheme.messageClass;
    page.language = scheme.language;
    takePages(reader, page);
    if (!reader.hasFailed())
        takeContent(reader, scheme, page);
    if (reader.hasFailed())
        return *reader.error();
    return page;
}

} // namespace corva
