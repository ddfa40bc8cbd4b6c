// SPDX-License-Identifier: GPL-3.0-or-later
// Packet data contexts: 3GPP TS 27.007 10.1.1, 10.1.10 and 10.1.14.
#include "at/commandtable.h"
#include "at/errors.h"

#include <array>

namespace cardemu
{

namespace
{

using namespace Qt::StringLiterals;

constexpr int highestContext = 16;

Answer readContexts(const Request &request)
{
    QByteArrayList lines;
    const auto &contexts = request.state().contexts;
    for (auto context = contexts.begin(); context != contexts.end(); ++context)
        lines += "+CGDCONT: " + QByteArray::number(context.key()) + ",\"" + context->type.toLatin1() +
                 "\",\"" + toWire(context->accessPoint, Charset::Ira) + "\",\"\",0,0";
    return ok(lines);
}

// A number alone takes the definition away.
Answer defineContext(const Request &request)
{
    const Arguments &arguments = request.arguments();
    const auto id = arguments.number(0, 1, 1, highestContext);
    if (!id)
        return cmeError(cme::incorrectParameters);
    if (arguments.count() == 1) {
        request.state().contexts.remove(*id);
        return ok();
    }
    const QString type = QString::fromLatin1(arguments.text(1));
    if (type != u"IP"_s && type != u"IPV6"_s && type != u"IPV4V6"_s && type != u"PPP"_s)
        return cmeError(cme::incorrectParameters);
    request.state().contexts[*id] = {type, QString::fromUtf8(arguments.text(2)), false};
    return ok();
}

Answer readActivation(const Request &request)
{
    QByteArrayList lines;
    const auto &contexts = request.state().contexts;
    for (auto context = contexts.begin(); context != contexts.end(); ++context)
        lines += "+CGACT: " + QByteArray::number(context.key()) + (context->active ? ",1" : ",0");
    return ok(lines);
}

Answer activate(const Request &request)
{
    const auto wanted = request.arguments().number(0, -1, 0, 1);
    const auto context = request.state().contexts.find(request.arguments().number(1).value_or(1));
    if (!wanted || context == request.state().contexts.end())
        return cmeError(cme::incorrectParameters);
    if (*wanted == 1 && !request.card.isRegistered())
        return cmeError(cme::noNetworkService);
    context->active = *wanted == 1;
    return ok();
}

// Addresses of the block that is kept for documentation, one for each context.
Answer addresses(const Request &request)
{
    QByteArrayList lines;
    const auto wanted = request.arguments().number(0);
    const auto &contexts = request.state().contexts;
    for (auto context = contexts.begin(); context != contexts.end(); ++context) {
        if (wanted && *wanted != context.key())
            continue;
        const QByteArray id = QByteArray::number(context.key());
        lines += "+CGPADDR: " + id + (context->active ? ",\"192.0.2." + id + '"' : QByteArray());
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
};

} // namespace

std::span<const CommandRow> packetCommands()
{
    return table;
}

} // namespace cardemu
