// SPDX-License-Identifier: GPL-3.0-or-later
// Alone in its file, so that a test of the start-up can lock another file.
#include "shell/instance.h"

int already_running()
{
    return corva::takeInstanceLock(instanceLockPath);
}
