// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/serialthread.h"

#include "shell/commoncfg.h"
#include "sms/pdubuffers.h"
#include "sms/submit.h"

using namespace Qt::StringLiterals;

namespace
{

corva::SubmitSettings configuredSettings()
{
    corva::SubmitSettings settings;
    settings.validPeriod = cmcfg.getNumber(u"sms"_s, u"validPeriod"_s);
    settings.asksReport = cmcfg.getNumber(u"sms"_s, u"deliveryReport"_s) == 1;
    settings.isUcs2 = gUnicodeFlag;
    return settings;
}

} // namespace

int SerialThread::gsmBytes2String(const unsigned char *src, char *dst, int n)
{
    return corva::bufferToHex(src, dst, n);
}

int SerialThread::gsmString2Bytes(const char *src, char *dst, int n)
{
    return corva::hexToBuffer(src, dst, n);
}

int SerialThread::gsmInvertNumbers(const char *src, char *dst, int n)
{
    const auto digits = corva::bufferView(src, n);
    return corva::copyOut(corva::swappedPairs({digits.data(), qsizetype(digits.size())}), dst);
}

int SerialThread::gsmEncode7bit(const char *src, unsigned char *dst, int n)
{
    corva::Octets packed;
    corva::packSeptets(corva::bufferView(reinterpret_cast<const quint8 *>(src), n), 0, packed);
    return corva::copyOut({packed.constData(), packed.size()}, reinterpret_cast<char *>(dst));
}

int SerialThread::gsmEncodeUcs2(const char *, char *dst, int n, QString text, char *hex)
{
    const QByteArray digits = corva::hexOfUcs2(text, n);
    corva::copyOut(digits, hex);
    return corva::copyOut(QByteArray::fromHex(digits), dst);
}

int SerialThread::gsmEncodePdu(SM_PARAM *src, char *dst, QString text, char *hex)
{
    const corva::SubmitSettings settings = configuredSettings();
    const QByteArray pdu = corva::encodeSubmit(*src, text, settings);
    corva::copyOut(settings.isUcs2 ? corva::hexOfUcs2(text, corva::ucs2Units(*src)) : QByteArray(), hex);
    return corva::copyOut(pdu, dst);
}
