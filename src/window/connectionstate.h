// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace corva
{

/// The data connection, as far as the window shows it. Its owner tells the window by
/// `WTMainWindow::setConnection`.
enum class ConnectionState { NotConnected, Connecting, Connected, Disconnecting };

} // namespace corva
