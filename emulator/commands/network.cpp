// SPDX-License-Identifier: GPL-3.0-or-later
// The network: 3GPP TS 27.007 7.2, 7.3, 8.5, 10.1.9 and 10.1.20.
#include "at/commandtable.h"
#include "at/errors.h"
#include "at/replies.h"

#include <array>

namespace cardemu
{

namespace
{

using namespace Qt::StringLiterals;

Answer signalQuality(const Request &request)
{
    const Radio &radio = request.state().radio;
    const bool heard = request.card.isRadioOn() && request.state().network.service != Service::None;
    return ok("+CSQ: " + QByteArray::number(heard ? radio.rssi : 99) + ',' +
              QByteArray::number(heard ? radio.bitErrors : 99));
}

template <int PortSettings::*mode> Answer readRegistration(const Request &request)
{
    return ok(request.command.name + ": " + QByteArray::number(request.port.*mode) + ',' +
              registrationText(request.card, request.port.*mode));
}

template <int PortSettings::*mode> Answer setRegistration(const Request &request)
{
    const auto wanted = request.arguments().number(0, 0, 0, 2);
    if (!wanted)
        return cmeError(cme::incorrectParameters);
    request.port.*mode = *wanted;
    return ok();
}

QByteArray inQuotes(const QString &text, Charset charset)
{
    return '"' + toWire(text, charset) + '"';
}

QByteArray operatorName(const Operator &serving, const PortSettings &port)
{
    if (port.operatorFormat == 2)
        return '"' + serving.plmn.toLatin1() + '"';
    return inQuotes(port.operatorFormat == 0 ? serving.longName : serving.shortName, port.charset);
}

Answer readOperator(const Request &request)
{
    const QByteArray mode = "+COPS: " + QByteArray::number(request.state().network.selection);
    const Operator *serving = request.card.isRegistered() ? request.card.currentOperator() : nullptr;
    if (serving == nullptr)
        return ok(mode);
    return ok(mode + ',' + QByteArray::number(request.port.operatorFormat) + ',' +
              operatorName(*serving, request.port) + ',' + QByteArray::number(serving->access));
}

OperatorStatus statusOf(const Operator &candidate, const Card &card)
{
    if (candidate.forbidden)
        return OperatorStatus::Forbidden;
    const bool serves = card.isRegistered() && card.state().network.current == candidate.plmn;
    return serves ? OperatorStatus::Current : OperatorStatus::Available;
}

Answer searchOperators(const Request &request)
{
    if (!request.card.isRadioOn())
        return cmeError(cme::noNetworkService);
    QByteArray list;
    for (const Operator &candidate : request.state().network.operators) {
        list += '(' + QByteArray::number(static_cast<int>(statusOf(candidate, request.card))) + ',' +
                inQuotes(candidate.longName, request.port.charset) + ',' +
                inQuotes(candidate.shortName, request.port.charset) + ",\"" + candidate.plmn.toLatin1() +
                "\"," + QByteArray::number(candidate.access) + "),";
    }
    return ok("+COPS: " + list + ",(0-4),(0-2)");
}

Answer chooseAutomatically(const Request &request, int)
{
    request.card.selectAutomatically();
    return ok();
}

Answer chooseByHand(const Request &request, int format)
{
    const Charset charset = format == 2 ? Charset::Ira : request.port.charset;
    return request.card.selectOperator(format, fromWire(request.arguments().text(2), charset));
}

Answer leaveNetwork(const Request &request, int)
{
    request.card.deregister();
    return ok();
}

Answer chooseFormat(const Request &request, int format)
{
    request.port.operatorFormat = format;
    return ok();
}

Answer chooseByHandElseAutomatically(const Request &request, int format)
{
    const Answer answer = chooseByHand(request, format);
    return answer.final.isSuccess() ? answer : chooseAutomatically(request, format);
}

Answer selectOperator(const Request &request)
{
    using Selection = Answer (*)(const Request &, int);
    constexpr std::array<Selection, 5> modes = {chooseAutomatically, chooseByHand, leaveNetwork, chooseFormat,
                                                chooseByHandElseAutomatically};
    const auto mode = request.arguments().number(0, 0, 0, 4);
    const auto format = request.arguments().number(1, 0, 0, 2);
    if (!mode || !format)
        return cmeError(cme::incorrectParameters);
    if (*mode != 3) {
        if (const auto refusal = request.card.simError())
            return cmeError(*refusal);
    }
    return modes[static_cast<size_t>(*mode)](request, *format);
}

Answer readAttachment(const Request &request)
{
    const bool attached = request.card.isRegistered() && request.state().network.attached;
    return ok(QByteArray("+CGATT: ") + (attached ? '1' : '0'));
}

Answer setAttachment(const Request &request)
{
    const auto wanted = request.arguments().number(0, -1, 0, 1);
    if (!wanted)
        return cmeError(cme::incorrectParameters);
    if (*wanted == 1 && !request.card.isRegistered())
        return cmeError(cme::noNetworkService);
    request.state().network.attached = *wanted == 1;
    return ok();
}

constexpr std::array table = {
    CommandRow{"+CSQ", Form::Exec, everyFamily, Needs::Nothing, signalQuality},
    CommandRow{"+CSQ", Form::Test, everyFamily, Needs::Nothing, "+CSQ: (0-31,99),(0-7,99)"},
    CommandRow{"+CREG", Form::Read, everyFamily, Needs::Nothing,
               readRegistration<&PortSettings::registrationReports>},
    CommandRow{"+CREG", Form::Set, everyFamily, Needs::Nothing,
               setRegistration<&PortSettings::registrationReports>},
    CommandRow{"+CREG", Form::Test, everyFamily, Needs::Nothing, "+CREG: (0-2)"},
    CommandRow{"+CGREG", Form::Read, gsmLike, Needs::Nothing,
               readRegistration<&PortSettings::packetRegistrationReports>},
    CommandRow{"+CGREG", Form::Set, gsmLike, Needs::Nothing,
               setRegistration<&PortSettings::packetRegistrationReports>},
    CommandRow{"+CGREG", Form::Test, gsmLike, Needs::Nothing, "+CGREG: (0-2)"},
    CommandRow{"+CGATT", Form::Read, gsmLike, Needs::Nothing, readAttachment},
    CommandRow{"+CGATT", Form::Set, gsmLike, Needs::Sim, setAttachment},
    CommandRow{"+CGATT", Form::Test, gsmLike, Needs::Nothing, "+CGATT: (0,1)"},
    CommandRow{"+COPS", Form::Read, gsmLike, Needs::Nothing, readOperator},
    CommandRow{"+COPS", Form::Set, gsmLike, Needs::Nothing, selectOperator},
    CommandRow{"+COPS", Form::Test, gsmLike, Needs::Sim, searchOperators},
};

} // namespace

std::span<const CommandRow> networkCommands()
{
    return table;
}

} // namespace cardemu
