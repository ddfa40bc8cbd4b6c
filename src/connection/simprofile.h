// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionprofile.h"

#include <optional>

namespace corva
{

class ProfileStore;

/// Whether a profile is for this SIM. One without a prefix is for all; of a SIM that has not told its number
/// nothing can be said against it.
bool isForSim(const ConnectionProfile &profile, const QString &imsi);

/// The profile that is dialled where nobody is asked: the default one, or where that is for other SIMs the
/// one that fits. None where the default cannot be read, or nothing fits.
std::optional<ConnectionProfile> profileForSim(const ProfileStore &profiles, const QString &imsi);

/// Whether enough is known of the SIM to tell whose profile it takes.
bool isSimKnown(const ProfileStore &profiles, const QString &imsi);

} // namespace corva
