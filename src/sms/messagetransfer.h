// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/messagestore.h"

namespace corva
{

/// How an import went.
struct ImportOutcome {
    QString error; ///< a sentence; nothing was added then, or not all of it saved
    int added = 0;
    int present = 0;    ///< left out, because they were here already
    int unreadable = 0; ///< left out, because they make no sense
};

/// Writes messages to a file of the person's, as a table when its name ends in ".csv", else as JSON, on
/// another thread. The future has a sentence when that failed, empty when the file is there.
QFuture<QString> exportMessages(const std::vector<Message> &messages, const QString &path);

/// Reads such a file, whatever its name, on another thread, and adds what is not here yet, some at a time,
/// once the store is loaded. Done when all is on disk, cancelled when the store goes meanwhile.
QFuture<ImportOutcome> importMessages(MessageStore *store, const QString &path);

} // namespace corva
