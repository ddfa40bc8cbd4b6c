// SPDX-License-Identifier: GPL-3.0-or-later
#include "at/charset.h"

#include <QtEndian>

namespace cardemu
{

QByteArray toWire(const QString &text, Charset charset)
{
    QByteArray wire;
    for (const QChar c : text) {
        if (charset == Charset::Ucs2)
            wire += QByteArray::number(c.unicode(), 16).rightJustified(4, '0').toUpper();
        else
            wire += c >= u' ' && c < u'\x7f' && c != u'"' ? c.toLatin1() : '?';
    }
    return wire;
}

QString fromWire(const QByteArray &bytes, Charset charset)
{
    if (charset != Charset::Ucs2)
        return QString::fromUtf8(bytes);
    const QByteArray units = QByteArray::fromHex(bytes);
    if (bytes.size() % 4 != 0 || units.size() * 2 != bytes.size())
        return {};
    QString text;
    for (qsizetype i = 0; i < units.size(); i += 2)
        text += QChar(qFromBigEndian<quint16>(units.constData() + i));
    return text;
}

} // namespace cardemu
