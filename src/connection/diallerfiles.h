// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionprofile.h"
#include "connection/pppoptions.h"
#include "connection/systemfiles.h"

#include <QByteArray>
#include <memory>

namespace corva
{

/// The dialler's files: keeps the system's own, writes those of a profile, and puts the system's own back.
/// Synchronous, for the program when it runs as root and for the helper program alike; one thread.
///
/// A kill at any moment loses nothing: what was done is written down before the next step, and
/// `recoverLeftovers` of the next run ends in the files as they were: content, mode, owner, link. While one
/// object has the files in hand (from the saving to the putting back), others are refused.
///
/// Verbs return false with a sentence for people in `error`, and say more in `detail()`, for the log. No
/// sentence and no detail contains a password. A sentence that is about a file that stands in the way names
/// it on a second line.
class DiallerFiles
{
public:
    explicit DiallerFiles(const SystemFiles &files = {});
    ~DiallerFiles();
    Q_DISABLE_COPY_MOVE(DiallerFiles)

    const SystemFiles &files() const;

    /// Copies the system's files to their saved names. Leftovers are put back first. A file that is not there
    /// is noted as such. "Save wvdial config data failed!"
    bool saveConfigData(QString *error = nullptr);

    /// Writes the three files from the profile, each with mode 0600. Only after `saveConfigData`; may be
    /// called again for another dial. "open file operation error!", "Read default wvdial config data failed!"
    /// when nothing was saved before, or why a value is refused.
    bool readDeafaultConfigData(const ConnectionProfile &profile, const QString &modemPort,
                                const PppOptions &options, QString *error = nullptr);

    /// Puts the system's files back and removes the copies. A missing copy leaves that file as the program
    /// wrote it, puts the others back and fails. The resolver file is put back only if it still is what
    /// `saveManualDNS` wrote. "Recover wvdial config data failed!"
    bool recoverConfigData(QString *error = nullptr);

    /// Removes "/tmp/connect_info", unless another program has the files in hand, and copies of files that
    /// are in their place again.
    bool deleteTmpFile();

    /// Whether a run that is over left the system's files saved. False while another program has them in
    /// hand.
    bool hasLeftovers() const;
    /// Puts them back. True when there was nothing to do as well.
    bool recoverLeftovers(QString *error = nullptr);

    /// Writes the two name servers (the second may be empty) into the resolver file in place of those that
    /// stand there; its other lines stay. Only after `saveConfigData`. "The DNS is invalid !"
    bool saveManualDNS(const QString &preferred, const QString &alternative, QString *error = nullptr);

    /// What stands in the resolver file now was written for the link, by the system's DHCP client: it is put
    /// back with the others. Only after `saveConfigData`.
    bool noteResolver();

    /// Makes "/tmp/connect_info" anew, empty, with mode 0600, never through a link or into another's file.
    bool makeConnectInfo(QString *error = nullptr);
    /// Whether it stands as it was made, for a second dialler to write behind the first one's words.
    bool keepsConnectInfo() const;

    /// Whether "/etc/issue" names the distribution, in any letter case.
    bool isOSDistro(const QString &name) const;
    bool isSuse() const;

    /// What the last verb that failed met, for the log.
    const QString &detail() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace corva
