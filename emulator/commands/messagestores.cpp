// SPDX-License-Identifier: GPL-3.0-or-later
// Messages in the card's stores: 3GPP TS 27.005 3.2.2, 3.5.4 and 4.1, 4.2, 4.4, in PDU mode.
#include "at/commandtable.h"
#include "at/errors.h"

#include <array>

namespace cardemu
{

namespace
{

MessageStore &store(const Request &request, const QString &name)
{
    return request.state().messages.stores[name];
}

QByteArray fill(const MessageStore &store)
{
    const qsizetype used = store.full ? store.capacity : store.entries.size();
    return QByteArray::number(used) + ',' + QByteArray::number(store.capacity);
}

/// The stores chosen for reading, for writing, and for what comes in; the last one is the card's.
std::array<QString *, 3> chosenStores(const Request &request)
{
    return {&request.port.readStore, &request.port.writeStore, &request.state().messages.receiveStore};
}

Answer readStores(const Request &request)
{
    QByteArrayList parts;
    for (const QString *name : chosenStores(request))
        parts += '"' + name->toLatin1() + "\"," + fill(store(request, *name));
    return ok("+CPMS: " + parts.join(','));
}

Answer selectStores(const Request &request)
{
    const Arguments &arguments = request.arguments();
    const auto chosen = chosenStores(request);
    const auto &stores = request.state().messages.stores;
    if (arguments.count() < 1 || arguments.count() > qsizetype(chosen.size()))
        return cmsError(cms::notAllowed);
    for (qsizetype i = 0; i < arguments.count(); ++i) {
        if (!stores.contains(QString::fromLatin1(arguments.text(i))))
            return cmsError(cms::notAllowed);
    }
    for (qsizetype i = 0; i < arguments.count(); ++i)
        *chosen[static_cast<size_t>(i)] = QString::fromLatin1(arguments.text(i));
    QByteArrayList parts;
    for (const QString *name : chosen)
        parts += fill(store(request, *name));
    return ok("+CPMS: " + parts.join(','));
}

Answer listStores(const Request &request)
{
    QByteArrayList names;
    for (const QString &name : request.state().messages.stores.keys())
        names += '"' + name.toLatin1() + '"';
    const QByteArray all = '(' + names.join(',') + ')';
    return ok("+CPMS: " + all + ',' + all + ',' + all);
}

QByteArray header(const StoredMessage &message)
{
    const qsizetype length = tpduLength(QByteArray::fromHex(message.pdu));
    return QByteArray::number(message.status) + ",," + QByteArray::number(length);
}

void markRead(StoredMessage &message)
{
    if (message.status == 0)
        message.status = 1;
}

Answer listMessages(const Request &request)
{
    constexpr int all = 4;
    const auto wanted = request.arguments().number(0, 0, 0, all);
    if (!wanted)
        return cmsError(cms::notAllowed);
    QByteArrayList lines;
    auto &entries = store(request, request.port.readStore).entries;
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        if (*wanted != all && *wanted != entry->status)
            continue;
        lines += "+CMGL: " + QByteArray::number(entry.key()) + ',' + header(*entry);
        lines += entry->pdu;
        markRead(*entry);
    }
    return ok(lines);
}

Answer readMessage(const Request &request)
{
    auto &entries = store(request, request.port.readStore).entries;
    const auto entry = entries.find(request.arguments().number(0).value_or(0));
    if (entry == entries.end())
        return cmsError(cms::invalidIndex);
    Answer answer = ok({"+CMGR: " + header(*entry), entry->pdu});
    markRead(*entry);
    return answer;
}

/// Which statuses go, by <delflag>: the one message, all read ones, the sent, the unsent too, all.
constexpr std::array<std::array<bool, 4>, 5> doomed = {{{false, false, false, false},
                                                        {false, true, false, false},
                                                        {false, true, false, true},
                                                        {false, true, true, true},
                                                        {true, true, true, true}}};

Answer deleteMessages(const Request &request)
{
    const auto flag = request.arguments().number(1, 0, 0, 4);
    const auto index = request.arguments().number(0);
    auto &entries = store(request, request.port.readStore).entries;
    if (!flag || !index || (*flag == 0 && !entries.contains(*index)))
        return cmsError(cms::invalidIndex);
    const auto &statuses = doomed[static_cast<size_t>(*flag)];
    if (*flag == 0)
        entries.remove(*index);
    else
        entries.removeIf(
            [&statuses](const auto &entry) { return statuses[static_cast<size_t>(entry.value().status)]; });
    request.card.mailbox().deliverWaiting();
    return ok();
}

// The places that are taken.
Answer listIndexes(const Request &request)
{
    QByteArrayList indexes;
    for (const int index : store(request, request.port.readStore).entries.keys())
        indexes += QByteArray::number(index);
    return ok("+CMGD: (" + indexes.join(',') + "),(0-4)");
}

Answer storeText(Card &card, const QString &store, int length, int status, const QByteArray &text)
{
    const auto octets = fromHexDigits(text);
    const bool isReceived = status < 2;
    if (!octets || tpduLength(*octets) != length ||
        (isReceived ? !isDeliver(*octets) : !Submit::parse(*octets).has_value()))
        return cmsError(cms::invalidPduParameter);
    const auto index = card.mailbox().store(store, {status, text.toUpper()});
    return index ? ok("+CMGW: " + QByteArray::number(*index)) : cmsError(cms::memoryFull);
}

// "+CMGW=<length>[,<stat>]": stored unsent unless it says otherwise.
Answer writeMessage(const Request &request)
{
    constexpr int unsent = 2;
    const auto length = request.arguments().number(0, -1, 1, longestTpdu);
    const auto status = request.arguments().number(1, unsent, 0, 3);
    if (!length || *length < 0 || !status)
        return cmsError(cms::invalidPduParameter);
    const auto go = [&card = request.card, store = request.port.writeStore, length = *length,
                     status = *status](const QByteArray &text) {
        return storeText(card, store, length, status, text);
    };
    return later({true, {}, go});
}

constexpr std::array table = {
    CommandRow{"+CPMS", Form::Read, everyFamily, Needs::SimForMessages, readStores},
    CommandRow{"+CPMS", Form::Set, everyFamily, Needs::SimForMessages, selectStores},
    CommandRow{"+CPMS", Form::Test, everyFamily, Needs::SimForMessages, listStores},
    CommandRow{"+CMGL", Form::Exec, everyFamily, Needs::SimForMessages, listMessages},
    CommandRow{"+CMGL", Form::Set, everyFamily, Needs::SimForMessages, listMessages},
    CommandRow{"+CMGL", Form::Test, everyFamily, Needs::Nothing, "+CMGL: (0-4)"},
    CommandRow{"+CMGR", Form::Set, everyFamily, Needs::SimForMessages, readMessage},
    CommandRow{"+CMGD", Form::Set, everyFamily, Needs::SimForMessages, deleteMessages},
    CommandRow{"+CMGD", Form::Test, everyFamily, Needs::Nothing, listIndexes},
    CommandRow{"+CMGW", Form::Set, everyFamily, Needs::SimForMessages, writeMessage},
};

} // namespace

std::span<const CommandRow> messageStoreCommands()
{
    return table;
}

} // namespace cardemu
