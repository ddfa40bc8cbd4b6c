// SPDX-License-Identifier: GPL-3.0-or-later
#include "messages/segments.h"

#include "messages/septets.h"

#include <QtEndian>
#include <algorithm>

namespace cardemu
{

namespace
{

constexpr qsizetype mostOctets = 140;
constexpr qsizetype mostParts = 255;

/// The text in units that a part counts by: septets, octets, or two octets for each character.
struct Encoded {
    Alphabet alphabet;
    QByteArray bytes;
};

QByteArray bigEndian(const QString &text)
{
    QByteArray bytes(text.size() * 2, '\0');
    for (qsizetype i = 0; i < text.size(); ++i)
        qToBigEndian<quint16>(text[i].unicode(), bytes.data() + 2 * i);
    return bytes;
}

std::optional<Encoded> encode(const QString &text, Alphabet alphabet)
{
    if (alphabet == Alphabet::EightBit)
        return Encoded{alphabet, text.toUtf8()};
    const auto septets = toSeptets(text);
    if (alphabet != Alphabet::Ucs2 && septets)
        return Encoded{Alphabet::Gsm7, *septets};
    if (alphabet == Alphabet::Gsm7)
        return std::nullopt;
    return Encoded{Alphabet::Ucs2, bigEndian(text)};
}

// What fits behind a header of so many octets, in bytes of Encoded.
qsizetype room(Alphabet alphabet, qsizetype header)
{
    const qsizetype octets = mostOctets - header;
    if (alphabet == Alphabet::Gsm7)
        return octets * 8 / 7;
    return alphabet == Alphabet::Ucs2 ? octets / 2 * 2 : octets;
}

bool isTorn(const Encoded &encoded, qsizetype at)
{
    if (encoded.alphabet == Alphabet::Gsm7)
        return encoded.bytes[at - 1] == '\x1b';
    return encoded.alphabet == Alphabet::Ucs2 && (encoded.bytes[at - 2] & 0xFC) == 0xD8;
}

QByteArrayList cut(const Encoded &encoded, qsizetype most)
{
    const qsizetype step = encoded.alphabet == Alphabet::Ucs2 ? 2 : 1;
    QByteArrayList pieces;
    qsizetype from = 0;
    while (from < encoded.bytes.size()) {
        qsizetype to = std::min(from + most, encoded.bytes.size());
        if (to < encoded.bytes.size() && isTorn(encoded, to))
            to -= step;
        pieces += encoded.bytes.mid(from, to - from);
        from = to;
    }
    return pieces;
}

QByteArray concatenation(const TextForm &form, qsizetype total, qsizetype number)
{
    const QByteArray place = QByteArray(1, static_cast<char>(total)) + static_cast<char>(number);
    if (!form.wideReference)
        return QByteArray("\x05\x00\x03", 3) + static_cast<char>(form.reference) + place;
    return QByteArray("\x06\x08\x04", 3) + static_cast<char>(form.reference >> 8) +
           static_cast<char>(form.reference) + place;
}

int codingOf(Alphabet alphabet, int messageClass)
{
    constexpr int eightBit = 0x04;
    constexpr int ucs2 = 0x08;
    constexpr int hasClass = 0x10;
    const int bits = alphabet == Alphabet::EightBit ? eightBit : alphabet == Alphabet::Ucs2 ? ucs2 : 0;
    return messageClass < 0 ? bits : bits | hasClass | messageClass;
}

UserData userData(Alphabet alphabet, int messageClass, const QByteArray &header, const QByteArray &piece)
{
    UserData data;
    data.coding = codingOf(alphabet, messageClass);
    data.hasHeader = !header.isEmpty();
    if (alphabet != Alphabet::Gsm7) {
        data.octets = header + piece;
        data.length = static_cast<int>(data.octets.size());
        return data;
    }
    const auto headerSeptets = static_cast<int>((header.size() * 8 + 6) / 7);
    const int fillBits = headerSeptets * 7 - static_cast<int>(header.size()) * 8;
    data.octets = header + packSeptets(piece, fillBits);
    data.length = headerSeptets + static_cast<int>(piece.size());
    return data;
}

} // namespace

std::vector<UserData> segmentText(const QString &text, const TextForm &form)
{
    const auto encoded = encode(text, form.alphabet);
    if (!encoded)
        return {};
    if (encoded->bytes.size() <= room(encoded->alphabet, 0))
        return {userData(encoded->alphabet, form.messageClass, {}, encoded->bytes)};
    const QByteArrayList pieces = cut(*encoded, room(encoded->alphabet, concatenation(form, 0, 0).size()));
    if (pieces.size() > mostParts)
        return {};
    std::vector<UserData> parts;
    for (qsizetype i = 0; i < pieces.size(); ++i)
        parts.push_back(userData(encoded->alphabet, form.messageClass,
                                 concatenation(form, pieces.size(), i + 1), pieces[i]));
    return parts;
}

} // namespace cardemu
