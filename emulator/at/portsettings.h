// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "at/charset.h"
#include "card/state.h"

namespace cardemu
{

/// What commands set for the port they come in on; another port has its own.
struct PortSettings {
    bool echo = true;         ///< E. ITU-T V.250 6.2.4
    bool quiet = false;       ///< Q
    bool verbose = true;      ///< V
    int errorMode = 0;        ///< "+CMEE": 0 plain, 1 numbers, 2 words
    char lineEnd = '\r';      ///< S3
    char lineFeed = '\n';     ///< S4
    char backspace = '\b';    ///< S5
    QMap<int, int> registers; ///< the other S registers
    Charset charset = Charset::Ira;
    int registrationReports = 0;       ///< "+CREG" <n>
    int packetRegistrationReports = 0; ///< "+CGREG" <n>
    int operatorFormat = 0;            ///< "+COPS=3,<format>": 0 long, 1 short, 2 numeric
    bool callerNumber = false;         ///< "+CLIP"
    bool extendedRing = false;         ///< "+CRC"
    int ussdReports = 0;               ///< "+CUSD" <n>; with 0 the network's answer is not shown
    int messageFormat = 0;             ///< "+CMGF": 0 PDU, 1 text
    QString readStore = QStringLiteral("SM");
    QString writeStore = QStringLiteral("SM");
    QString phonebook = QStringLiteral("SM");
    bool dataSuspended = false; ///< a data call waits behind "+++"

    static PortSettings atPowerUp(const Line &line)
    {
        PortSettings settings;
        settings.echo = line.echo;
        settings.errorMode = line.errorMode;
        return settings;
    }
};

} // namespace cardemu
