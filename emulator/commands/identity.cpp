// SPDX-License-Identifier: GPL-3.0-or-later
// Who the card is: ITU-T V.250 6.1, 3GPP TS 27.007 5.1 to 5.4.
#include "at/commandtable.h"

#include <array>

namespace cardemu
{

namespace
{

template <QString Identity::*text> Answer tell(const Request &request)
{
    return ok(toWire(request.state().identity.*text, Charset::Ira));
}

// The maker's cards put the command's name in front; by the standard the text stands alone.
Answer firmware(const Request &request)
{
    const QByteArray prefix = request.state().makerCommands ? "+CGMR: " : "";
    return ok(prefix + toWire(request.state().identity.revision, Charset::Ira));
}

Answer information(const Request &request)
{
    const Identity &identity = request.state().identity;
    return ok({"Manufacturer: " + toWire(identity.manufacturer, Charset::Ira),
               "Model: " + toWire(identity.model, Charset::Ira),
               "Revision: " + toWire(identity.revision, Charset::Ira),
               "IMEI: " + toWire(identity.serial, Charset::Ira)});
}

constexpr std::array table = {
    CommandRow{"I", Form::Exec, everyFamily, Needs::Nothing, information},
    CommandRow{"+CGMI", Form::Exec, everyFamily, Needs::Nothing, tell<&Identity::manufacturer>},
    CommandRow{"+GMI", Form::Exec, everyFamily, Needs::Nothing, tell<&Identity::manufacturer>},
    CommandRow{"+CGMM", Form::Exec, everyFamily, Needs::Nothing, tell<&Identity::model>},
    CommandRow{"+GMM", Form::Exec, everyFamily, Needs::Nothing, tell<&Identity::model>},
    CommandRow{"+CGMR", Form::Exec, everyFamily, Needs::Nothing, firmware},
    CommandRow{"+GMR", Form::Exec, everyFamily, Needs::Nothing, tell<&Identity::revision>},
    CommandRow{"+CGSN", Form::Exec, everyFamily, Needs::Nothing, tell<&Identity::serial>},
    CommandRow{"+GSN", Form::Exec, everyFamily, Needs::Nothing, tell<&Identity::serial>},
};

} // namespace

std::span<const CommandRow> identityCommands()
{
    return table;
}

} // namespace cardemu
