// SPDX-License-Identifier: GPL-3.0-or-later
// Dialling and calls: ITU-T V.250 6.3, 3GPP TS 27.007 6.5, 6.11, 7.6 and 7.18.
#include "at/commandtable.h"
#include "at/errors.h"
#include "at/replies.h"

#include <QRegularExpression>
#include <array>

namespace cardemu
{

namespace
{

struct DialOutcome {
    DialResult result;
    Final::Kind kind;
};

constexpr std::array dialOutcomes = {
    DialOutcome{DialResult::Connect, Final::Kind::Connect},
    DialOutcome{DialResult::NoCarrier, Final::Kind::NoCarrier},
    DialOutcome{DialResult::Busy, Final::Kind::Busy},
    DialOutcome{DialResult::NoAnswer, Final::Kind::NoAnswer},
    DialOutcome{DialResult::NoDialtone, Final::Kind::NoDialtone},
    DialOutcome{DialResult::Error, Final::Kind::Error},
    DialOutcome{DialResult::Silence, Final::Kind::Pending},
    DialOutcome{DialResult::ConnectThenSilence, Final::Kind::Connect},
};

// "*99***2#" dials context 2, "*98*2#" too, anything else context 1. 3GPP TS 27.007 10.2.1.1.
int dialledContext(const QByteArray &number)
{
    static const QRegularExpression numbered(QStringLiteral("^[TP]?\\*(?:99\\*[^*]*\\*[^*]*|98)\\*(\\d+)#"),
                                             QRegularExpression::CaseInsensitiveOption);
    const auto match = numbered.match(QString::fromLatin1(number));
    return match.hasMatch() ? match.captured(1).toInt() : 1;
}

Answer dial(const Request &request)
{
    if (request.card.packetData().refusal(dialledContext(request.arguments().text(0))))
        return result(Final::Kind::NoCarrier);
    const DialResult wanted = request.state().line.dialResult;
    return result(std::ranges::find(dialOutcomes, wanted, &DialOutcome::result)->kind);
}

Answer answerCall(const Request &request)
{
    if (request.state().call.state != CallState::Ringing)
        return result(Final::Kind::NoCarrier);
    request.card.answer();
    return ok();
}

Answer hangUp(const Request &request)
{
    request.port.dataSuspended = false;
    request.card.hangUp();
    return ok();
}

Answer backToData(const Request &request)
{
    return result(request.port.dataSuspended ? Final::Kind::Connect : Final::Kind::NoCarrier);
}

template <bool PortSettings::*setting> Answer setSwitch(const Request &request)
{
    const auto value = request.arguments().number(0, 0, 0, 1);
    if (!value)
        return cmeError(cme::incorrectParameters);
    request.port.*setting = *value == 1;
    return ok();
}

Answer readCallerNumber(const Request &request)
{
    return ok(QByteArray("+CLIP: ") + (request.port.callerNumber ? '1' : '0') + ",1");
}

Answer readExtendedRing(const Request &request)
{
    return ok(QByteArray("+CRC: ") + (request.port.extendedRing ? '1' : '0'));
}

// "<id>,<dir>,<stat>,<mode>,<mpty>": the one call there can be comes from outside and is a voice call.
Answer listCalls(const Request &request)
{
    const Call &call = request.state().call;
    if (call.state == CallState::Idle)
        return ok();
    const QByteArray head = call.state == CallState::Ringing ? "+CLCC: 1,1,4,0,0" : "+CLCC: 1,1,0,0,0";
    return ok(call.number.isEmpty()
                  ? head
                  : head + ",\"" + call.number.toLatin1() + "\"," + numberType(call.number));
}

constexpr std::array table = {
    CommandRow{"D", Form::Exec, everyFamily, Needs::Sim, dial},
    CommandRow{"A", Form::Exec, everyFamily, Needs::Nothing, answerCall},
    CommandRow{"H", Form::Exec, everyFamily, Needs::Nothing, hangUp},
    CommandRow{"O", Form::Exec, everyFamily, Needs::Nothing, backToData},
    CommandRow{"+CHUP", Form::Exec, everyFamily, Needs::Nothing, hangUp},
    CommandRow{"+CLIP", Form::Read, gsmLike, Needs::Nothing, readCallerNumber},
    CommandRow{"+CLIP", Form::Set, gsmLike, Needs::Nothing, setSwitch<&PortSettings::callerNumber>},
    CommandRow{"+CLIP", Form::Test, gsmLike, Needs::Nothing, "+CLIP: (0,1)"},
    CommandRow{"+CRC", Form::Read, everyFamily, Needs::Nothing, readExtendedRing},
    CommandRow{"+CRC", Form::Set, everyFamily, Needs::Nothing, setSwitch<&PortSettings::extendedRing>},
    CommandRow{"+CRC", Form::Test, everyFamily, Needs::Nothing, "+CRC: (0,1)"},
    CommandRow{"+CLCC", Form::Exec, everyFamily, Needs::Nothing, listCalls},
};

} // namespace

std::span<const CommandRow> callCommands()
{
    return table;
}

} // namespace cardemu
