// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/apnproposals.h"
#include "connection/connectionprofile.h"

#include <QList>
#include <QObject>
#include <memory>
#include <optional>

namespace corva
{

/// The connection profiles: the person's list "totalRecord.conf", the profile that is dialled
/// "defaultRecord.conf" and the profiles that the program adds "extendTotalRecord.conf". A profile is known
/// by its name, which no other of both lists has. What nobody edited is written back byte by byte, lines of
/// other kinds included.
///
/// Verbs return false with a sentence for people in `error`; then nothing has changed.
class ProfileStore : public QObject
{
    Q_OBJECT

public:
    /// Reads the files in `folder` (`basePath` + "/Data"), which need not exist.
    explicit ProfileStore(const QString &folder, QObject *parent = nullptr);
    ~ProfileStore() override;

    /// Reads the files again.
    void reload();

    /// The person's profiles, then those of the program, in the order of the files. Hidden ones included.
    const QList<ConnectionProfile> &list() const;
    std::optional<ConnectionProfile> find(const QString &name) const;

    /// Appends to the person's list. Refused with `profileRefusal`, and for a name that is taken.
    bool add(const ConnectionProfile &profile, QString *error = nullptr);
    /// Replaces the profile called `name`, which may get another name; the default profile follows. Refused
    /// also for a profile that may not be edited.
    bool change(const QString &name, const ConnectionProfile &profile, QString *error = nullptr);
    /// Refused for a profile that may not be edited. Without the default profile there is none any more.
    bool remove(const QString &name, QString *error = nullptr);

    /// The profile that is dialled, as its file has it. None: nothing was chosen, or the file cannot be read.
    std::optional<ConnectionProfile> defaultProfile() const;
    /// The file of the default profile is there and cannot be read.
    bool isDefaultBroken() const;
    bool setDefault(const QString &name, QString *error = nullptr);

    /// The profile whose IMSI prefix is the longest that begins `imsi`; the first of several. None without
    /// one.
    std::optional<ConnectionProfile> profileFor(const QString &imsi) const;

    /// Adds a proposal to the program's profiles, for SIMs of its network, and makes it the default. The
    /// profile that is there already when it was taken before.
    bool takeProposal(const ApnProposal &proposal, QString *error = nullptr);

    /// What is wrong with the files, in words for people: not readable, not written. Empty when all is well.
    QString problem() const;

    /// A profile as the editor begins with it: "*99#", the profile's APN, addresses from the network, PAP.
    static ConnectionProfile newProfile();
    static ConnectionProfile profileOf(const ApnProposal &proposal);

Q_SIGNALS:
    void sigChanged();

private:
    QString refusal(const ConnectionProfile &profile, const QString &oldName) const;
    static bool refuse(const QString &reason, QString *error);

    class Private;
    std::unique_ptr<Private> d;
};

} // namespace corva
