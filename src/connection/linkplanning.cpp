// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/linkplanning.h"

#include "connection/connectionservice.h"
#include "connection/dialleroptions.h"
#include "connection/dialuplink.h"
#include "connection/networkcard.h"
#include "connection/networkcardlink.h"
#include "link/cardstate.h"

#include <QFileInfo>

namespace corva
{

namespace
{

/// By the network interface where the profile wants that, or leaves it to the card and the card has one.
LinkKind kindOf(const ConnectionProfile &profile, const QString &interfaceName)
{
    const bool hasInterface = profile.linkKind() == LinkKind::Automatic && !interfaceName.isEmpty();
    return profile.linkKind() == LinkKind::NetworkCard || hasInterface ? LinkKind::NetworkCard
                                                                       : LinkKind::DialUp;
}

} // namespace

PlannedLink planLink(const ConnectionProfile &profile, const CardState &card, const DiallerOptions &options)
{
    PlannedLink planned;
    LinkPlan &plan = planned.plan;
    plan.profile = profile;
    plan.modemPort = QFileInfo(card.modemPortName).canonicalFilePath();
    if (profile.linkKind() != LinkKind::DialUp)
        plan.interfaceName =
            options.networkInterface.isEmpty() ? networkCardOf(plan.modemPort) : options.networkInterface;
    plan.hasContexts = card.family != CardFamily::Cdma;
    plan.options = options.ppp;
    plan.limit = options.dialTimeout;
    plan.showsExitCode = options.showsExitCode;

    planned.kind = kindOf(profile, plan.interfaceName);
    const bool isNetworkCard = planned.kind == LinkKind::NetworkCard;
    plan.contextId = isNetworkCard ? DataCall::contextId : options.contextId;
    if (isNetworkCard && plan.interfaceName.isEmpty())
        planned.refusal = ConnectionService::tr(
            "This card has no network interface. Please choose dial-up in the profile.");
    if (!isNetworkCard && plan.modemPort.isEmpty())
        planned.refusal = ConnectionService::tr("The card has no data port that could be dialled on.");
    return planned;
}

DataLink *makeLink(const PlannedLink &planned, const DiallerOptions &options, CardMonitor &monitor,
                   DiallerBackend &backend, const DataLink::Facts &facts, QObject *parent)
{
    if (planned.kind == LinkKind::NetworkCard)
        return new NetworkCardLink(monitor, backend, facts, planned.plan, parent);
    auto *link = new DialUpLink(monitor, backend, facts, planned.plan, parent);
    link->setLinkFiles(options.linkFiles);
    return link;
}

} // namespace corva
