// SPDX-License-Identifier: GPL-3.0-or-later
// USSD: 3GPP TS 27.007 7.15.
#include "at/commandtable.h"
#include "at/errors.h"

#include <array>

namespace cardemu
{

namespace
{

Answer readReports(const Request &request)
{
    return ok("+CUSD: " + QByteArray::number(request.port.ussdReports));
}

// 0 and 1 switch the reports, 2 ends the dialogue; a text is a request to the network, whose answer comes
// later.
Answer setReports(const Request &request)
{
    constexpr int endDialogue = 2;
    const auto mode = request.arguments().number(0, request.port.ussdReports, 0, endDialogue);
    if (!mode)
        return cmeError(cme::incorrectParameters);
    if (*mode != endDialogue)
        request.port.ussdReports = *mode;
    if (!request.arguments().has(1))
        return ok();
    if (!request.card.isRegistered())
        return cmeError(cme::noNetworkService);
    const QString code = fromWire(request.arguments().text(1), request.port.charset);
    if (request.port.ussdReports == 1)
        request.card.requestUssd(code, request.port.charset);
    return ok();
}

constexpr std::array table = {
    CommandRow{"+CUSD", Form::Read, gsmLike, Needs::Nothing, readReports},
    CommandRow{"+CUSD", Form::Set, gsmLike, Needs::Sim, setReports},
    CommandRow{"+CUSD", Form::Test, gsmLike, Needs::Nothing, "+CUSD: (0-2)"},
};

} // namespace

std::span<const CommandRow> ussdCommands()
{
    return table;
}

} // namespace cardemu
