// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/messageservice.h"

/// The message service without a card: the same class, with members that do as a test says. A test links it
/// in place of the real one; the store below is the real one.
namespace fakesms
{

/// What was asked for, in order: "send +49151… 2 | text", "cancel", "retry", "read Sim", ...
QStringList takeCalls();
/// The sending has come so far.
void put(const corva::SendProgress &progress);
/// What is known of a place now.
void put(corva::MessagePlace place, const corva::PlaceState &state);
/// Whether the next message is taken.
void setTaking(bool isTaking);

} // namespace fakesms
