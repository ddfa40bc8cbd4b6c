// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <optional>

// What the card and the network have to know of PDUs: 3GPP TS 23.040 9.2, as octets. User data goes through
// as it is.

namespace cardemu
{

/// Octets of hex digits in either case; nullopt when they are not two digits for each octet, or none.
std::optional<QByteArray> fromHexDigits(const QByteArray &digits);
QByteArray toHexDigits(const QByteArray &octets);

/// A longer one is none: 164 octets, and some that clients add.
inline constexpr int longestTpdu = 180;

/// How many octets of a PDU count as its length: all behind the service centre's address. Never below 0.
qsizetype tpduLength(const QByteArray &pdu);

/// <length in digits><type><digits>; a text that is no number becomes an alphanumeric address. 9.1.2.5.
QByteArray addressOctets(const QString &number);
/// Whether it does so without loss.
bool fitsAddress(const QString &number);
/// The number that an address holds, international ones with their "+".
QString addressNumber(const QByteArray &address);
/// <length in octets><type><digits>; 00 for an empty number. 3GPP TS 24.011 8.2.5.1.
QByteArray serviceCentreOctets(const QString &number);
/// Whether both numbers reach the same subscriber: their last digits agree, with or without a country's code.
bool isSameNumber(const QString &one, const QString &other);

/// TP-SCTS and TP-DT: seven octets. `zone` in quarters of an hour east of UTC. 9.2.3.11.
QByteArray timestampOctets(const QDateTime &time, int zone);

/// Text, or what stands for it, as a message carries it.
struct UserData {
    int coding = 0; ///< TP-DCS
    bool hasHeader = false;
    int length = 0; ///< TP-UDL: septets or octets, as the coding says
    QByteArray octets;
};

/// A message on its way to the network.
struct Submit {
    QByteArray serviceCentre; ///< with its length octet; a single 0 leaves the choice to the card
    bool wantsReport = false;
    QByteArray destination; ///< as addressOctets() makes it
    int protocol = 0;
    UserData data;

    /// nullopt when it is not a SUBMIT, or too short or too long for what it says of itself. User data may
    /// have one octet too many, as some clients send it; that is cut off.
    static std::optional<Submit> parse(const QByteArray &pdu);
};

/// Whether a PDU holds a message from the network (DELIVER) and not one to it.
bool isDeliver(const QByteArray &pdu);

/// A message from the network.
struct Deliver {
    QString serviceCentre;
    QByteArray originator; ///< as addressOctets() makes it
    int protocol = 0;
    QByteArray timestamp; ///< as timestampOctets() makes it
    UserData data;

    QByteArray octets() const;
};

/// TP-DCS of a DELIVER; nullopt when the PDU ends before it.
std::optional<int> deliverCoding(const QByteArray &pdu);
/// 0 to 3; -1 for a coding without a class. 3GPP TS 23.038 4.
int messageClass(int coding);

struct StatusReport {
    QString serviceCentre;
    int reference = 0;
    QByteArray recipient;
    QByteArray timestamp;
    QByteArray discharge;
    int status = 0; ///< TP-ST. 9.2.3.15

    QByteArray octets() const;
};

} // namespace cardemu
