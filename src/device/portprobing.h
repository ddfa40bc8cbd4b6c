// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/cardfinder.h"

namespace corva
{

/// Probes one port, unless another program has it by lock file or it can be no serial port. The result has
/// `presence`, `port` and, when it is ready, `ports.at`.
FoundCard probePort(const QString &port, const PortProbe &probe);

/// Why a port cannot be one, from its file and the errno of opening it. `None` where another reason is at
/// work.
PortFault portFault(const QString &port, int openError);

/// Probes ports in order until two have answered: the first is then taken for data, the second for commands,
/// as most cards have it, so that commands go on during a connection. One that answers alone serves for both.
/// When none answers, the one that came nearest.
FoundCard probePorts(const QStringList &ports, const PortProbe &probe);

/// Whichever comes nearer to a card that works; the first of equals.
FoundCard nearer(const FoundCard &first, const FoundCard &second);

/// Adds what a person needs to know about a port that is not ready: who holds it, which group may open it. A
/// silent port that another program has open counts as busy, since that program gets the card's answers.
FoundCard withReason(FoundCard card);

} // namespace corva
