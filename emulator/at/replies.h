// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "at/answer.h"
#include "at/portsettings.h"

// Pieces that several replies share.

namespace cardemu
{

class Card;

/// "<stat>", and with mode 2 and a cell also its area and number: "1,\"1234\",\"00ABCD01\"". 3GPP
/// TS 27.007 7.2.
QByteArray registrationText(const Card &card, int mode);
/// 145 for an international number, 129 for others. 3GPP TS 24.008 10.5.4.7.
QByteArray numberType(const QString &number);
/// Information lines with their ends. ITU-T V.250 5.7.1.
QByteArray informationText(const QByteArrayList &lines, const PortSettings &port);
/// The result code in the form that V, Q and "+CMEE" chose; empty when Q1 hides it.
QByteArray finalText(const Final &final, const PortSettings &port);
/// A line that nobody asked for.
QByteArray reportText(const QByteArray &line, const PortSettings &port);

} // namespace cardemu
