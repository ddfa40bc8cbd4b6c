// SPDX-License-Identifier: GPL-3.0-or-later
// The maker's own status commands. Their reply forms are this emulator's choice; docs/emulator.md records
// them.
#include "at/commandtable.h"
#include "at/errors.h"

#include <array>

namespace cardemu
{

namespace
{

struct ServiceStatus {
    Service service;
    int status;
};

constexpr std::array serviceStatuses = {
    ServiceStatus{Service::Full, 2},      ServiceStatus{Service::Restricted, 1},
    ServiceStatus{Service::Searching, 0}, ServiceStatus{Service::Denied, 1},
    ServiceStatus{Service::Unknown, 0},   ServiceStatus{Service::None, 0},
};

// 0 none, 1 restricted, 2 full. A card that camps without a usable SIM has restricted service.
int serviceStatus(const Card &card)
{
    if (!card.isRadioOn())
        return 0;
    const int air =
        std::ranges::find(serviceStatuses, card.state().network.service, &ServiceStatus::service)->status;
    if (air == 2 && card.simError())
        return 1;
    return air == 2 && !card.isRegistered() ? 0 : air;
}

// 0 invalid (failed, or locked), 1 valid, 255 no card.
int simState(const Card &card)
{
    if (card.state().sim.condition == SimCondition::Absent)
        return 255;
    return card.simError() ? 0 : 1;
}

QByteArray commaList(std::initializer_list<int> numbers)
{
    QByteArrayList texts;
    for (const int number : numbers)
        texts += QByteArray::number(number);
    return texts.join(',');
}

Answer systemInformation(const Request &request)
{
    const Network &network = request.state().network;
    const int status = serviceStatus(request.card);
    const bool served = status != 0;
    const QByteArray common =
        commaList({status, status == 2 ? network.serviceDomain : 0, request.card.registration() == 5 ? 1 : 0,
                   served ? network.systemMode : 0, simState(request.card)});
    if (request.state().family == Family::Cdma)
        return ok("^SYSINFO:" + common);
    return ok("^SYSINFO:" + common + ',' + commaList({0, served ? network.systemSubmode : 0}));
}

Answer accessService(const Request &request)
{
    const Network &network = request.state().network;
    const int status = serviceStatus(request.card);
    return ok("+JPAS: " + commaList({status != 0 ? network.systemMode : 0, status,
                                     status != 0 ? network.systemSubmode : 0}));
}

Answer networkTime(const Request &request)
{
    if (!request.card.isRegistered())
        return cmeError(cme::noNetworkService);
    return ok("+JTIME: \"" + request.card.timeText() + '"');
}

template <QString Identity::*text> Answer version(const Request &request)
{
    return ok(request.command.name + ": " + toWire(request.state().identity.*text, Charset::Ira));
}

Answer readOperation(const Request &request)
{
    return ok(QByteArray("+JOPRT: ") + (request.card.isRadioOn() ? '1' : '0'));
}

Answer setOperation(const Request &request)
{
    constexpr int on = 5;
    constexpr int off = 6;
    constexpr int radioOff = 4;
    const int wanted = request.arguments().number(0).value_or(0);
    if (wanted != on && wanted != off)
        return cmeError(cme::incorrectParameters);
    request.card.setFunctionality(wanted == on ? 1 : radioOff);
    return ok();
}

Answer antenna(const Request &request)
{
    return ok("+JANT: " + QByteArray::number(request.state().radio.antenna));
}

Answer evdoSignal(const Request &request)
{
    return ok("^HDRCSQ: " + QByteArray::number(request.card.isRadioOn() ? request.state().radio.evdo : 0));
}

constexpr std::array table = {
    CommandRow{"^SYSINFO", Form::Exec, everyFamily, Needs::Nothing, systemInformation},
    CommandRow{"^HDRCSQ", Form::Exec, cdmaOnly, Needs::Nothing, evdoSignal},
    CommandRow{"+JPAS", Form::Read, everyFamily, Needs::Nothing, accessService},
    CommandRow{"+JTIME", Form::Read, everyFamily, Needs::Nothing, networkTime},
    CommandRow{"+JPCB", Form::Read, everyFamily, Needs::Nothing, version<&Identity::hardware>},
    CommandRow{"+JVN", Form::Exec, everyFamily, Needs::Nothing, version<&Identity::internalVersion>},
    CommandRow{"+JOPRT", Form::Read, everyFamily, Needs::Nothing, readOperation},
    CommandRow{"+JOPRT", Form::Set, everyFamily, Needs::Nothing, setOperation},
    CommandRow{"+JANT", Form::Read, everyFamily, Needs::Nothing, antenna},
};

} // namespace

std::span<const CommandRow> makerCommands()
{
    return table;
}

} // namespace cardemu
