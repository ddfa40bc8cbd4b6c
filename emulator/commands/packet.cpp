// SPDX-License-Identifier: GPL-3.0-or-later
// Packet data contexts: 3GPP TS 27.007 10.1.1, 10.1.10 and 10.1.14, and the maker's own "+JPDPACT".
#include "at/commandtable.h"
#include "at/errors.h"

#include <array>

namespace cardemu
{

namespace
{

using namespace Qt::StringLiterals;

constexpr int highestContext = 16;

bool isUp(const Request &request, int context)
{
    return request.state().contexts.value(context).state == ContextState::Up;
}

Answer readContexts(const Request &request)
{
    QByteArrayList lines;
    const auto &contexts = request.state().contexts;
    for (auto context = contexts.begin(); context != contexts.end(); ++context)
        lines += "+CGDCONT: " + QByteArray::number(context.key()) + ",\"" + context->type.toLatin1() +
                 "\",\"" + toWire(context->accessPoint, Charset::Ira) + "\",\"\",0,0";
    return ok(lines);
}

// A number alone takes the definition away. A context that is up cannot be changed.
Answer defineContext(const Request &request)
{
    const Arguments &arguments = request.arguments();
    const auto id = arguments.number(0, 1, 1, highestContext);
    if (!id)
        return cmeError(cme::incorrectParameters);
    if (isUp(request, *id))
        return cmeError(cme::notAllowed);
    if (arguments.count() == 1) {
        request.state().contexts.remove(*id);
        return ok();
    }
    const QString type = QString::fromLatin1(arguments.text(1));
    if (type != u"IP"_s && type != u"IPV6"_s && type != u"IPV4V6"_s && type != u"PPP"_s)
        return cmeError(cme::incorrectParameters);
    request.state().contexts[*id] = {type, QString::fromUtf8(arguments.text(2))};
    return ok();
}

Answer readActivation(const Request &request)
{
    QByteArrayList lines;
    const auto &contexts = request.state().contexts;
    for (auto context = contexts.begin(); context != contexts.end(); ++context)
        lines += "+CGACT: " + QByteArray::number(context.key()) +
                 (context->state == ContextState::Up ? ",1" : ",0");
    return ok(lines);
}

Answer activate(const Request &request)
{
    const auto wanted = request.arguments().number(0, -1, 0, 1);
    const int context = request.arguments().number(1).value_or(1);
    if (!wanted || !request.state().contexts.contains(context))
        return cmeError(cme::incorrectParameters);
    PacketData &data = request.card.packetData();
    if (*wanted == 0)
        data.deactivate(context);
    else if (const auto refusal = data.refusal(context))
        return cmeError(*refusal);
    else
        data.activate(context);
    return ok();
}

Answer readDataCalls(const Request &request)
{
    QByteArrayList lines;
    const auto &contexts = request.state().contexts;
    for (auto context = contexts.begin(); context != contexts.end(); ++context)
        lines +=
            "+JPDPACT: " + QByteArray::number(context.key()) + ',' + QByteArray::number(int(context->state));
    return ok(lines);
}

// The command only starts it; how it goes on, the network's refusal too, is reported.
Answer setDataCall(const Request &request)
{
    const auto context = request.arguments().number(0, -1, 1, highestContext);
    const auto wanted = request.arguments().number(1, -1, 0, 1);
    if (!context || !wanted || !request.state().contexts.contains(*context))
        return cmeError(cme::incorrectParameters);
    if (*wanted == 1)
        request.card.packetData().activate(*context);
    else
        request.card.packetData().deactivate(*context);
    return ok();
}

// Without one of their own, addresses are of the block that is kept for documentation.
Answer addresses(const Request &request)
{
    QByteArrayList lines;
    const auto wanted = request.arguments().number(0);
    const auto &contexts = request.state().contexts;
    for (auto context = contexts.begin(); context != contexts.end(); ++context) {
        if (wanted && *wanted != context.key())
            continue;
        const QByteArray id = QByteArray::number(context.key());
        const QByteArray own = request.state().data.address.toLatin1();
        const QByteArray address = own.isEmpty() ? "192.0.2." + id : own;
        lines +=
            "+CGPADDR: " + id + (context->state == ContextState::Up ? ",\"" + address + '"' : QByteArray());
    }
    return ok(lines);
}

constexpr std::array table = {
    CommandRow{"+CGDCONT", Form::Read, gsmLike, Needs::Sim, readContexts},
    CommandRow{"+CGDCONT", Form::Set, gsmLike, Needs::Sim, defineContext},
    CommandRow{"+CGDCONT", Form::Test, gsmLike, Needs::Nothing, "+CGDCONT: (1-16),\"IP\",,,(0-2),(0-4)"},
    CommandRow{"+CGACT", Form::Read, gsmLike, Needs::Sim, readActivation},
    CommandRow{"+CGACT", Form::Set, gsmLike, Needs::Sim, activate},
    CommandRow{"+CGACT", Form::Test, gsmLike, Needs::Nothing, "+CGACT: (0,1)"},
    CommandRow{"+CGPADDR", Form::Exec, gsmLike, Needs::Sim, addresses},
    CommandRow{"+CGPADDR", Form::Set, gsmLike, Needs::Sim, addresses},
    CommandRow{"+JPDPACT", Form::Read, gsmLike, Needs::Sim, readDataCalls},
    CommandRow{"+JPDPACT", Form::Set, gsmLike, Needs::Sim, setDataCall},
    CommandRow{"+JPDPACT", Form::Test, gsmLike, Needs::Nothing, "+JPDPACT: (1-16),(0,1)"},
};

} // namespace

std::span<const CommandRow> packetCommands()
{
    return table;
}

} // namespace cardemu
