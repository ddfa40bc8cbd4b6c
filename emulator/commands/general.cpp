// SPDX-License-Identifier: GPL-3.0-or-later
// The port's own settings: ITU-T V.250 6.1 to 6.2, 3GPP TS 27.007 5.5, 5.9 and 9.1.
#include "at/commandtable.h"
#include "at/errors.h"

#include <array>

namespace cardemu
{

namespace
{

template <bool PortSettings::*setting, bool whenOne> Answer switchBasic(const Request &request)
{
    const auto value = request.arguments().number(0, 0, 0, 1);
    if (!value)
        return error();
    request.port.*setting = (*value == 1) == whenOne;
    return ok();
}

Answer reset(const Request &request)
{
    request.port = PortSettings::atPowerUp(request.state().line);
    return ok();
}

QByteArray threeDigits(int value)
{
    return QByteArray::number(value).rightJustified(3, '0');
}

using EditCharacter = char PortSettings::*;

// S3, S4 and S5, the characters that the line itself is made with.
EditCharacter editCharacter(int number)
{
    constexpr std::array<EditCharacter, 3> characters = {&PortSettings::lineEnd, &PortSettings::lineFeed,
                                                         &PortSettings::backspace};
    return number >= 3 && number <= 5 ? characters[static_cast<size_t>(number - 3)] : nullptr;
}

constexpr int highestRegister = 30;

Answer readRegister(const Request &request)
{
    const int number = request.arguments().number(0).value_or(-1);
    if (number < 0 || number > highestRegister)
        return error();
    if (const EditCharacter character = editCharacter(number))
        return ok(threeDigits(static_cast<unsigned char>(request.port.*character)));
    return ok(threeDigits(request.port.registers.value(number)));
}

Answer setRegister(const Request &request)
{
    const int number = request.arguments().number(0).value_or(-1);
    const auto value = request.arguments().number(1, 0, 0, 255);
    if (number < 0 || number > highestRegister || !value)
        return error();
    const EditCharacter character = editCharacter(number);
    if (character != nullptr && *value > 127)
        return error();
    if (character != nullptr)
        request.port.*character = static_cast<char>(*value);
    else
        request.port.registers[number] = *value;
    return ok();
}

Answer readErrorMode(const Request &request)
{
    return ok("+CMEE: " + QByteArray::number(request.port.errorMode));
}

Answer setErrorMode(const Request &request)
{
    const auto mode = request.arguments().number(0, 0, 0, 2);
    if (!mode)
        return cmeError(cme::incorrectParameters);
    request.port.errorMode = *mode;
    return ok();
}

constexpr std::array charsetNames = {"IRA", "GSM", "UCS2"};

Answer readCharset(const Request &request)
{
    return ok(QByteArray("+CSCS: \"") + charsetNames[static_cast<size_t>(request.port.charset)] + '"');
}

Answer setCharset(const Request &request)
{
    for (size_t i = 0; i < charsetNames.size(); ++i) {
        if (request.arguments().text(0) == charsetNames[i]) {
            request.port.charset = static_cast<Charset>(i);
            return ok();
        }
    }
    return cmeError(cme::incorrectParameters);
}

Answer listCommands(const Request &request)
{
    return ok(commandNames(request.state()));
}

constexpr std::array table = {
    CommandRow{"E", Form::Exec, everyFamily, Needs::Nothing, switchBasic<&PortSettings::echo, true>},
    CommandRow{"Q", Form::Exec, everyFamily, Needs::Nothing, switchBasic<&PortSettings::quiet, true>},
    CommandRow{"V", Form::Exec, everyFamily, Needs::Nothing, switchBasic<&PortSettings::verbose, true>},
    CommandRow{"X", Form::Exec, everyFamily, Needs::Nothing, accept},
    CommandRow{"L", Form::Exec, everyFamily, Needs::Nothing, accept},
    CommandRow{"M", Form::Exec, everyFamily, Needs::Nothing, accept},
    CommandRow{"&C", Form::Exec, everyFamily, Needs::Nothing, accept},
    CommandRow{"&D", Form::Exec, everyFamily, Needs::Nothing, accept},
    CommandRow{"&K", Form::Exec, everyFamily, Needs::Nothing, accept},
    CommandRow{"&W", Form::Exec, everyFamily, Needs::Nothing, accept},
    CommandRow{"Z", Form::Exec, everyFamily, Needs::Nothing, reset},
    CommandRow{"&F", Form::Exec, everyFamily, Needs::Nothing, reset},
    CommandRow{"S", Form::Read, everyFamily, Needs::Nothing, readRegister},
    CommandRow{"S", Form::Set, everyFamily, Needs::Nothing, setRegister},
    CommandRow{"+CMEE", Form::Read, everyFamily, Needs::Nothing, readErrorMode},
    CommandRow{"+CMEE", Form::Set, everyFamily, Needs::Nothing, setErrorMode},
    CommandRow{"+CMEE", Form::Test, everyFamily, Needs::Nothing, "+CMEE: (0-2)"},
    CommandRow{"+CSCS", Form::Read, everyFamily, Needs::Nothing, readCharset},
    CommandRow{"+CSCS", Form::Set, everyFamily, Needs::Nothing, setCharset},
    CommandRow{"+CSCS", Form::Test, everyFamily, Needs::Nothing, "+CSCS: (\"IRA\",\"GSM\",\"UCS2\")"},
    CommandRow{"+CLAC", Form::Exec, everyFamily, Needs::Nothing, listCommands},
    CommandRow{"+GCAP", Form::Exec, gsmLike, Needs::Nothing, "+GCAP: +CGSM,+DS,+ES"},
    CommandRow{"+GCAP", Form::Exec, cdmaOnly, Needs::Nothing, "+GCAP: +CIS707-A,+MS,+ES,+DS"},
    CommandRow{"+WS46", Form::Read, gsmLike, Needs::Nothing, "25"},
    CommandRow{"+WS46", Form::Test, gsmLike, Needs::Nothing, "(12,22,25)"},
    CommandRow{"+WS46", Form::Set, gsmLike, Needs::Nothing, accept},
    CommandRow{"+FCLASS", Form::Read, everyFamily, Needs::Nothing, "+FCLASS: 0"},
    CommandRow{"+FCLASS", Form::Test, everyFamily, Needs::Nothing, "+FCLASS: (0)"},
    CommandRow{"+FCLASS", Form::Set, everyFamily, Needs::Nothing, accept},
    CommandRow{"+IPR", Form::Read, everyFamily, Needs::Nothing, "+IPR: 115200"},
    CommandRow{"+IPR", Form::Test, everyFamily, Needs::Nothing, "+IPR: (),(9600,115200,460800)"},
    CommandRow{"+IPR", Form::Set, everyFamily, Needs::Nothing, accept},
    CommandRow{"+ICF", Form::Read, everyFamily, Needs::Nothing, "+ICF: 3,3"},
    CommandRow{"+IFC", Form::Read, everyFamily, Needs::Nothing, "+IFC: 2,2"},
    CommandRow{"+IFC", Form::Set, everyFamily, Needs::Nothing, accept},
};

} // namespace

std::span<const CommandRow> generalCommands()
{
    return table;
}

} // namespace cardemu
