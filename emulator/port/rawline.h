// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace cardemu
{

/// Puts a terminal into raw mode at 115200 baud and drops what waits in it. On a pseudo-terminal's master
/// this sets the client's side. False when it is no terminal; errno says why.
bool setRaw(int descriptor);
/// The speed is 0, which is how a program tells a terminal to drop DTR. POSIX, tcsetattr().
bool isHungUp(int descriptor);

} // namespace cardemu
