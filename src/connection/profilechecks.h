// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionprofile.h"

#include <QString>

namespace corva
{

/// Why a profile may not be kept, in words for people; empty when it may. The editor's refusals.
QString profileRefusal(const ConnectionProfile &profile);

/// Why a profile may not be dialled on `modemPort`: a value that would break, or become more than, its line
/// in the dialler's files. Empty when it may. Kept apart from the editor's, since a record file may hold
/// anything.
QString dialRefusal(const ConnectionProfile &profile, const QString &modemPort);

/// Four decimal numbers 0 to 255 with dots between, as an address of one host: not 0.0.0.0 nor
/// 255.255.255.255.
bool isHostAddress(const QString &text);

/// Whether a profile's page may be given to the browser: "http", "https", or a name without a scheme.
bool isWebAddress(const QString &text);

} // namespace corva
