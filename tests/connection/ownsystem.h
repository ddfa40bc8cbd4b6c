// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Gives this process an "/etc", a "/run" and a "/tmp" of its own, whose changes nobody else sees and which
/// are gone with it: the real dialler reads its files from their real places. Called first in `main`, while
/// there is one thread. Returns why it could not, in words; empty when it did.
QString enterOwnSystem();

/// Owner, group, mode and content of every file below "/etc" that the dialler has to do with.
QString etcAsText();
