// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/diallerjournal.h"

#include <QString>

namespace corva
{

/// One of the system's files that the dialler borrows, and where its copy is kept meanwhile.
class KeptFile
{
public:
    enum class PutBack {
        Always,  ///< whatever stands in its place
        IfOurs,  ///< only if that is what the program wrote
        Secrets, ///< wvdial's lines are taken out, see secretslines.h; `written` holds their hashes
    };
    enum class Result {
        Done,
        Lost,     ///< there is no copy, and what stands in the place is not the original
        SetAside, ///< the copy cannot be read; under the name in `detail` it is out of the way next time
        Failed    ///< see `detail`
    };

    KeptFile(const QString &name, const QString &path, const QString &copy, PutBack putBack)
        : m_name(name), m_path(path), m_copy(copy), m_putBack(putBack)
    {
    }

    const QString &name() const { return m_name; } ///< in the journal
    const QString &path() const { return m_path; }
    bool hasCopy() const;
    /// Removes the copy, and what a writer that was killed left of it and of the file.
    bool tidy() const;

    /// Copies the file with its mode, owner and time, and notes in `state` what there was. What the program
    /// itself wrote, by the hashes in `state`, counts as nothing.
    bool take(DiallerJournal::File *state, QString *detail) const;

    /// Replaces the file, its mode 0600.
    bool write(const QByteArray &content, QString *detail) const;

    /// Makes the file what `state` and the copy say; then the copy is gone. May be done again when it was cut
    /// off (`isResumed`). What somebody else wrote in the meantime is kept beside.
    Result putBack(const DiallerJournal::File &state, bool isResumed, QString *detail) const;
    /// The same for a copy of which nothing is known; `written` are hashes of the program's own of earlier
    /// times. Anything else that stands in the place is kept beside.
    Result putBackUnknown(const QSet<QByteArray> &written, QString *detail) const;

private:
    bool setUnreadableCopyAside(QString *detail) const;
    bool replace(QString *detail) const;
    Result takeLinesOut(const DiallerJournal::File &state, bool isResumed, QString *detail) const;
    bool removeOrKeep(bool isOurs, QString *detail) const;

    QString m_name;
    QString m_path;
    QString m_copy;
    PutBack m_putBack;
};

} // namespace corva
