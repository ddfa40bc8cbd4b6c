// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionprofile.h"

#include <QDateTime>
#include <QMetaType>
#include <QStringList>

namespace corva
{

/// What the data connection does.
enum class ConnectionState { NotConnected, Connecting, Connected, Disconnecting };

/// Why a connection is not there any more, or never came about.
enum class ConnectionEnd {
    None,      ///< nothing was tried yet
    ByPerson,  ///< Disconnect was pressed, or the dial was cancelled
    Refused,   ///< the network refused the user name and the password
    NoCarrier, ///< the card or the network did not take the call: NO CARRIER, NO ANSWER, NO DIALTONE, ERROR
    Busy,      ///< BUSY
    TimeOut,   ///< no link when "dial_timeout" was over
    DiallerFailed,  ///< wvdial or pppd ended by itself, see `exitCode`
    FilesFailed,    ///< the system's files could not be saved or written
    NoRights,       ///< the right to dial was not given
    ProfileRefused, ///< a value of the profile cannot be used, or the card does not take it
    ByPeer,         ///< the network ended the link
    LinkLost,       ///< no answer to the link's echoes
    CardGone,       ///< the card was pulled out
    Idle,           ///< ended because nothing was carried
    Quota,          ///< ended because the month's volume was used up
    ByProgram       ///< the program was closed
};

/// Everything about the data connection that the window shows. A plain value.
struct ConnectionStatus {
    ConnectionState state = ConnectionState::NotConnected;
    LinkKind kind = LinkKind::DialUp; ///< never Automatic while a link is made or up
    QString profileName;              ///< of the link, or of the last attempt
    QString apn;
    QDateTime since;         ///< when the link came up
    QString interfaceName;   ///< "ppp0"
    QString localAddress;    ///< dotted quad
    QString peerAddress;     ///< the other end's, or the gateway's
    QStringList nameServers; ///< those that the system uses now
    bool hasDefaultRoute = false;
    bool isRoaming = false;
    int redial = 0;  ///< the number of the automatic attempt that runs or waits, 0 none
    int redials = 0; ///< how many there will be

    /// How the last attempt or link ended.
    ConnectionEnd end = ConnectionEnd::None;
    int exitCode = -1;   ///< pppd's, where it said one
    QString endSentence; ///< the same in words for people; empty when there is nothing to say

    bool operator==(const ConnectionStatus &) const = default;
};

} // namespace corva

Q_DECLARE_METATYPE(corva::ConnectionStatus)
