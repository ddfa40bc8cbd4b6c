// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMap>
#include <QSet>
#include <QString>

namespace corva
{

/// What was done to the system's dialler files, written down before each step, so that a run after a kill
/// knows where the last one stood. Holds hashes of contents, never contents.
struct DiallerJournal {
    enum class Phase {
        None,     ///< nothing is saved
        Saving,   ///< copies are being taken; the files themselves are untouched
        Saved,    ///< all copies stand; the program's own may stand in the files' places
        Restoring ///< files go back and their copies away, one by one
    };
    struct File {
        bool existed = false;     ///< before the saving
        QByteArray original;      ///< hash of its content then
        QSet<QByteArray> written; ///< hashes of what the program wrote in its place; see `secretHash` as well

        bool operator==(const File &) const = default;
    };

    Phase phase = Phase::None;
    QMap<QString, File> files; ///< by a name that is not a path

    bool operator==(const DiallerJournal &) const = default;

    static QByteArray hashOf(const QByteArray &content);

    QByteArray toJson() const;
    /// Nothing saved for a text that is no journal.
    static DiallerJournal fromJson(const QByteArray &json);
};

} // namespace corva
