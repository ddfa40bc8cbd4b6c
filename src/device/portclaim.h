// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace corva
{

/// Keeps other programs off an open port for as long as the descriptor is open: no program without
/// administrator's rights can open it any more, and programs that look for advisory locks see one. No lock
/// file is written: it would stay behind after a crash and says nothing that the kernel does not know.
///
/// Returns 0, or errno: EWOULDBLOCK when another program has the advisory lock (the port is then not
/// claimed). A pseudo-terminal gets the advisory lock alone: its exclusive mode would outlive the descriptor
/// and lock this program itself out.
int claimPort(int fd);

/// Opens the port to others again while it stays open, for a dialler on a card with one port.
void releasePort(int fd);

} // namespace corva
