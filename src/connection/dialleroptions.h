// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/pppoptions.h"
#include "connection/redial.h"
#include "connection/systemfiles.h"

#include <QStringList>
#include <chrono>
#include <optional>

namespace corva
{

/// Section "network_dialer_setting" of the configuration as the data connection reads it, at each dial anew.
struct DiallerOptions {
    std::chrono::seconds dialTimeout{30};
    int contextId = 1;
    PppOptions ppp;
    QStringList linkFiles;    ///< their being there says that the link is built
    QString resolverFile;     ///< the system's name servers
    QString networkInterface; ///< of a card whose interface cannot be found by USB
    bool showsExitCode = false;
    bool opensUrl = false;
    bool redials = false;
    Redial::Row redial;
    bool connectsByItself = false;
    Redial::Row automatic;
    std::optional<std::chrono::minutes> idleLimit;
    QString roamingQuestion; ///< asked in place of the program's own; empty: that

    static DiallerOptions fromConfiguration();
};

/// How long a dial may take before its outcome is judged.
std::chrono::seconds getDialTimeoutParam();

/// The system's files as the configuration names them, for a program that runs as root. The helper program
/// takes the real places whatever the person's configuration says.
SystemFiles systemFilesFromConfiguration();

} // namespace corva
