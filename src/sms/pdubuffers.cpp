// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/pdubuffers.h"

#include "sms/octets.h"

#include <cstring>

namespace corva
{

int copyOut(QByteArrayView text, char *dst)
{
    if (!text.isEmpty())
        std::memcpy(dst, text.data(), std::size_t(text.size()));
    dst[text.size()] = '\0';
    return int(text.size());
}

int hexToBuffer(const char *src, char *dst, int n)
{
    Octets octets;
    readHex(QByteArrayView(src, qsizetype(bufferView(src, n).size())), octets);
    return copyOut(QByteArrayView(octets.constData(), octets.size()), dst);
}

int bufferToHex(const unsigned char *src, char *dst, int n)
{
    QByteArray hex;
    for (const quint8 octet : bufferView(src, n)) {
        hex += hexDigit(octet >> 4);
        hex += hexDigit(octet);
    }
    return copyOut(hex, dst);
}

} // namespace corva
