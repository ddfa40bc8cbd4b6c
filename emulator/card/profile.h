// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "at/faults.h"
#include "card/fields.h"
#include "card/state.h"

#include <variant>

namespace cardemu
{

/// What a card is when it is plugged in: its whole state and the faults that wait in it.
struct Profile {
    CardState card;
    QList<Fault> faults;

    /// Reads a profile's JSON text; keys that it leaves out keep the values of the built-in WCDMA card.
    /// On failure a sentence that names the key ("sim.pin: must be 4 to 8 digits").
    static std::variant<Profile, Complaint> parse(const QByteArray &json);
    static std::variant<Profile, Complaint> load(const QString &path);
    /// A profile that comes with the emulator: "wcdma", "tdscdma", "cdma", "standard", "locked", "nosim".
    static std::variant<Profile, Complaint> builtIn(const QString &name);
};

} // namespace cardemu
