// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionprofile.h"
#include "connection/diallerfiles.h"

#include <QStringList>

namespace corva
{

/// What the dialler's side can be asked for. Nothing else.
enum class DialVerb {
    Save,  ///< keep copies of the system's dialler files; leftovers of an earlier run are put back first
    Write, ///< write the dialler's files from a profile
    Dial,  ///< start the dialler; answered once it runs
    NameServers, ///< put the profile's own name servers into the system's resolver file
    RouteHelper, ///< run the route helper, where there is one
    HangUp,      ///< end the dialler; answered when it and pppd are gone
    Recover,     ///< put the system's files back
    Lease,       ///< ask for an address on the card's network interface; answered when there is one
    Release      ///< give it back
};

struct DialRequest {
    DialVerb verb = DialVerb::Save;
    ConnectionProfile profile = {}; ///< Write
    QString modemPort = {};         ///< Write, Lease, Release: the card's data port
    PppOptions options = {};        ///< Write
    QStringList nameServers = {};   ///< NameServers: one or two dotted quads
    QString interfaceName = {};     ///< Lease, Release: "wwan0"
};

struct DialResult {
    enum class Kind {
        Done,
        Failed,  ///< see `error`
        NoRights ///< the person or the system did not allow it
    };
    Kind kind = Kind::Done;
    QString error; ///< a sentence; empty when done

    bool isDone() const { return kind == Kind::Done; }
};

} // namespace corva
