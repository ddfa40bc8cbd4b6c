// SPDX-License-Identifier: GPL-3.0-or-later
#include "at/commandtable.h"

#include "at/errors.h"

#include <array>

namespace cardemu
{

namespace
{

using Table = std::span<const CommandRow> (*)();

constexpr std::array<Table, 13> tables = {
    generalCommands, identityCommands, deviceCommands,       simCommands,    networkCommands,
    makerCommands,   messageSettings,  messageStoreCommands, messageSending, phonebookCommands,
    callCommands,    ussdCommands,     packetCommands};

bool isMakers(const QByteArray &name)
{
    return name.startsWith("+J") || name.startsWith('^');
}

bool isKnown(const CommandRow &row, const CardState &state)
{
    return (row.families & static_cast<unsigned>(state.family)) != 0 &&
           (state.makerCommands || !isMakers(row.name));
}

const CommandRow *find(const QByteArray &name, std::optional<Form> form, const CardState &state)
{
    for (const Table table : tables) {
        for (const CommandRow &row : table()) {
            if (name == row.name && (!form || row.form == *form) && isKnown(row, state))
                return &row;
        }
    }
    return nullptr;
}

// A card that knows a command says OK to its "=?" form, also when there is nothing to list.
Answer unknownForm(const Request &request)
{
    const bool isTest = request.command.form == Form::Test;
    return isTest && find(request.command.name, std::nullopt, request.state()) != nullptr ? ok() : error();
}

Answer simRefusal(int number, Needs needs)
{
    return needs == Needs::SimForMessages ? cmsError(cmsFromCme(number)) : cmeError(number);
}

} // namespace

Answer accept(const Request &)
{
    return ok();
}

Answer execute(const Request &request)
{
    const CommandRow *row = find(request.command.name, request.command.form, request.state());
    if (row == nullptr)
        return unknownForm(request);
    if (row->needs != Needs::Nothing) {
        if (const auto refusal = request.card.simError())
            return simRefusal(*refusal, row->needs);
    }
    if (const auto *fixed = std::get_if<const char *>(&row->answer))
        return ok(QByteArray(*fixed));
    return std::get<Handler>(row->answer)(request);
}

bool isMessageCommand(const QByteArray &name)
{
    constexpr std::array<Table, 3> messageTables = {messageSettings, messageStoreCommands, messageSending};
    return std::ranges::any_of(messageTables, [&name](Table table) {
        return std::ranges::any_of(table(), [&name](const CommandRow &row) { return name == row.name; });
    });
}

QByteArrayList commandNames(const CardState &state)
{
    QByteArrayList names;
    for (const Table table : tables) {
        for (const CommandRow &row : table()) {
            if (isKnown(row, state) && !names.contains(row.name))
                names += row.name;
        }
    }
    return names;
}

} // namespace cardemu
