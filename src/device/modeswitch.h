// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/usbidentity.h"

#include <QString>
#include <QStringList>
#include <chrono>

namespace corva
{

/// What became of a switching.
enum class SwitchOutcome {
    Switched,  ///< the command was accepted; the stick comes back as a modem by itself
    NoRights,  ///< this user may not talk to the stick
    NoProgram, ///< usb_modeswitch is not installed
    NotThere,  ///< the stick has gone
    Failed,    ///< see `detail`
    TimedOut   ///< stopped after the time given
};

struct SwitchResult {
    SwitchOutcome outcome = SwitchOutcome::Failed;
    QString detail; ///< a sentence for people: what happened and what to do; empty when it is switched

    bool isOk() const { return outcome == SwitchOutcome::Switched; }
};

/// How to call the switching program.
struct SwitchSettings {
    QString program = QStringLiteral("usb_modeswitch"); ///< looked for in PATH, then in /usr/sbin and /sbin
    QStringList dataFolders{QStringLiteral("/etc/usb_modeswitch.d"),
                            QStringLiteral("/usr/share/usb_modeswitch")};
    std::chrono::milliseconds timeout{20000};
};

/// Turns a stick that shows itself as a disk into a modem. Blocks; for the worker thread.
SwitchResult switchMode(const UsbIdentity &stick, const SwitchSettings &settings = {});

} // namespace corva
