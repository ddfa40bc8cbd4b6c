// SPDX-License-Identifier: GPL-3.0-or-later
#include "card/packetdata.h"

#include "at/errors.h"
#include "card/card.h"

#include <csignal>

namespace cardemu
{

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

PacketData::PacketData(Card &card) : m_card(card), m_delay(card.scheduler())
{
    m_hook.setProcessChannelMode(QProcess::ForwardedChannels);
    // The program may keep signals blocked that the hook must get.
    m_hook.setChildProcessModifier([] {
        sigset_t none;
        sigemptyset(&none);
        sigprocmask(SIG_SETMASK, &none, nullptr);
    });
    connect(&m_hook, &QProcess::finished, this, &PacketData::hookEnded);
}

PacketData::~PacketData()
{
    m_hook.disconnect(this);
    m_hook.kill();
    m_hook.waitForFinished();
}

PacketContext *PacketData::find(int context) const
{
    auto &contexts = m_card.state().contexts;
    const auto found = contexts.find(context);
    return found == contexts.end() ? nullptr : &*found;
}

std::optional<int> PacketData::refusal(int context) const
{
    const DataService &service = m_card.state().data;
    if (!m_card.isRegistered())
        return cme::noNetworkService;
    const PacketContext *wanted = find(context);
    const QString accessPoint = wanted == nullptr ? QString() : wanted->accessPoint;
    if (!service.accessPoint.isEmpty() && accessPoint.compare(service.accessPoint, Qt::CaseInsensitive) != 0)
        return cme::notSubscribed;
    return std::nullopt;
}

void PacketData::activate(int context)
{
    const ContextState now = find(context)->state;
    if (now == ContextState::Up || now == ContextState::BeingMade) {
        setState(context, now);
        return;
    }
    setState(context, ContextState::BeingMade);
    const DataService &service = m_card.state().data;
    if (service.activation == ActivationResult::Silence)
        return;
    const bool refused = service.activation == ActivationResult::Refused || refusal(context).has_value();
    m_delay.start(milliseconds(service.activationDelay), [this, context, refused] {
        if (refused)
            setState(context, ContextState::Refused);
        else
            makeUp(context);
    });
}

void PacketData::makeUp(int context)
{
    if (m_card.state().data.hook.isEmpty())
        setState(context, ContextState::Up);
    else
        callHook(context, true);
}

void PacketData::deactivate(int context)
{
    setState(context, ContextState::Down);
    callHook(context, false);
}

bool PacketData::deactivateAll(bool reports)
{
    m_delay.stop();
    bool any = false;
    for (const int context : m_card.state().contexts.keys()) {
        const bool wasUp = find(context)->state == ContextState::Up;
        setState(context, ContextState::Down, reports && wasUp);
        if (wasUp)
            callHook(context, false);
        any = any || wasUp;
    }
    return any;
}

void PacketData::setState(int context, ContextState state, bool reports)
{
    if (PacketContext *changed = find(context))
        changed->state = state;
    if (reports && m_card.state().makerCommands)
        m_card.report("+JPDPACT: " + QByteArray::number(context) + ',' + QByteArray::number(int(state)));
}

// One after another, in order: a "down" that overtook its "up" would leave the network up.
void PacketData::callHook(int context, bool up)
{
    if (m_card.state().data.hook.isEmpty())
        return;
    m_calls += {context, up};
    if (m_calls.size() == 1)
        runNextHook();
}

void PacketData::runNextHook()
{
    const HookCall &call = m_calls.first();
    const PacketContext *context = find(call.context);
    m_hook.start(u"/bin/sh"_s, {u"-c"_s, m_card.state().data.hook + u" \"$@\""_s, u"cardemu"_s,
                                call.up ? u"up"_s : u"down"_s, QString::number(call.context),
                                context == nullptr ? QString() : context->accessPoint});
}

void PacketData::hookEnded()
{
    const HookCall call = m_calls.takeFirst();
    const PacketContext *context = find(call.context);
    const bool worked = m_hook.exitStatus() == QProcess::NormalExit && m_hook.exitCode() == 0;
    if (call.up && context != nullptr && context->state == ContextState::BeingMade)
        setState(call.context, worked ? ContextState::Up : ContextState::Refused);
    if (!m_calls.isEmpty())
        runNextHook();
}

} // namespace cardemu
