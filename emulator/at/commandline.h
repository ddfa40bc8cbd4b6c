// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "at/arguments.h"

namespace cardemu
{

enum class Form { Exec, Read, Set, Test };

/// One command of a command line.
struct Command {
    QByteArray name; ///< upper case: "+CSQ", "^SYSINFO", "E", "&F", "S", "D"
    Form form = Form::Exec;
    Arguments arguments; ///< a basic command's number, or D's dial string, is the first one
    QByteArray text;     ///< as given, without blanks outside quotes, the name in upper case: "+COPS=?"
};

/// Splits what follows "AT" into its commands, as ITU-T V.250 5.3 and 5.4 have it: basic commands follow one
/// another at once, extended ones are parted by ";", D takes the rest. nullopt when the line is not well
/// formed.
std::optional<std::vector<Command>> parseCommandLine(const QByteArray &body);

} // namespace cardemu
