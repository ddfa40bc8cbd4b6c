// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/smsdecoder.h"

#include "shell/commoncfg.h"
#include "shell/logging.h"
#include "sms/gsmtext.h"
#include "sms/pdubuffers.h"
#include "sms/splittext.h"
#include "sms/submit.h"
#include "sms/timestamp.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

constexpr int unreadable = -1;
constexpr qsizetype longestServiceCentre = 32;
/// Septets of the longest message.
constexpr qsizetype mostBroadcastSeptets = 160;
constexpr qsizetype broadcastHeaderSize = 6;
constexpr std::size_t broadcastDcsAt = 4;
constexpr quint8 replacement = '?';

corva::TextCoding configuredCoding()
{
    return corva::TextCoding::fromSpecialCode(cmcfg.getValue(u"sms"_s, u"specialcode"_s));
}

int copyOut(const QString &text, QChar *dst, int room)
{
    const auto count = std::clamp<qsizetype>(text.size(), 0, std::max(room, 0));
    std::copy_n(text.constData(), count, dst);
    return int(count);
}

int textOut(std::span<const quint8> septets, const corva::GsmCoding &coding, QChar *dst, int room)
{
    return copyOut(corva::textOfSeptets(septets, coding), dst, room);
}

QString textOf(const wchar_t *text, int n)
{
    const auto view = corva::bufferView(text, n);
    return QString::fromWCharArray(view.data(), qsizetype(view.size()));
}

void fillReport(const corva::DecodedSms &sms, SM_PARAM_DECODE &record)
{
    record.recipient = sms.address;
    record.dischargeTime = sms.discharge;
    record.TP_MMS = sms.hasMmsBit;
    record.TP_MR = quint8(sms.reference);
    record.TP_ST = quint8(sms.status);
}

/// What the PDU tells; place and status in the card's store stay.
void fill(const corva::DecodedSms &sms, SM_PARAM_DECODE &record)
{
    SM_PARAM_DECODE filled;
    filled.index = record.index;
    filled.status = record.status;
    filled.SCA = sms.serviceCentre.left(longestServiceCentre);
    filled.TPA = sms.address;
    filled.TP_PID = quint8(sms.pid);
    filled.TP_DCS = quint8(sms.dcs);
    filled.TP_SCTS = sms.scts;
    filled.TP_UDL = quint8(sms.userDataLength);
    filled.contentStr = sms.text;
    if (sms.alphabet == corva::Alphabet::EightBit && !sms.hasCompressed)
        filled.contentStr = QString::fromLatin1(sms.data);
    if (const auto part = sms.concatenation) {
        filled.concatReference = part->reference;
        filled.concatTotal = part->total;
        filled.concatSequence = part->sequence;
    }
    if (sms.kind == corva::DecodedSms::StatusReport)
        fillReport(sms, filled);
    record = filled;
}

bool take(const corva::SmsResult &result, SM_PARAM_DECODE &record)
{
    if (const auto *error = std::get_if<corva::PduError>(&result)) {
        qCWarning(lcSms).noquote() << corva::logTime() + error->text();
        return false;
    }
    fill(std::get<corva::DecodedSms>(result), record);
    return true;
}

int decode(const char *pdu, SM_PARAM_DECODE *record)
{
    if (!pdu || !record)
        return unreadable;
    const corva::SmsResult result = corva::decodeSms(pdu, corva::SmsDirection::OnCard);
    if (!take(result, *record))
        return unreadable;
    const bool hasHeader = std::get<corva::DecodedSms>(result).hasHeader;
    qCDebug(lcSms).noquote() << corva::logTime() +
                                    (hasHeader ? u"this is a cancatinate sms"_s : u"this is a normal sms"_s);
    return int(record->contentStr.size());
}

} // namespace

int SmsDecoder::gsmString2Bytes(const char *src, char *dst, int n)
{
    return corva::hexToBuffer(src, dst, n);
}

int SmsDecoder::gsmBytes2String(const unsigned char *src, char *dst, int n)
{
    return corva::bufferToHex(src, dst, n);
}

int SmsDecoder::gsmSerializeNumbers(const char *src, char *dst, int n)
{
    const auto digits = corva::bufferView(src, n);
    QByteArray number = corva::swappedPairs({digits.data(), qsizetype(digits.size())});
    if (number.endsWith('F') || number.endsWith('f'))
        number.chop(1);
    return corva::copyOut(number, dst);
}

int SmsDecoder::gsmDecode7bit(const unsigned char *src, char *dst, int n)
{
    corva::Septets septets;
    corva::unpackSeptets(corva::bufferView(src, n), 0, qsizetype(std::max(n, 0)) * 8 / 7, septets);
    return corva::copyOut({septets.constData(), septets.size()}, dst);
}

