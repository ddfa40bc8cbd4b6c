// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/cardmonitor.h"

#include <QStringList>

/// The card's monitor without a card: the same class, with members that do as a test says. A test links it in
/// place of the real one, so that the window above is the real window.
namespace fakecard
{

/// What the window asked for, in order: "searchNow", "enterPin 1234", ...
QStringList takeCalls();
/// The card is now in this state.
void put(const corva::CardState &state);
/// Answers the PIN or PUK that was entered last.
void answerPin(corva::PinOutcome outcome);
/// Answers the last switching of the USB mode.
void answerSwitch(const corva::SwitchResult &result);

/// A card in its home network, with everything known.
corva::CardState registeredCard();
/// Named states for tests: "registered", "absent", "storage", "norights", "busy",
/// "silent", "nosim", "pin", "puk", "radiooff", "searching", "denied", "roaming", "noservice". Any other name
/// gives the registered card.
corva::CardState namedState(const QString &name);
QStringList stateNames();

} // namespace fakecard
