// SPDX-License-Identifier: GPL-3.0-or-later
#include "at/replies.h"

#include "at/errors.h"
#include "card/card.h"

#include <algorithm>
#include <array>

namespace cardemu
{

namespace
{

struct FinalRow {
    Final::Kind kind;
    const char *number; ///< with V0
    const char *words;
};

constexpr std::array finals = {
    FinalRow{Final::Kind::Ok, "0", "OK"},
    FinalRow{Final::Kind::Connect, "1", "CONNECT"},
    FinalRow{Final::Kind::NoCarrier, "3", "NO CARRIER"},
    FinalRow{Final::Kind::Error, "4", "ERROR"},
    FinalRow{Final::Kind::NoDialtone, "6", "NO DIALTONE"},
    FinalRow{Final::Kind::Busy, "7", "BUSY"},
    FinalRow{Final::Kind::NoAnswer, "8", "NO ANSWER"},
};

QByteArray lineEnd(const PortSettings &port)
{
    return {QByteArray(1, port.lineEnd) + port.lineFeed};
}

QByteArray resultCode(Final::Kind kind, const PortSettings &port)
{
    const auto *const row = std::ranges::find(finals, kind, &FinalRow::kind);
    if (!port.verbose)
        return QByteArray(row->number) + port.lineEnd;
    return lineEnd(port) + row->words + lineEnd(port);
}

QByteArray errorWords(const Final &final, int mode)
{
    const bool isCme = final.kind == Final::Kind::CmeError;
    const QByteArray words = isCme ? cmeWords(final.number) : cmsWords(final.number);
    return (isCme ? "+CME ERROR: " : "+CMS ERROR: ") + (mode == 2 ? words : QByteArray::number(final.number));
}

} // namespace

QByteArray registrationText(const Card &card, int mode)
{
    QByteArray text = QByteArray::number(card.registration());
    if (mode == 2 && card.isRegistered()) {
        const Network &network = card.state().network;
        text += ",\"" + QByteArray::number(network.areaCode, 16).rightJustified(4, '0').toUpper() + "\",\"" +
                QByteArray::number(network.cellId, 16).rightJustified(8, '0').toUpper() + '"';
    }
    return text;
}

QByteArray numberType(const QString &number)
{
    return number.startsWith(u'+') ? "145" : "129";
}

QByteArray informationText(const QByteArrayList &lines, const PortSettings &port)
{
    QByteArray text = port.verbose && !lines.isEmpty() ? lineEnd(port) : QByteArray();
    for (const QByteArray &line : lines)
        text += line + lineEnd(port);
    return text;
}

QByteArray finalText(const Final &final, const PortSettings &port)
{
    if (port.quiet)
        return {};
    if (final.kind == Final::Kind::Literal)
        return lineEnd(port) + final.text + lineEnd(port);
    const bool isCme = final.kind == Final::Kind::CmeError;
    if (isCme && port.errorMode == 0)
        return resultCode(Final::Kind::Error, port);
    if (isCme || final.kind == Final::Kind::CmsError)
        return lineEnd(port) + errorWords(final, port.errorMode) + lineEnd(port);
    return resultCode(final.kind, port);
}

QByteArray reportText(const QByteArray &line, const PortSettings &port)
{
    return lineEnd(port) + line + lineEnd(port);
}

} // namespace cardemu
