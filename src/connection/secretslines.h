// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSet>

#include <optional>

namespace corva
{

// wvdial writes the user name and the password of each dial into pppd's secrets files, for good, in place of
// a line of the same user. What follows takes its lines out again. Pure. Source: pppd(8), "AUTHENTICATION".

/// By which a dial's line is known again: a hash of its user and password.
QByteArray secretHash(const QByteArray &user, const QByteArray &password);

/// The secrets file `now` without the lines that dials added, which are those in `dialled`. `original` is the
/// file from before the dials. It comes back byte by byte when nobody else changed the file; otherwise the
/// others' lines stay, and the lines of it that a dial replaced return. nullopt when no line is left of a
/// file that was not there before.
std::optional<QByteArray> withoutDialled(const QByteArray &now, const std::optional<QByteArray> &original,
                                         const QSet<QByteArray> &dialled);

/// Whether `now` is as wvdial leaves the file when it is killed while it writes it: the first lines of
/// `original`, and none of a dial, which it writes last.
bool isCutOff(const QByteArray &now, const QByteArray &original, const QSet<QByteArray> &dialled);

} // namespace corva
