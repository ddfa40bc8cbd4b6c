// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "card/fields.h"
#include "control/controltable.h"

// Pieces that the control commands share.

namespace cardemu
{

Outcome done(const QJsonObject &values = {});
Outcome refused(const Complaint &complaint);
/// Done, where there is nothing to complain of.
Outcome outcome(const Complaint &complaint);

/// Sets members of the state through the rows that profiles are read with.
Complaint setState(EmulatedCard &emulated, const QString &section, const QJsonObject &values);

QJsonObject without(QJsonObject values, const QStringList &names);

} // namespace cardemu
