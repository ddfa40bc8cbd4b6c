// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/cardstate.h"

#include <QString>

namespace corva
{

/// How third generation networks are named, by key "naming3GToH" of section "function".
enum class Naming3G {
    ThreeG, ///< all of them "3G"
    H       ///< the fast ones "H" and "H+", the others "3G"
};
Naming3G naming3GFromNumber(int naming3GToH);

/// The few letters of the top bar: "2G"-age networks by their own names, then "3G", "H", "H+", "4G". Empty
/// without a network.
QString networkTypeShort(NetworkType type, Naming3G naming);
/// The standard's own name: "HSPA+". Empty without a network.
QString networkTypeName(NetworkType type);

/// What people call the state; empty for an unknown one.
QString simText(SimState sim);
QString registrationText(Registration registration);
QString serviceText(ServiceState service);

/// "-73 dBm" in the person's locale; empty when no signal was measured.
QString signalText(const CardState &state);
/// "-73 dBm, 4 of 5 bars".
QString signalWithBarsText(const CardState &state);

/// Whether a network took the card in.
bool isRegistered(const CardState &state);
/// What the network is called, by the rules of the configuration; empty without a network.
QString operatorText(const CardState &state);
/// What the whole state comes to in a few words, for the status strip and the tray: "Offline: No SIM card" or
/// "Operator, HSPA".
QString summaryText(const CardState &state);

} // namespace corva
