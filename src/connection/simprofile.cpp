// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/simprofile.h"

#include "connection/profilestore.h"

namespace corva
{

bool isForSim(const ConnectionProfile &profile, const QString &imsi)
{
    return imsi.isEmpty() || imsi.startsWith(profile.imsiPrefix());
}

std::optional<ConnectionProfile> profileForSim(const ProfileStore &profiles, const QString &imsi)
{
    const auto chosen = profiles.defaultProfile();
    if ((chosen && isForSim(*chosen, imsi)) || profiles.isDefaultBroken())
        return chosen;
    return profiles.profileFor(imsi);
}

bool isSimKnown(const ProfileStore &profiles, const QString &imsi)
{
    const auto chosen = profiles.defaultProfile();
    return !imsi.isEmpty() || (chosen && chosen->imsiPrefix().isEmpty());
}

} // namespace corva
