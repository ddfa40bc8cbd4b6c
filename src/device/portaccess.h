// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <sys/types.h>

namespace corva
{

/// The name of the group that owns the port's node, e.g. "dialout"; its number when it has no name, empty
/// when there is no such node.
QString portGroup(const QString &port);

/// What gives a person the rights on a port.
enum class RightsAdvice {
    JoinGroup,       ///< "sudo usermod -aG dialout anna", then sign in again
    SignInAgain,     ///< already a member, but this session began before that
    AskAdministrator ///< the node's group is no way in (root's own, none, or it has no rights itself)
};

RightsAdvice rightsAdvice(const QString &port);
/// The same for a node of this group and mode.
RightsAdvice rightsAdvice(gid_t group, mode_t mode);

/// The sentences for it, with the group and the person's own name filled in. Plain text.
QString rightsAdviceText(const QString &port);

} // namespace corva
