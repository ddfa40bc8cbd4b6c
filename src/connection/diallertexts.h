// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionprofile.h"
#include "connection/pppoptions.h"

#include <QByteArray>

namespace corva
{

/// The contents of the dialler's three files, lines ended with CR LF. Values are taken as they are: ask
/// `dialRefusal` first. Source: wvdial.conf(5), pppd(8).
QByteArray wvdialConfText(const ConnectionProfile &profile, const QString &modemPort);
QByteArray pppOptionsText(const ConnectionProfile &profile, const PppOptions &options);
QByteArray peerText(bool isSuse);

/// What wvdial logs in with, and leaves in pppd's secrets files.
QByteArray dialledUser(const ConnectionProfile &profile);
QByteArray dialledPassword(const ConnectionProfile &profile);

/// The resolver file `old` with these name servers in place of its own. Source: resolv.conf(5).
QByteArray resolverText(const QByteArray &old, const QStringList &nameServers);

} // namespace corva
