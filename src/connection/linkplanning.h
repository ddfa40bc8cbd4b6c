// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/datalink.h"

#include <QString>

namespace corva
{

struct CardState;
struct DiallerOptions;

/// Which way a profile is connected by with the card that is there.
struct PlannedLink {
    LinkKind kind = LinkKind::DialUp; ///< never Automatic
    LinkPlan plan;
    QString refusal; ///< why it cannot be, as a sentence; empty when it can
};

PlannedLink planLink(const ConnectionProfile &profile, const CardState &card, const DiallerOptions &options);

/// The link of a plan that is not refused; a child of `parent`.
DataLink *makeLink(const PlannedLink &planned, const DiallerOptions &options, CardMonitor &monitor,
                   DiallerBackend &backend, const DataLink::Facts &facts, QObject *parent);

} // namespace corva
