// SPDX-License-Identifier: GPL-3.0-or-later
// Short messages: 3GPP TS 27.005 3 and 4, in PDU mode.
#include "at/commandtable.h"
#include "at/errors.h"
#include "at/replies.h"

#include <array>

namespace cardemu
{

namespace
{

Answer readFormat(const Request &request)
{
    return ok("+CMGF: " + QByteArray::number(request.port.messageFormat));
}

// Only PDU mode is offered, as "+CMGF=?" says.
Answer setFormat(const Request &request)
{
    const auto format = request.arguments().number(0, 0, 0, 0);
    return format ? ok() : cmsError(cms::notSupported);
}

MessageStore &store(const Request &request, const QString &name)
{
    return request.state().messages.stores[name];
}

QByteArray fill(const MessageStore &store)
{
    const qsizetype used = store.full ? store.capacity : store.entries.size();
    return QByteArray::number(used) + ',' + QByteArray::number(store.capacity);
}

using StoreChoice = QString PortSettings::*;
constexpr std::array<StoreChoice, 3> storeChoices = {&PortSettings::readStore, &PortSettings::writeStore,
                                                     &PortSettings::receiveStore};

Answer readStores(const Request &request)
{
    QByteArrayList parts;
    for (const StoreChoice choice : storeChoices) {
        const QString &name = request.port.*choice;
        parts += '"' + name.toLatin1() + "\"," + fill(store(request, name));
    }
    return ok("+CPMS: " + parts.join(','));
}

Answer selectStores(const Request &request)
{
    const Arguments &arguments = request.arguments();
    if (arguments.count() < 1 || arguments.count() > 3)
        return cmsError(cms::notAllowed);
    QByteArrayList parts;
    PortSettings chosen = request.port;
    for (qsizetype i = 0; i < arguments.count(); ++i) {
        const QString name = QString::fromLatin1(arguments.text(i));
        if (!request.state().messages.stores.contains(name))
            return cmsError(cms::notAllowed);
        chosen.*storeChoices[static_cast<size_t>(i)] = name;
    }
    request.port = chosen;
    for (const StoreChoice choice : storeChoices)
        parts += fill(store(request, chosen.*choice));
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

Answer readIndications(const Request &request)
{
    QByteArrayList numbers;
    for (const int number : request.state().messages.indications)
        numbers += QByteArray::number(number);
    return ok("+CNMI: " + numbers.join(','));
}

Answer setIndications(const Request &request)
{
    constexpr std::array highest = {3, 3, 3, 2, 1};
    QList<int> wanted = request.state().messages.indications;
    const Arguments &arguments = request.arguments();
    if (arguments.count() > wanted.size())
        return cmsError(cms::notAllowed);
    for (qsizetype i = 0; i < arguments.count(); ++i) {
        const auto number = arguments.number(i, wanted[i], 0, highest[static_cast<size_t>(i)]);
        if (!number)
            return cmsError(cms::notAllowed);
        wanted[i] = *number;
    }
    request.state().messages.indications = wanted;
    return ok();
}

Answer readServiceCentre(const Request &request)
{
    const QString number = request.state().messages.serviceCentre;
    return ok("+CSCA: \"" + toWire(number, request.port.charset) + "\"," + numberType(number));
}

Answer setServiceCentre(const Request &request)
{
    const QString number = fromWire(request.arguments().text(0), request.port.charset);
    if (number.isEmpty())
        return cmsError(cms::notAllowed);
    request.state().messages.serviceCentre = number;
    return ok();
}

// The first octet tells how many of the service centre's address follow; they are not counted.
QByteArray header(const StoredMessage &message)
{
    const QByteArray octets = QByteArray::fromHex(message.pdu);
    const qsizetype length = octets.size() - 1 - static_cast<unsigned char>(octets.at(0));
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

// With a second number: 1 all read ones, 2 and the sent, 3 and the unsent, 4 all.
Answer deleteMessages(const Request &request)
{
    const auto flag = request.arguments().number(1, 0, 0, 4);
    const auto index = request.arguments().number(0);
    auto &entries = store(request, request.port.readStore).entries;
    if (!flag || !index)
        return cmsError(cms::invalidIndex);
    if (*flag == 0)
        return entries.remove(*index) == 1 ? ok() : cmsError(cms::invalidIndex);
    constexpr std::array<std::array<bool, 4>, 5> doomed = {{{false, false, false, false},
                                                            {false, true, false, false},
                                                            {false, true, false, true},
                                                            {false, true, true, true},
                                                            {true, true, true, true}}};
    const auto &statuses = doomed[static_cast<size_t>(*flag)];
    entries.removeIf(
        [&statuses](const auto &entry) { return statuses[static_cast<size_t>(entry.value().status)]; });
    return ok();
}

constexpr std::array table = {
    CommandRow{"+CMGF", Form::Read, everyFamily, Needs::Nothing, readFormat},
    CommandRow{"+CMGF", Form::Set, everyFamily, Needs::Nothing, setFormat},
    CommandRow{"+CMGF", Form::Test, everyFamily, Needs::Nothing, "+CMGF: (0)"},
    CommandRow{"+CSMS", Form::Read, everyFamily, Needs::Nothing, "+CSMS: 0,1,1,1"},
    CommandRow{"+CSMS", Form::Set, everyFamily, Needs::Nothing, "+CSMS: 1,1,1"},
    CommandRow{"+CSMS", Form::Test, everyFamily, Needs::Nothing, "+CSMS: (0,1)"},
    CommandRow{"+CPMS", Form::Read, everyFamily, Needs::SimForMessages, readStores},
    CommandRow{"+CPMS", Form::Set, everyFamily, Needs::SimForMessages, selectStores},
    CommandRow{"+CPMS", Form::Test, everyFamily, Needs::SimForMessages, listStores},
    CommandRow{"+CNMI", Form::Read, everyFamily, Needs::Nothing, readIndications},
    CommandRow{"+CNMI", Form::Set, everyFamily, Needs::Nothing, setIndications},
    CommandRow{"+CNMI", Form::Test, everyFamily, Needs::Nothing, "+CNMI: (0-3),(0-3),(0-3),(0-2),(0,1)"},
    CommandRow{"+CSCA", Form::Read, everyFamily, Needs::SimForMessages, readServiceCentre},
    CommandRow{"+CSCA", Form::Set, everyFamily, Needs::SimForMessages, setServiceCentre},
    CommandRow{"+CMGL", Form::Exec, everyFamily, Needs::SimForMessages, listMessages},
    CommandRow{"+CMGL", Form::Set, everyFamily, Needs::SimForMessages, listMessages},
    CommandRow{"+CMGL", Form::Test, everyFamily, Needs::Nothing, "+CMGL: (0-4)"},
    CommandRow{"+CMGR", Form::Set, everyFamily, Needs::SimForMessages, readMessage},
    CommandRow{"+CMGD", Form::Set, everyFamily, Needs::SimForMessages, deleteMessages},
    CommandRow{"+CMGD", Form::Test, everyFamily, Needs::Nothing, "+CMGD: (1-255),(0-4)"},
};

} // namespace

std::span<const CommandRow> messageCommands()
{
    return table;
}

} // namespace cardemu
