// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/cardstate.h"

namespace corva
{

/// Which names are shown whatever the SIM says: the four keys of section "plmn_display_setting". "Never" goes
/// over "always".
struct OperatorNameRules {
    bool networkAlways = false;  ///< "isPNNAlwaysShow"
    bool networkNever = false;   ///< "isPNNNeverShow"
    bool providerAlways = false; ///< "isSPNAlwaysShow"
    bool providerNever = false;  ///< "isSPNNeverShow"

    static OperatorNameRules fromConfiguration();
};

/// What the network is called: its own name, the name of the SIM's provider, or both as "Provider (Network)".
/// At home the provider's, and the network's beside it if the SIM wants it; abroad the network's, and the
/// provider's in front unless the SIM forbids it. The network's code where no name is left; empty without a
/// network. 3GPP TS 31.102 4.2.12, TS 22.101 A.4.
QString operatorNameOf(const CardState &state, const OperatorNameRules &rules);

} // namespace corva
