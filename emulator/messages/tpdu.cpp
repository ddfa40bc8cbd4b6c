// SPDX-License-Identifier: GPL-3.0-or-later
#include "messages/tpdu.h"

#include "messages/septets.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace cardemu
{

namespace
{

constexpr int typeMask = 0x03;
constexpr int submitType = 0x01;
constexpr int reportRequested = 0x20;
constexpr int headerIndicator = 0x40;
constexpr int noMoreMessages = 0x04;
constexpr int international = 0x91;
constexpr int unknownType = 0x81;
constexpr int alphanumeric = 0xD0;

/// Reads octet by octet; past the end everything is 0, and isGood() tells.
class Cursor
{
public:
    explicit Cursor(const QByteArray &octets) : m_octets(octets) {}

    int octet()
    {
        const QByteArray one = take(1);
        return one.isEmpty() ? 0 : static_cast<unsigned char>(one[0]);
    }
    QByteArray take(qsizetype count)
    {
        m_good = m_good && count <= m_octets.size() - m_at;
        QByteArray octets = m_good ? m_octets.mid(m_at, count) : QByteArray();
        m_at += octets.size();
        return octets;
    }
    /// An address: <length in digits><type><digits>.
    QByteArray address()
    {
        const int digits = octet();
        return static_cast<char>(digits) + take(1 + (digits + 1) / 2);
    }
    QByteArray serviceCentre()
    {
        const int length = octet();
        return static_cast<char>(length) + take(length);
    }
    QByteArray rest() { return take(m_octets.size() - m_at); }
    bool isGood() const { return m_good; }

private:
    const QByteArray &m_octets;
    qsizetype m_at = 0;
    bool m_good = true;
};

int nibble(char digit)
{
    constexpr std::string_view digits = "0123456789*#abc";
    const size_t at = digits.find(digit);
    return at == std::string_view::npos ? 0x0F : static_cast<int>(at);
}

QByteArray semiOctets(const QByteArray &digits)
{
    QByteArray octets;
    for (qsizetype i = 0; i < digits.size(); i += 2) {
        const int high = i + 1 < digits.size() ? nibble(digits[i + 1]) : 0x0F;
        octets += static_cast<char>(high << 4 | nibble(digits[i]));
    }
    return octets;
}

bool isNumber(const QString &text)
{
    const QStringView digits = text.startsWith(u'+') ? QStringView(text).mid(1) : QStringView(text);
    return std::ranges::all_of(digits, [](QChar c) { return QStringView(u"0123456789*#abc").contains(c); });
}

QByteArray digitsOf(const QString &number)
{
    return (number.startsWith(u'+') ? number.mid(1) : number).toLatin1();
}

char typeOf(const QString &number)
{
    return static_cast<char>(number.startsWith(u'+') ? international : unknownType);
}

// Two bits of the coding name the alphabet, except in the groups from 0xC0 up.
bool isSevenBit(int coding)
{
    constexpr int compressed = 0x20;
    if (coding >= 0xF0)
        return (coding & 0x04) == 0;
    if (coding >= 0xE0)
        return false;
    if (coding >= 0xC0)
        return true;
    if (coding >= 0x80)
        return false;
    const int alphabet = coding & 0x0C;
    return (coding & compressed) == 0 && (alphabet == 0 || alphabet == 0x0C);
}

qsizetype octetCount(const UserData &data)
{
    return isSevenBit(data.coding) ? (data.length * 7 + 7) / 8 : data.length;
}

constexpr int mostDigits = 20;

constexpr std::array<int, 4> validityLengths = {0, 7, 1, 7}; // by TP-VPF: none, enhanced, relative, absolute

} // namespace

std::optional<QByteArray> fromHexDigits(const QByteArray &digits)
{
    const QByteArray octets = QByteArray::fromHex(digits);
    return octets.isEmpty() || octets.size() * 2 != digits.size() ? std::nullopt : std::optional(octets);
}

QByteArray toHexDigits(const QByteArray &octets)
{
    return octets.toHex().toUpper();
}

qsizetype tpduLength(const QByteArray &pdu)
{
    return pdu.isEmpty() ? 0 : std::max<qsizetype>(0, pdu.size() - 1 - static_cast<unsigned char>(pdu[0]));
}

QByteArray addressOctets(const QString &number)
{
    if (isNumber(number)) {
        const QByteArray digits = digitsOf(number);
        return static_cast<char>(digits.size()) + (typeOf(number) + semiOctets(digits));
    }
    const QByteArray septets = toSeptets(number).value_or("?");
    const qsizetype halves = (septets.size() * 7 + 3) / 4;
    return static_cast<char>(halves) + (static_cast<char>(alphanumeric) + packSeptets(septets));
}

bool fitsAddress(const QString &number)
{
    constexpr qsizetype mostLetters = 11;
    const auto septets = toSeptets(number);
    return isNumber(number) ? digitsOf(number).size() <= mostDigits
                            : septets && septets->size() <= mostLetters;
}

QString addressNumber(const QByteArray &address)
{
    if (address.size() < 2)
        return {};
    constexpr char digits[] = "0123456789*#abc";
    QString number =
        static_cast<unsigned char>(address[1]) == international ? QStringLiteral("+") : QString();
    const int length = static_cast<unsigned char>(address[0]);
    for (int i = 0; i < length && 2 + i / 2 < address.size(); ++i) {
        const int half = (address[2 + i / 2] >> (i % 2 == 0 ? 0 : 4)) & 0x0F;
        if (half < 0x0F)
            number += QLatin1Char(digits[half]);
    }
    return number;
}

QByteArray serviceCentreOctets(const QString &number)
{
    if (number.isEmpty())
        return {1, '\0'};
    const QByteArray octets = typeOf(number) + semiOctets(digitsOf(number));
    return static_cast<char>(octets.size()) + octets;
}

bool isSameNumber(const QString &one, const QString &other)
{
    constexpr qsizetype enough = 7;
    const QByteArray a = digitsOf(one);
    const QByteArray b = digitsOf(other);
    if (a.isEmpty() || b.isEmpty())
        return false;
    const bool isLongEnough = std::min(a.size(), b.size()) >= enough;
    return a == b || (isLongEnough && (a.endsWith(b) || b.endsWith(a)));
}

// The zone's sign is the fourth bit of its first half.
QByteArray timestampOctets(const QDateTime &time, int zone)
{
    const QDateTime local = time.toUTC().addSecs(zone * 15LL * 60);
    const QByteArray digits = local.toString(u"yyMMddhhmmss").toLatin1() +
                              QByteArray::number(std::abs(zone)).rightJustified(2, '0');
    QByteArray octets = semiOctets(digits);
    if (zone < 0)
        octets.back() = static_cast<char>(octets.back() | 0x08);
    return octets;
}

std::optional<Submit> Submit::parse(const QByteArray &pdu)
{
    Cursor cursor(pdu);
    Submit submit;
    submit.serviceCentre = cursor.serviceCentre();
    const int first = cursor.octet();
    cursor.octet(); // TP-MR: the card gives its own
    submit.wantsReport = (first & reportRequested) != 0;
    submit.destination = cursor.address();
    submit.protocol = cursor.octet();
    submit.data.coding = cursor.octet();
    cursor.take(validityLengths[static_cast<size_t>(first >> 3 & 3)]);
    submit.data.hasHeader = (first & headerIndicator) != 0;
    submit.data.length = cursor.octet();
    submit.data.octets = cursor.rest();
    const qsizetype needed = octetCount(submit.data);
    const qsizetype given = submit.data.octets.size();
    constexpr qsizetype most = 140;
    if (!cursor.isGood() || (first & typeMask) != submitType || needed > most || given < needed ||
        given > needed + 1 || submit.destination[0] > mostDigits || submit.destination[0] < 1)
        return std::nullopt;
    submit.data.octets.truncate(needed);
    return submit;
}

bool isDeliver(const QByteArray &pdu)
{
    Cursor cursor(pdu);
    cursor.serviceCentre();
    const int first = cursor.octet();
    return cursor.isGood() && (first & typeMask) == 0;
}

QByteArray Deliver::octets() const
{
    const int first = noMoreMessages | (data.hasHeader ? headerIndicator : 0);
    return serviceCentreOctets(serviceCentre) + static_cast<char>(first) + originator +
           static_cast<char>(protocol) + static_cast<char>(data.coding) + timestamp +
           static_cast<char>(data.length) + data.octets;
}

std::optional<int> deliverCoding(const QByteArray &pdu)
{
    Cursor cursor(pdu);
    cursor.serviceCentre();
    cursor.octet();
    cursor.address();
    cursor.octet();
    const int coding = cursor.octet();
    return cursor.isGood() ? std::optional(coding) : std::nullopt;
}

int messageClass(int coding)
{
    const bool isGeneral = coding < 0x80;
    const bool hasClass = isGeneral ? (coding & 0x10) != 0 : coding >= 0xF0;
    return hasClass ? coding & 0x03 : -1;
}

QByteArray StatusReport::octets() const
{
    constexpr int statusReportType = 0x02;
    return serviceCentreOctets(serviceCentre) + static_cast<char>(noMoreMessages | statusReportType) +
           static_cast<char>(reference) + recipient + timestamp + discharge + static_cast<char>(status);
}

} // namespace cardemu
