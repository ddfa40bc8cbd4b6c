// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionservice.h"

#include <QStringList>

/// The data connection without a dialler: the same class, with members that do as a test says. A test links
/// it in place of the real one.
namespace fakeconnection
{

/// What was asked for, in order: "connect", "connect maria/secret", "disconnect", "recover",
/// "shutDown".
QStringList takeCalls();
/// The connection is now in this state.
void put(const corva::ConnectionStatus &status);
/// What stands in the way of the next dial.
void setObstacle(corva::ConnectObstacle obstacle);
/// It would connect by itself, but for roaming.
void askAboutRoaming();

/// A link that is up, with everything known.
corva::ConnectionStatus connected();
/// The last attempt ended so.
corva::ConnectionStatus ended(corva::ConnectionEnd end, const QString &sentence);
/// Named states to look at: "connected", "connecting", "redial", "refused", "disconnecting".
corva::ConnectionStatus namedStatus(const QString &name);

} // namespace fakeconnection
