// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/pduidentity.h"

namespace corva
{

namespace
{

constexpr int typeBits = 0x03; ///< TP-MTI; 0 from the network is SMS-DELIVER
constexpr int moreMessages = 0x04;

/// The octet at a place of hex text; -1 when there is none.
int octetAt(const QString &hex, qsizetype place)
{
    if (place + 2 > hex.size())
        return -1;
    bool isHex = false;
    const int octet = hex.mid(place, 2).toInt(&isHex, 16);
    return isHex ? octet : -1;
}

} // namespace

QString pduIdentity(const QString &pdu)
{
    QString hex = pdu.trimmed().toUpper();
    const int centreOctets = octetAt(hex, 0);
    const qsizetype start = 2 + qsizetype(centreOctets) * 2;
    const int first = centreOctets < 0 ? -1 : octetAt(hex, start);
    if (first < 0)
        return hex;
    QString tpdu = hex.sliced(start);
    if ((first & typeBits) == 0)
        tpdu.replace(0, 2, QString::number((first | moreMessages) | 0x100, 16).last(2).toUpper());
    return tpdu;
}

} // namespace corva
