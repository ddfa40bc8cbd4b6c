// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/dialpermission.h"

#include "link/cardstate.h"

#include <algorithm>

namespace corva
{

namespace
{

/// Whether the network carries data beside a call.
bool carriesDataBesideCalls(NetworkType type)
{
    using enum NetworkType;
    constexpr NetworkType types[] = {Umts, Hsdpa, Hsupa, Hspa, HspaPlus, TdScdma, TdHspa};
    return std::ranges::find(types, type) != std::end(types);
}

} // namespace

bool isRoaming(const CardState &card)
{
    return card.roaming.value_or(card.registration == Registration::Roaming);
}

ConnectObstacle obstacleOf(const CardState &card, bool isCallUp)
{
    if (card.presence != CardPresence::Ready)
        return ConnectObstacle::CardGone;
    if (isCallUp && !carriesDataBesideCalls(card.networkType))
        return ConnectObstacle::CallOnOtherNetwork;
    return isRoaming(card) ? ConnectObstacle::Roaming : ConnectObstacle::None;
}

bool DialPermission::hasCredentialsFor(const ConnectionProfile &profile) const
{
    return credentials && credentials->profileName == profile.name();
}

void DialPermission::fillIn(ConnectionProfile &profile) const
{
    if (!hasCredentialsFor(profile))
        return;
    profile.setText(ProfileField::UserName, credentials->userName);
    profile.setText(ProfileField::Password, credentials->password);
}

bool DialPermission::mayDialUnasked(const ConnectionProfile &profile) const
{
    return !profile.asksForUser() || !profile.text(ProfileField::UserName).isEmpty() ||
           hasCredentialsFor(profile);
}

} // namespace corva
