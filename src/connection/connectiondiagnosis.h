// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionprofile.h"
#include "connection/connectionstate.h"
#include "device/offlinediagnosis.h"

namespace corva
{

/// Walks all steps from the socket to the internet: those of the card, then profile, access point, dialler,
/// address, name servers and route. `profile` is the one that Connect would dial, std::nullopt where there is
/// none. The steps of a link that is up are told even where the card says that it is not in the network.
std::vector<DiagnosisStep> diagnose(const CardState &state, const ConnectionStatus &connection,
                                    const std::optional<ConnectionProfile> &profile);

} // namespace corva
