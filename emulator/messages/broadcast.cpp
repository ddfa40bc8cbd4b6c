// SPDX-License-Identifier: GPL-3.0-or-later
#include "messages/broadcast.h"

#include "messages/septets.h"

#include <QtEndian>

namespace cardemu
{

namespace
{

constexpr qsizetype mostPages = 15;
constexpr qsizetype contentOctets = 82;
constexpr qsizetype septetsOfPage = contentOctets * 8 / 7;
constexpr qsizetype charactersOfPage = contentOctets / 2;
constexpr char defaultAlphabet = 0x0F; // in a language that is not named. 3GPP TS 23.038 5
constexpr char ucs2 = 0x48;

QByteArray bigEndian(quint16 number)
{
    QByteArray octets(2, '\0');
    qToBigEndian(number, octets.data());
    return octets;
}

QByteArrayList septetContents(const QByteArray &septets)
{
    QByteArrayList contents;
    for (qsizetype from = 0; from < std::max<qsizetype>(1, septets.size()); from += septetsOfPage)
        contents += packSeptets(septets.mid(from, septetsOfPage).leftJustified(septetsOfPage, '\r'));
    return contents;
}

QByteArrayList ucs2Contents(const QString &text)
{
    QByteArrayList contents;
    for (qsizetype from = 0; from < std::max<qsizetype>(1, text.size()); from += charactersOfPage) {
        QByteArray content;
        for (const QChar c : text.mid(from, charactersOfPage).leftJustified(charactersOfPage, u'\r'))
            content += bigEndian(c.unicode());
        contents += content;
    }
    return contents;
}

} // namespace

QByteArrayList broadcastPages(const Broadcast &broadcast)
{
    const auto septets = broadcast.alphabet == Alphabet::Ucs2 ? std::nullopt : toSeptets(broadcast.text);
    if (!septets && broadcast.alphabet == Alphabet::Gsm7)
        return {};
    QByteArrayList pages = septets ? septetContents(*septets) : ucs2Contents(broadcast.text);
    if (pages.size() > mostPages)
        return {};
    const QByteArray head = bigEndian(static_cast<quint16>(broadcast.serial)) +
                            bigEndian(static_cast<quint16>(broadcast.channel)) +
                            (septets ? defaultAlphabet : ucs2);
    for (qsizetype i = 0; i < pages.size(); ++i)
        pages[i].prepend(head + static_cast<char>((i + 1) << 4 | pages.size()));
    return pages;
}

} // namespace cardemu
