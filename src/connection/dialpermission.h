// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionprofile.h"

#include <QString>
#include <optional>

namespace corva
{

struct CardState;

/// What has to be settled with the person before a dial.
enum class ConnectObstacle {
    None,
    CallOnOtherNetwork, ///< a call is up on a network that carries no data beside it
    Roaming,            ///< the card is on a foreign network: ask
    CardGone            ///< no card that answers
};

ConnectObstacle obstacleOf(const CardState &card, bool isCallUp);
bool isRoaming(const CardState &card);

/// What the person was asked for at connect time, in place of the profile's own. Kept for one link and its
/// redials, never stored, and given to no other profile.
struct DialCredentials {
    QString profileName;
    QString userName;
    QString password;
};

/// What the person allowed for one link and its redials.
struct DialPermission {
    std::optional<DialCredentials> credentials;
    bool mayRoam = false; ///< dialled while roaming, and so agreed to it

    bool hasCredentialsFor(const ConnectionProfile &profile) const;
    /// Puts what was entered into the profile that it was entered for.
    void fillIn(ConnectionProfile &profile) const;
    /// Whether nobody has to be asked for the user name.
    bool mayDialUnasked(const ConnectionProfile &profile) const;
};

} // namespace corva