int SmsDecoder::gsmDecode8bit(const unsigned char *src, char *dst, int n)
{
    const auto octets = corva::bufferView(src, n);
    return corva::copyOut({octets.data(), qsizetype(octets.size())}, dst);
}

int SmsDecoder::gsmDecodeUcs2(const unsigned char *src, char *dst, int n)
{
    const auto octets = corva::bufferView(src, n & ~1);
    return corva::copyOut(
        QByteArray(reinterpret_cast<const char *>(octets.data()), qsizetype(octets.size())).toHex(), dst);
}

int SmsDecoder::SMS7toUcs2(QChar *dst, int room, char *src, int n)
{
    const auto septets = corva::bufferView(reinterpret_cast<const quint8 *>(src), n);
    return textOut(septets, corva::GsmCoding::standard(), dst, room);
}

int SmsDecoder::SMS7toUcs2LockingShift(QChar *dst, int room, const unsigned char *src, int n)
{
    const auto coding = corva::GsmCoding::forLanguages(getNationLangExtCode(), corva::DefaultLanguage);
    return textOut(corva::bufferView(src, n), coding, dst, room);
}

int SmsDecoder::oneCharExtGsm7ToUcs2(int code)
{
    const bool isSeptet = code >= 0 && code < 0x80;
    return isSeptet ? corva::GsmCoding::standard().escaped(quint8(code)).unicode() : u' ';
}

int SmsDecoder::oneCharUcs2ToDftGsm7(int character)
{
    const bool isUnit = character >= 0 && character <= 0xffff;
    return isUnit ? corva::septetIn(corva::gsmLockingTable(corva::DefaultLanguage), QChar(character)) : -1;
}

int SmsDecoder::Ucs2toSMS7(char *dst, int room, wchar_t *src, int n)
{
    const QString text = textOf(src, n);
    const auto coding = corva::gsmCodingOf(corva::splitText(text, configuredCoding()));
    corva::Septets septets;
    for (const QChar character : text) {
        corva::Septets codes;
        if (!coding.append(character, codes))
            codes.append(replacement);
        if (septets.size() + codes.size() > room)
            break;
        septets.append(codes.constData(), codes.size());
    }
    std::copy(septets.begin(), septets.end(), dst);
    return int(septets.size());
}

bool SmsDecoder::needNationalLanguageSupport(wchar_t *text, int n)
{
    return corva::splitText(textOf(text, n), configuredCoding()).isNational;
}

int SmsDecoder::getNationLangExtCode()
{
    return configuredCoding().language;
}

int SmsDecoder::gsmDecodePdu(const char *pdu, SM_PARAM_DECODE *record)
{
    return decode(pdu, record);
}

int SmsDecoder::gsmDecodePdu4Move(const char *pdu, SM_PARAM_DECODE *record)
{
    return decode(pdu, record);
}

int SmsDecoder::STATUS_REPORT_PDU(const char *pdu, SM_PARAM_DECODE *record)
{
    return pdu && record && take(corva::decodeStatusReport(pdu), *record) ? 1 : unreadable;
}

int SmsDecoder::Decode_Class0_PDU(const char *pdu, SM_PARAM_DECODE *record)
{
    return decode(pdu, record);
}

int SmsDecoder::Decode_BroadCast_PDU(const char *page, SM_PARAM *record)
{
    corva::Octets octets;
    if (!page || !record || corva::readHex(page, octets) || octets.size() < broadcastHeaderSize)
        return unreadable;
    const auto packed = corva::OctetView(octets).subspan(broadcastHeaderSize);
    corva::Septets septets;
    corva::unpackSeptets(packed, 0, mostBroadcastSeptets, septets);
    *record = {};
    record->TP_DCS = octets[broadcastDcsAt];
    record->tp_udlength = int(septets.size());
    std::copy(septets.begin(), septets.end(), record->TP_UD);
    return record->tp_udlength;
}

bool SmsDecoder::checkLengthofPhoneNumber(const QString &number)
{
    return number.size() < qsizetype(sizeof(SM_PARAM::TPA));
}

QDateTime SmsDecoder::fromSctsToDatetime(const QString &scts)
{
    return corva::localTimeOf(scts, corva::StampOrder::YearFirst);
}

QString SmsDecoder::GetDataTime(QString stamp, bool isMonthFirst, bool withSeconds)
{
    const auto order = isMonthFirst ? corva::StampOrder::MonthFirst : corva::StampOrder::YearFirst;
    return corva::localTimeOf(stamp, order)
        .toString(withSeconds ? u"yyyy-MM-dd hh:mm:ss"_s : u"yyyy-MM-dd hh:mm"_s);
}
