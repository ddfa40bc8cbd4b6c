// SPDX-License-Identifier: GPL-3.0-or-later
// Sending messages: 3GPP TS 27.005 3.5.2 and 4.3, in PDU mode.
#include "at/commandtable.h"
#include "at/errors.h"

#include <array>

namespace cardemu
{

namespace
{

std::chrono::milliseconds networkDelay(const Card &card)
{
    return std::chrono::milliseconds(card.state().messages.network.delay);
}

Answer answerOf(const QByteArray &name, const SubmitResult &result)
{
    return result.error == 0 ? ok(name + QByteArray::number(result.reference)) : cmsError(result.error);
}

Answer sendMessage(const Request &request)
{
    const auto length = request.arguments().number(0, -1, 1, longestTpdu);
    if (!length || *length < 0)
        return cmsError(cms::invalidPduParameter);
    const auto go = [&card = request.card, length = *length](const QByteArray &text) {
        if (tpduLength(QByteArray::fromHex(text)) != length)
            return cmsError(cms::invalidPduParameter);
        return answerOf("+CMGS: ", card.messageCentre().submit(text));
    };
    return later({true, networkDelay(request.card), go});
}

// "+CMSS=<index>[,<number>[,<type>]]"; a stored message that went out is a sent one.
Answer sendStored(const Request &request)
{
    constexpr int unsent = 2;
    constexpr int sent = 3;
    const int index = request.arguments().number(0).value_or(0);
    const QString name = request.port.writeStore;
    const auto &entries = request.state().messages.stores[name].entries;
    if (!entries.contains(index))
        return cmsError(cms::invalidIndex);
    const QByteArray pdu = entries[index].pdu;
    const QString recipient = QString::fromLatin1(request.arguments().text(1));
    const auto go = [&card = request.card, name, index, pdu, recipient](const QByteArray &) {
        const SubmitResult result = card.messageCentre().submit(pdu, recipient);
        auto &stored = card.state().messages.stores[name].entries;
        if (const auto entry = stored.find(index);
            result.error == 0 && entry != stored.end() && entry->status == unsent)
            entry->status = sent;
        return answerOf("+CMSS: ", result);
    };
    return later({false, networkDelay(request.card), go});
}

constexpr std::array table = {
    CommandRow{"+CMGS", Form::Set, everyFamily, Needs::SimForMessages, sendMessage},
    CommandRow{"+CMSS", Form::Set, everyFamily, Needs::SimForMessages, sendStored},
};

} // namespace

std::span<const CommandRow> messageSending()
{
    return table;
}

} // namespace cardemu
