// SPDX-License-Identifier: GPL-3.0-or-later
// The phonebook: 3GPP TS 27.007 8.11 to 8.14.
#include "at/commandtable.h"
#include "at/errors.h"

#include <array>

namespace cardemu
{

namespace
{

constexpr int numberLength = 40;
constexpr int nameLength = 20;

PhonebookStore &selected(const Request &request)
{
    return request.state().phonebook.stores[request.port.phonebook];
}

Answer readStore(const Request &request)
{
    const PhonebookStore &store = selected(request);
    return ok("+CPBS: \"" + request.port.phonebook.toLatin1() + "\"," +
              QByteArray::number(store.entries.size()) + ',' + QByteArray::number(store.capacity));
}

Answer selectStore(const Request &request)
{
    const QString name = QString::fromLatin1(request.arguments().text(0));
    if (!request.state().phonebook.stores.contains(name))
        return cmeError(cme::notAllowed);
    request.port.phonebook = name;
    return ok();
}

Answer listStores(const Request &request)
{
    QByteArrayList names;
    for (const QString &name : request.state().phonebook.stores.keys())
        names += '"' + name.toLatin1() + '"';
    return ok("+CPBS: (" + names.join(',') + ')');
}

Answer readRange(const Request &request)
{
    return ok("+CPBR: (1-" + QByteArray::number(selected(request).capacity) + ")," +
              QByteArray::number(numberLength) + ',' + QByteArray::number(nameLength));
}

Answer readEntries(const Request &request)
{
    const PhonebookStore &store = selected(request);
    const auto first = request.arguments().number(0, -1, 1, store.capacity);
    const auto last = request.arguments().number(1, first.value_or(1), 1, store.capacity);
    if (!first || !last)
        return cmeError(cme::invalidIndex);
    QByteArrayList lines;
    for (auto entry = store.entries.lowerBound(*first); entry != store.entries.end() && entry.key() <= *last;
         ++entry)
        lines += "+CPBR: " + QByteArray::number(entry.key()) + ",\"" + entry->number.toLatin1() + "\"," +
                 QByteArray::number(entry->type) + ",\"" + toWire(entry->name, request.port.charset) + '"';
    return ok(lines);
}

int firstFree(const PhonebookStore &store)
{
    int index = 1;
    while (store.entries.contains(index))
        ++index;
    return index;
}

// An index alone deletes its entry; without an index the first free place is taken.
Answer writeEntry(const Request &request)
{
    const Arguments &arguments = request.arguments();
    PhonebookStore &store = selected(request);
    const auto index = arguments.number(0, firstFree(store), 1, store.capacity);
    if (!index)
        return arguments.has(0) ? cmeError(cme::invalidIndex) : cmeError(cme::memoryFull);
    if (arguments.count() == 1) {
        store.entries.remove(*index);
        return ok();
    }
    const QString number = QString::fromLatin1(arguments.text(1));
    const QString name = fromWire(arguments.text(3), request.port.charset);
    const auto type = arguments.number(2, number.startsWith(u'+') ? 145 : 129, 0, 255);
    if (!type || number.size() > numberLength)
        return cmeError(cme::incorrectParameters);
    constexpr int textTooLong = 24;
    if (name.size() > nameLength)
        return cmeError(textTooLong);
    store.entries[*index] = {number, *type, name};
    return ok();
}

constexpr std::array table = {
    CommandRow{"+CPBS", Form::Read, everyFamily, Needs::Sim, readStore},
    CommandRow{"+CPBS", Form::Set, everyFamily, Needs::Sim, selectStore},
    CommandRow{"+CPBS", Form::Test, everyFamily, Needs::Nothing, listStores},
    CommandRow{"+CPBR", Form::Set, everyFamily, Needs::Sim, readEntries},
    CommandRow{"+CPBR", Form::Test, everyFamily, Needs::Sim, readRange},
    CommandRow{"+CPBW", Form::Set, everyFamily, Needs::Sim, writeEntry},
};

} // namespace

std::span<const CommandRow> phonebookCommands()
{
    return table;
}

} // namespace cardemu
