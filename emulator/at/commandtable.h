// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "at/answer.h"
#include "at/commandline.h"
#include "at/portsettings.h"
#include "card/card.h"

#include <span>
#include <variant>

namespace cardemu
{

/// What a handler is given.
struct Request {
    Card &card;
    PortSettings &port;
    const Command &command;

    CardState &state() const { return card.state(); }
    const Arguments &arguments() const { return command.arguments; }
};

using Handler = Answer (*)(const Request &);

/// Which families know a command.
inline constexpr unsigned wcdmaOnly = static_cast<unsigned>(Family::Wcdma);
inline constexpr unsigned cdmaOnly = static_cast<unsigned>(Family::Cdma);
inline constexpr unsigned gsmLike = wcdmaOnly | static_cast<unsigned>(Family::TdScdma);
inline constexpr unsigned everyFamily = gsmLike | cdmaOnly;

/// What must be there before a command is carried out; without it the SIM's own error is the answer.
enum class Needs { Nothing, Sim, SimForMessages };

struct CommandRow {
    const char *name;
    Form form;
    unsigned families;
    Needs needs;
    std::variant<Handler, const char *> answer; ///< a text is the one line of an answer that never changes
};

/// A plain OK, for settings that change nothing here.
Answer accept(const Request &request);

/// Carries one command out: ERROR where this card does not know it.
Answer execute(const Request &request);
/// Whether a command is one of the message service's, whose errors are "+CMS ERROR".
bool isMessageCommand(const QByteArray &name);
/// The names of all commands that this card knows, as "+CLAC" lists them.
QByteArrayList commandNames(const CardState &state);

// The tables, one for each field of work.
std::span<const CommandRow> generalCommands();
std::span<const CommandRow> identityCommands();
std::span<const CommandRow> deviceCommands();
std::span<const CommandRow> simCommands();
std::span<const CommandRow> networkCommands();
std::span<const CommandRow> makerCommands();
std::span<const CommandRow> messageSettings();
std::span<const CommandRow> messageStoreCommands();
std::span<const CommandRow> messageSending();
std::span<const CommandRow> phonebookCommands();
std::span<const CommandRow> callCommands();
std::span<const CommandRow> ussdCommands();
std::span<const CommandRow> packetCommands();

} // namespace cardemu
