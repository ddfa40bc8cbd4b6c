// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace corva
{

/// `text` (a command, or a reply with the command's echo) as it may stand in a log: PINs, PUKs and passwords
/// are replaced character by character with "*".
QByteArray maskSecrets(const QByteArray &text);

} // namespace corva
