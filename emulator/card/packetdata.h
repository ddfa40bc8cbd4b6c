// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "card/scheduler.h"
#include "card/state.h"

#include <QProcess>
#include <optional>

namespace cardemu
{

class Card;

/// The packet data contexts that the card brings up itself, for its network interface: their states, the
/// reports about them ("+JPDPACT: <context>,<state>") and the hook that stands for the network.
class PacketData : public QObject
{
    Q_OBJECT

public:
    explicit PacketData(Card &card);
    ~PacketData() override;

    /// Why this context cannot come up: a "+CME ERROR" number; nullopt when the network lets it.
    std::optional<int> refusal(int context) const;
    /// The context must be defined. One that is up, or being made, is only reported again.
    void activate(int context);
    void deactivate(int context);
    /// Every context that is up goes down, with reports where somebody can hear them. False: none was up.
    bool deactivateAll(bool reports);

private:
    struct HookCall {
        int context;
        bool up;
    };

    PacketContext *find(int context) const;
    void setState(int context, ContextState state, bool reports = true);
    void makeUp(int context);
    void callHook(int context, bool up);
    void runNextHook();
    void hookEnded();

    Card &m_card;
    CardTimer m_delay;
    QProcess m_hook;
    QList<HookCall> m_calls; ///< the first one runs
};

} // namespace cardemu
